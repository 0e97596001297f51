// Mutable styles: their name and their attribute lists.
#include <gmock/gmock.h>
#include <kostyle/kostyle.h>

#include <climits>
#include <string>
#include <vector>

#include "support/host.h"
#include "support/style_value.h"

namespace {

using test::StyleValue;
using test::Text;
using test::text;
using test::TextList;
using test::utf8;
using testing::ElementsAre;

class MutableStyle : public testing::Test {
 protected:
  static Text named(std::size_t length) { return Text(length, KoStyleChar('n')); }

  test::Host host;
  KoStyleStyle* style = StyleManager_createMutableStyle(host.manager);
};

TEST_F(MutableStyle, StartsEmpty) {
  EXPECT_EQ(test::valueOf(style), StyleValue());
  EXPECT_EQ(Style_type(style), KOSTYLE_KIND_MUTABLE);
  EXPECT_EQ(Style_parent(style), host.manager);
  EXPECT_EQ(utf8(Style_id(style)), "");
  EXPECT_EQ(utf8(Style_path(style)), "");
}

TEST_F(MutableStyle, HasNoVendorAndNoStoredEffects) {
  MutableStyle_setName(style, KOSTYLE_TEXT("name"));
  MutableStyle_insertAudioEffect(style, 0, KOSTYLE_TEXT("E"));
  EXPECT_EQ(Style_vendor(style), nullptr);
  EXPECT_EQ(Style_audioEffect(style, 0), nullptr);
  EXPECT_EQ(utf8(Style_name(style)), "name");
}

TEST_F(MutableStyle, TakesANameOf1To100Units) {
  EXPECT_TRUE(MutableStyle_setName(style, named(1).c_str()));
  EXPECT_TRUE(MutableStyle_setName(style, named(100).c_str()));
  EXPECT_FALSE(MutableStyle_setName(style, named(101).c_str()));
  EXPECT_FALSE(MutableStyle_setName(style, KOSTYLE_TEXT("")));
  EXPECT_FALSE(MutableStyle_setName(style, nullptr));
  EXPECT_EQ(Style_name(style), named(100));
}

TEST_F(MutableStyle, CountsTheUnitsOfANameAndNotItsCharacters) {
  Text clefs;
  for (int i = 0; i < 50; ++i) clefs += text(u8"\U0001D11E");
  EXPECT_TRUE(MutableStyle_setName(style, clefs.c_str()));
  EXPECT_FALSE(MutableStyle_setName(style, (clefs + text("n")).c_str()));
  EXPECT_EQ(Style_name(style), clefs);
}

TEST_F(MutableStyle, TakesLanguagesFrom0To4Once) {
  EXPECT_TRUE(MutableStyle_addLanguage(style, 3));
  EXPECT_TRUE(MutableStyle_addLanguage(style, 0));
  EXPECT_TRUE(MutableStyle_addLanguage(style, 4));
  EXPECT_FALSE(MutableStyle_addLanguage(style, 4));
  for (const int refused : {5, -1, INT_MAX, INT_MIN})
    EXPECT_FALSE(MutableStyle_addLanguage(style, refused));
  EXPECT_THAT(test::valueOf(style).languages, ElementsAre(0, 3, 4));
  EXPECT_EQ(Style_language(style, 3), -1);
  EXPECT_EQ(Style_language(style, SIZE_MAX), -1);
}

TEST_F(MutableStyle, DeletesLanguagesThatItHas) {
  MutableStyle_addLanguage(style, 1);
  for (const int missing : {2, -1, 5, INT_MAX, INT_MIN})
    EXPECT_FALSE(MutableStyle_deleteLanguage(style, missing));
  EXPECT_TRUE(MutableStyle_deleteLanguage(style, 1));
  EXPECT_FALSE(MutableStyle_deleteLanguage(style, 1));
  EXPECT_EQ(Style_numLanguage(style), 0u);
}

/// Runs for each list of texts; its texts are 16 units long, which suits all of them.
class MutableTextList : public testing::TestWithParam<std::size_t> {
 protected:
  static Text word(char letter) { return Text(16, static_cast<KoStyleChar>(letter)); }
  bool add(const Text& value) { return list.add(style, value.c_str()); }
  bool remove(const Text& value) { return list.remove(style, value.c_str()); }
  std::vector<Text> values() { return test::valueOf(style).lists[GetParam()]; }

