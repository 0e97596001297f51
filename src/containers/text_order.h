// The first units of a text as one number, which sorts as they do. It decides most comparisons without
// a look at the text.
#pragma once

#include <cstddef>
#include <cstdint>

#include "platform/text.h"

namespace Tesk::KoStyle {

inline constexpr std::size_t unitsOfFront = sizeof(std::uint64_t) / sizeof(Char);

inline std::uint64_t frontOf(TextView text) noexcept {
  std::uint64_t front = 0;
  for (std::size_t i = 0; i < unitsOfFront; ++i)
    front = front << 16 | (i < text.size() ? static_cast<std::uint16_t>(text[i]) : 0U);
  return front;
}

}  // namespace Tesk::KoStyle
