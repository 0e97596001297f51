// A host in C++20: the ranges of the C++ layer are ranges, of the categories that they promise, and
// texts may be char8_t. Its argument is a directory of styles.
#include <algorithm>
#include <concepts>
#include <filesystem>
#include <iostream>
#include <kostyle/kostyle.hpp>
#include <ranges>
#include <string>

namespace {

using namespace kostyle;

template <class Range>
constexpr bool isView =
    std::ranges::view<Range>&& std::ranges::sized_range<Range>&& std::ranges::borrowed_range<Range>;
template <class Range>
constexpr bool isRandomAccess = isView<Range>&& std::ranges::random_access_range<Range>;
template <class Range>
constexpr bool isBidirectional =
    isView<Range>&& std::ranges::bidirectional_range<Range> && !std::ranges::random_access_range<Range>;

static_assert(isRandomAccess<AudioEffects> && isRandomAccess<MidiEffects> &&
              isRandomAccess<StoredParameters>);
static_assert(isRandomAccess<SystemCreationResults> && isRandomAccess<UserCreationResults>);
static_assert(isRandomAccess<decltype(UserStyle().languages())>);
static_assert(isRandomAccess<decltype(SystemStyle().genres())>);
static_assert(isBidirectional<SystemStyles> && isBidirectional<UserStyles>);
static_assert(isBidirectional<MutableAudioEffects> && isBidirectional<MutableMidiEffects>);
static_assert(isBidirectional<MutableParameters> && isBidirectional<decltype(MutableStyle().colors())>);

static_assert(std::totally_ordered<Text> && std::equality_comparable<UserStyle>);
static_assert(std::equality_comparable_with<Style, UserStyle>);

bool takesUtf8(MutableStyle style) {
  const std::u8string owned = u8"\u00E4";
  return style.addGenre(u8"\u20AC") && style.addGenre(owned) &&
         style.addGenre(std::u8string_view(u8"xy", 1)) && style.genres()[0] == "x" &&
         style.genres()[1] == "\xC3\xA4" && style.genres()[2] == "\xE2\x82\xAC";
}

bool servesRanges(SystemStyles styles) {
  const auto hasGenres = [](SystemStyle style) { return !style.genres().empty(); };
  std::size_t genres = 0;
  for (const SystemStyle style : styles | std::views::filter(hasGenres))
    genres += style.genres().size();
  const auto backwards = styles | std::views::reverse;
  const auto first = std::ranges::find(backwards, styles[0]);
  return genres > 0 && std::ranges::distance(styles) > 1 && std::ranges::next(first) == backwards.end();
}

}  // namespace

int main(int argc, char* argv[]) {
  if (argc != 2) return 2;
  const std::filesystem::path directory = argv[1];
  const auto manager = Manager::create(u8"C++20", directory, directory);
  if (!manager || !manager->readSystemStyles()) return 1;
  const bool works = takesUtf8(manager->createMutableStyle()) && servesRanges(manager->systemStyles());
  std::cout << (works ? "works\n" : "fails\n");
  return works ? 0 : 1;
}
