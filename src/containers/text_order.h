// The order of texts: by unit, a front part before the whole, as TextView compares them, but by several
// units at a time.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>

#include "platform/text.h"

namespace Tesk::KoStyle {

inline constexpr std::size_t unitsOfFront = sizeof(std::uint64_t) / sizeof(Char);

/// The first units of a text as one number, which sorts as they do. It decides most comparisons without
/// a look at the text.
inline std::uint64_t frontOf(TextView text) noexcept {
  const auto unit = [text](std::size_t i) {
    return std::uint64_t{static_cast<std::uint16_t>(text[i])};
  };
  if (text.size() >= unitsOfFront) return unit(0) << 48 | unit(1) << 32 | unit(2) << 16 | unit(3);
  std::uint64_t front = 0;
  for (std::size_t i = 0; i < text.size(); ++i) front |= unit(i) << (48 - 16 * i);
  return front;
}

/// Less than, equal to or greater than zero as `a` stands before, with or behind `b`.
inline int compareTexts(TextView a, TextView b) noexcept {
  const std::size_t common = std::min(a.size(), b.size());
  std::size_t i = 0;
  while (common - i >= unitsOfFront && std::memcmp(&a[i], &b[i], sizeof(std::uint64_t)) == 0)
    i += unitsOfFront;
  while (i < common && a[i] == b[i]) ++i;
  if (i < common) return a[i] < b[i] ? -1 : 1;
  return a.size() == b.size() ? 0 : a.size() < b.size() ? -1 : 1;
}

inline bool equalTexts(TextView a, TextView b) noexcept {
  if (a.size() != b.size()) return false;
  return a.empty() || std::memcmp(a.data(), b.data(), a.size() * sizeof(Char)) == 0;
}

}  // namespace Tesk::KoStyle
