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
  explicit NameKey(const Named& named) noexcept : front(frontOf(named.name)), item(&named) {}

  std::uint64_t front;
  const Named* item;
};

/// Sorts the keys from `first` on by name and drops those whose name an item before them has. Items
/// must stand in memory in the order in which they came.
void sortDistinct(std::vector<NameKey>& keys, std::size_t first);

}  // namespace Tesk::KoStyle