  const TextList& list = test::textLists()[GetParam()];
  test::Host host;
  KoStyleStyle* style = StyleManager_createMutableStyle(host.manager);
};

INSTANTIATE_TEST_SUITE_P(EachList, MutableTextList, testing::Range<std::size_t>(0, 5),
                         [](const auto& each) { return test::textLists()[each.param].name; });

TEST_P(MutableTextList, IsSortedByUnit) {
  for (const char letter : {'b', 'a', 'c', 'B'}) EXPECT_TRUE(add(word(letter)));
  EXPECT_THAT(values(), ElementsAre(word('B'), word('a'), word('b'), word('c')));
  EXPECT_EQ(list.at(style, 4), nullptr);
  EXPECT_EQ(list.at(style, SIZE_MAX), nullptr);
}

TEST_P(MutableTextList, TakesATextOnceAndTellsCaseApart) {
  EXPECT_TRUE(add(word('x')));
  EXPECT_FALSE(add(word('x')));
  EXPECT_TRUE(add(word('X')));
  EXPECT_EQ(list.count(style), 2u);
}

TEST_P(MutableTextList, RefusesNullAndEmptyTexts) {
  EXPECT_FALSE(list.add(style, nullptr));
  EXPECT_FALSE(add(Text()));
  EXPECT_FALSE(list.remove(style, nullptr));
  EXPECT_FALSE(remove(Text()));
  EXPECT_EQ(list.count(style), 0u);
}

TEST_P(MutableTextList, DeletesATextOnce) {
  for (const char letter : {'a', 'b', 'c'}) add(word(letter));
  EXPECT_FALSE(remove(word('B')));
  EXPECT_FALSE(remove(word('b').substr(1)));
  EXPECT_FALSE(remove(word('b') + text("b")));
  EXPECT_TRUE(remove(word('b')));
  EXPECT_FALSE(remove(word('b')));
  EXPECT_THAT(values(), ElementsAre(word('a'), word('c')));
  EXPECT_TRUE(add(word('b')));
  EXPECT_THAT(values(), ElementsAre(word('a'), word('b'), word('c')));
}

TEST_P(MutableTextList, TakesBlanksAndLoneSurrogates) {
  const Text blanks(16, KoStyleChar(' '));
  const Text surrogates(16, KoStyleChar(0xD83D));
  EXPECT_TRUE(add(surrogates));
  EXPECT_TRUE(add(blanks));
  EXPECT_THAT(values(), ElementsAre(blanks, surrogates));
  EXPECT_TRUE(remove(surrogates));
}

TEST_P(MutableTextList, LeavesTheOtherListsAlone) {
  add(word('x'));
  StyleValue expected;
  expected.lists[GetParam()] = {word('x')};
  EXPECT_EQ(test::valueOf(style), expected);
}

TEST_P(MutableTextList, TakesOnlyTheLengthThatItAllows) {
  const bool exact = GetParam() == test::singerIDs;
  EXPECT_EQ(add(word('x').substr(1)), !exact);
  EXPECT_EQ(add(word('x') + text("y")), !exact);
  EXPECT_TRUE(add(word('x')));
  EXPECT_EQ(remove(word('x').substr(1)), !exact);
}

TEST_P(MutableTextList, SurvivesManyTextsInAnyOrder) {
  std::vector<Text> expected;
  for (int i = 0; i < 500; ++i) {
    const std::string digits = std::to_string(100 + i * 263 % 500);
    expected.push_back(text("text-number--" + digits));
    EXPECT_TRUE(add(expected.back()));
  }
  std::sort(expected.begin(), expected.end());
  EXPECT_EQ(values(), expected);
  for (std::size_t i = 0; i < 500; i += 2) EXPECT_TRUE(remove(expected[i]));
  for (std::size_t i = 500; i-- > 0;) {
    if (i % 2 == 0) expected.erase(expected.begin() + static_cast<std::ptrdiff_t>(i));
  }
  EXPECT_EQ(values(), expected);
}

TEST_F(MutableStyle, GoesWithItsEffectsWhenDestroyed) {
  KoStyleStyle* second = StyleManager_createMutableStyle(host.manager);
  MutableEffect_addParameter(MutableStyle_insertMidiEffect(style, 0, KOSTYLE_TEXT("E")),
                             KOSTYLE_TEXT("p"));
  MutableStyle_destroy(style);
  EXPECT_FALSE(StyleManager_hasMutableStyle(host.manager, style));
  EXPECT_TRUE(StyleManager_hasMutableStyle(host.manager, second));
}

}  // namespace
