/* The ranges of the C++ layer are ranges of C++20, of the categories that they promise. */
#include <algorithm>
#include <cstddef>
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

}  // namespace

std::size_t countNamed(ManagerView manager, const std::string& name);

std::size_t countNamed(ManagerView manager, const std::string& name) {
  const auto named = [&](UserStyle style) { return style.name() == name; };
  std::size_t count = 0;
  for (const UserStyle style : manager.userStyles() | std::views::filter(named))
    count += style.genres().size();
  const auto backwards = manager.userStyles() | std::views::reverse;
  return count + (std::ranges::find_if(backwards, named) == backwards.end() ? 0 : 1);
}
