// Poison: memory that is ours but holds no object. Under AddressSanitizer whoever touches it is
// reported; otherwise nothing is done.
#pragma once

#include <cstddef>

namespace Tesk::KoStyle::platform {

void poison(const void* memory, std::size_t size) noexcept;
void unpoison(const void* memory, std::size_t size) noexcept;

}  // namespace Tesk::KoStyle::platform
