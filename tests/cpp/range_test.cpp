// Ranges under range-for and the standard algorithms.
#include <algorithm>
#include <iterator>
#include <numeric>
#include <type_traits>

#include "cpp/cpp_host.h"

namespace {

using namespace kostyle;
using testing::ElementsAre;

template <class Range>
using CategoryOf = typename std::iterator_traits<typename Range::iterator>::iterator_category;
template <class Range>
constexpr bool isRandomAccess = std::is_same_v<CategoryOf<Range>, std::random_access_iterator_tag>;
template <class Range>
constexpr bool isBidirectional = std::is_same_v<CategoryOf<Range>, std::bidirectional_iterator_tag>;

// Random access is promised where an index takes constant time.
static_assert(isRandomAccess<AudioEffects> && isRandomAccess<MidiEffects>);
static_assert(isRandomAccess<StoredParameters> && isRandomAccess<SystemCreationResults>);
static_assert(isRandomAccess<UserCreationResults> && isRandomAccess<decltype(UserStyle().languages())>);
static_assert(isRandomAccess<decltype(SystemStyle().colors())>);
static_assert(isBidirectional<SystemStyles> && isBidirectional<UserStyles>);
static_assert(isBidirectional<MutableAudioEffects> && isBidirectional<MutableMidiEffects>);
static_assert(isBidirectional<MutableParameters> && isBidirectional<decltype(MutableStyle().genres())>);

// Expects the ways over a range to agree on its elements.
template <class Range>
void expectOneOrder(const Range& range, std::size_t size) {
  EXPECT_EQ(range.size(), size);
  EXPECT_EQ(range.empty(), size == 0);
  EXPECT_EQ(std::distance(range.begin(), range.end()), static_cast<std::ptrdiff_t>(size));
  std::size_t index = 0;
  for (const auto element : range) EXPECT_TRUE(element == range[index++]);
  EXPECT_EQ(index, size);
  auto backwards = range.end();
  while (index > 0) EXPECT_TRUE(*--backwards == range[--index]);
  EXPECT_TRUE(backwards == range.begin());
  const std::vector<typename Range::value_type> copy(range.begin(), range.end());
  EXPECT_TRUE(std::equal(copy.rbegin(), copy.rend(), std::make_reverse_iterator(range.end()),
                         std::make_reverse_iterator(range.begin())));
}

struct CppRange : testing::Test {
  test::CppHost host;
  UserStyle style = host.addUserStyle("w", test::wholeDocument("w"));
};

TEST_F(CppRange, OfStoredStylesHasOneOrder) {
  host.addUserStyle("a");
  const UserStyle last = host.addUserStyle("b");
  ASSERT_TRUE(last);
  expectOneOrder(host.manager.userStyles(), 3);
  expectOneOrder(host.manager.systemStyles(), 0);
  expectOneOrder(host.manager.userCreationResults(), 3);
  expectOneOrder(host.manager.systemCreationResults(), 0);
}

TEST_F(CppRange, OfAStoredStyleHasOneOrder) {
  expectOneOrder(style.languages(), 2);
  expectOneOrder(style.singerGroups(), 2);
  expectOneOrder(style.singerIDs(), 1);
  expectOneOrder(style.genres(), 2);
  expectOneOrder(style.subGenres(), 1);
  expectOneOrder(style.colors(), 1);
  expectOneOrder(style.audioEffects(), 2);
  expectOneOrder(style.midiEffects(), 1);
  expectOneOrder(style.audioEffects()[0].parameters(), 4);
}

TEST_F(CppRange, OfAMutableStyleHasOneOrder) {
  const MutableStyle copy = createMutableCopy(style).style;
  expectOneOrder(copy.languages(), 2);
  expectOneOrder(copy.singerGroups(), 2);
  expectOneOrder(copy.audioEffects(), 2);
  expectOneOrder(copy.midiEffects(), 1);
  expectOneOrder(copy.audioEffects()[0].parameters(), 4);
  expectOneOrder(host.manager.createMutableStyle().audioEffects(), 0);
}

TEST_F(CppRange, OfAnEmptyViewIsEmpty) {
  expectOneOrder(UserStyle().genres(), 0);
  expectOneOrder(UserStyle().audioEffects(), 0);
  expectOneOrder(MutableStyle().audioEffects(), 0);
  expectOneOrder(AudioEffect().parameters(), 0);
  expectOneOrder(ManagerView().userStyles(), 0);
  expectOneOrder(AudioEffects(), 0);
  expectOneOrder(MutableParameters(), 0);
  EXPECT_EQ(UserStyle().languages()[0], -1);
}

TEST_F(CppRange, ServesAlgorithms) {
  const auto genres = style.genres();
  EXPECT_TRUE(std::is_sorted(genres.begin(), genres.end()));
  EXPECT_TRUE(std::binary_search(genres.begin(), genres.end(), Text(KOSTYLE_TEXT("Pop"))));
  const auto languages = style.languages();
  EXPECT_EQ(std::accumulate(languages.begin(), languages.end(), 0), 3);
  const auto effects = style.audioEffects();
  const auto found = std::find_if(effects.begin(), effects.end(),
                                  [](AudioEffect effect) { return effect.id() == "A"; });
  ASSERT_TRUE(found != effects.end());
  EXPECT_EQ(found->parameters().size(), 1U);
  EXPECT_EQ(found - effects.begin(), 1);
  const auto styles = host.manager.userStyles();
  EXPECT_EQ(std::count_if(styles.begin(), styles.end(),
                          [](UserStyle each) { return each.name() == "Whole"; }),
            1);
}

TEST_F(CppRange, GoesToAnyPlaceInConstantTime) {
  const auto parameters = style.audioEffects()[0].parameters();
  const auto first = parameters.begin();
  EXPECT_EQ((first + 2)->name(), "i");
  EXPECT_EQ((2 + first)->name(), "i");
  EXPECT_EQ((parameters.end() - 1)->name(), "t");
  EXPECT_EQ(first[3].name(), "t");
  auto place = first;
  EXPECT_EQ((place += 3)->name(), "t");
  EXPECT_EQ((place -= 2)->name(), "f");
  EXPECT_EQ((place++)->name(), "f");
  EXPECT_EQ((place--)->name(), "i");
  EXPECT_TRUE(first < place && place > first && first <= first && first >= first && !(place <= first));
}

TEST_F(CppRange, WalksByNeighboursInSequencesThatChange) {
  const MutableStyle copy = createMutableCopy(style).style;
  const auto effects = copy.audioEffects();
  auto second = std::next(effects.begin());
  copy.insertAudioEffect(0, "Front");
  copy.appendAudioEffect("End");
  std::vector<std::string> ids;
  for (; second != effects.end(); second++) ids.push_back(second->id().utf8());
  EXPECT_THAT(ids, ElementsAre("A", "End"));
  EXPECT_EQ((second--) == effects.end(), true);
  EXPECT_EQ(second->id(), "End");
}

}  // namespace
