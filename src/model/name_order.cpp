#include "model/name_order.h"

#include <algorithm>
#include <functional>

namespace Tesk::KoStyle {
namespace {

// For names with one front.
int compareWhole(const NameKey& a, const NameKey& b) noexcept {
  return a.item->name.compare(b.item->name);
}

bool nameBefore(const NameKey& a, const NameKey& b) noexcept {
  return a.front != b.front ? a.front < b.front : compareWhole(a, b) < 0;
}

struct Before {
  bool operator()(const NameKey& a, const NameKey& b) const noexcept {
    if (a.front != b.front) return a.front < b.front;
    const int order = compareWhole(a, b);
    return order < 0 || (order == 0 && std::less<>()(a.item, b.item));
  }
};

bool haveOneName(const NameKey& a, const NameKey& b) noexcept {
  return a.front == b.front && a.item->name == b.item->name;
}

}  // namespace

void sortDistinct(std::vector<NameKey>& keys, std::size_t first) {
  const auto begin = keys.begin() + static_cast<std::ptrdiff_t>(first);
  const auto outOfOrder = [](const NameKey& a, const NameKey& b) { return !nameBefore(a, b); };
  if (std::adjacent_find(begin, keys.end(), outOfOrder) == keys.end()) return;
  std::sort(begin, keys.end(), Before());
  keys.erase(std::unique(begin, keys.end(), haveOneName), keys.end());
}

}  // namespace Tesk::KoStyle
