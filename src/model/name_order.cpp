#include "model/name_order.h"

#include <algorithm>
#include <functional>

namespace Tesk::KoStyle {
namespace {

using Keys = NameKeys::iterator;

// Keys whose names are equal up to a depth.
struct Run {
  std::size_t first;
  std::size_t end;
  std::size_t depth;
};

TextView nameOf(const NameKey& key) noexcept { return key.item->name; }

bool nameBefore(const NameKey& a, const NameKey& b) noexcept {
  return a.front != b.front ? a.front < b.front : compareTexts(nameOf(a), nameOf(b)) < 0;
}

bool isEarlier(const NameKey& a, const NameKey& b) noexcept { return std::less<>()(a.item, b.item); }

bool frontBefore(const NameKey& a, const NameKey& b) noexcept { return a.front < b.front; }

bool haveOneName(const NameKey& a, const NameKey& b) noexcept {
  return a.front == b.front && equalTexts(nameOf(a), nameOf(b));
}

// The fronts become what stands at a depth, where all of the names go on.
void moveFronts(Keys first, Keys end, std::size_t depth) noexcept {
  for (auto key = first; key != end; ++key) key->front = frontOf(nameOf(*key).substr(depth));
}

// The end of the keys that have the front of the first one.
Keys endOfFront(Keys first, Keys end) noexcept {
  return std::find_if(first, end, [first](const NameKey& key) { return key.front != first->front; });
}

// Sorts names that differ in how often U+0000 stands at their ends alone, and puts the earliest item of
// each name before the others.
void sortBySize(Keys first, Keys end) noexcept {
  for (auto key = first; key != end; ++key) key->front = nameOf(*key).size();
  if (!std::is_sorted(first, end, frontBefore)) std::sort(first, end, frontBefore);
  for (Keys next; first != end; first = next) {
    next = endOfFront(first, end);
    std::iter_swap(first, std::min_element(first, next, isEarlier));
  }
}

// Sorts by the fronts alone, then what has one front by the units behind it, and so on: however long
// the names are and however much of them is equal, each unit is looked at in one round only.
void sortByName(NameKeys& keys, std::size_t first) {
  std::vector<Run> runs{{first, keys.size(), 0}};
  while (!runs.empty()) {
    const Run run = runs.back();
    runs.pop_back();
    auto key = keys.begin() + static_cast<std::ptrdiff_t>(run.first);
    const auto end = keys.begin() + static_cast<std::ptrdiff_t>(run.end);
    if (run.depth > 0) {
      // What ends here stands before what goes on, and need not be looked at again.
      const auto ends = [&run](const NameKey& each) { return nameOf(each).size() <= run.depth; };
      const auto goingOn = std::partition(key, end, ends);
      sortBySize(key, goingOn);
      moveFronts(goingOn, end, run.depth);
      key = goingOn;
    }
    if (!std::is_sorted(key, end, frontBefore)) std::sort(key, end, frontBefore);
    for (Keys next; key != end; key = next) {
      next = endOfFront(key, end);
      const auto index = [&keys](Keys at) { return static_cast<std::size_t>(at - keys.begin()); };
      if (next - key > 1) runs.push_back({index(key), index(next), run.depth + unitsOfFront});
    }
  }
}

// Inserts each key behind those before it that are not greater, which is quickest for a few.
void sortFew(Keys first, Keys end) noexcept {
  for (auto key = first; key != end; ++key) {
    const NameKey inserted = *key;
    auto place = key;
    for (; place != first && nameBefore(inserted, place[-1]); --place) *place = place[-1];
    *place = inserted;
  }
}

}  // namespace

void sortDistinct(NameKeys& keys, std::size_t first) {
  constexpr std::ptrdiff_t few = 16;
  const auto begin = keys.begin() + static_cast<std::ptrdiff_t>(first);
  const auto outOfOrder = [](const NameKey& a, const NameKey& b) { return !nameBefore(a, b); };
  if (std::adjacent_find(begin, keys.end(), outOfOrder) == keys.end()) return;
  if (keys.end() - begin <= few) {
    sortFew(begin, keys.end());
  } else {
    sortByName(keys, first);
  }
  keys.erase(std::unique(begin, keys.end(), haveOneName), keys.end());
}

}  // namespace Tesk::KoStyle
