// Sorting by name: ascending, the first of equal names only.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "containers/text_order.h"
#include "platform/text.h"

namespace Tesk::KoStyle {

struct Named {
  TextView name;
};

struct NameKey {
  NameKey() = default;
  explicit NameKey(const Named& named) noexcept : front(frontOf(named.name)), item(&named) {}

  std::uint64_t front = 0;
  const Named* item = nullptr;
};

using NameKeys = std::vector<NameKey>;

/// Appends the keys of items.
template <class Iterator>
void addKeys(NameKeys& keys, Iterator first, Iterator end) {
  std::size_t place = keys.size();
  keys.resize(place + static_cast<std::size_t>(end - first));
  for (; first != end; ++first) keys[place++] = NameKey(*first);
}

/// Sorts the keys from `first` on by name and drops those whose name an item before them has. Items
/// must stand in memory in the order in which they came.
void sortDistinct(NameKeys& keys, std::size_t first);

}  // namespace Tesk::KoStyle
