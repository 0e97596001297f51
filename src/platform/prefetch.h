// Prefetching: memory that will soon be read is asked for ahead, so that reading it does not wait.
#pragma once

#include <cstddef>

namespace Tesk::KoStyle::platform {

/// A hint, which changes nothing but the time. The memory is of one object or block, and not empty.
inline void prefetch([[maybe_unused]] const void* memory, [[maybe_unused]] std::size_t size) noexcept {
#if defined(__GNUC__)
  constexpr std::size_t cacheLine = 64;
  const auto* const bytes = static_cast<const std::byte*>(memory);
  for (std::size_t at = 0; at < size; at += cacheLine) __builtin_prefetch(bytes + at);
  __builtin_prefetch(bytes + size - 1);
  asm volatile("");  // or GCC drops calls of functions that do nothing else
#endif
}

}  // namespace Tesk::KoStyle::platform
