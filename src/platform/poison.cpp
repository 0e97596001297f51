#include "platform/poison.h"

#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define __SANITIZE_ADDRESS__ 1  // as GCC says it
#endif
#endif

#if defined(__SANITIZE_ADDRESS__)

#include <sanitizer/asan_interface.h>

namespace Tesk::KoStyle::platform {

void poison(const void* memory, std::size_t size) noexcept { ASAN_POISON_MEMORY_REGION(memory, size); }
void unpoison(const void* memory, std::size_t size) noexcept {
  ASAN_UNPOISON_MEMORY_REGION(memory, size);
}

}  // namespace Tesk::KoStyle::platform

#else

namespace Tesk::KoStyle::platform {

void poison(const void*, std::size_t) noexcept {}
void unpoison(const void*, std::size_t) noexcept {}

}  // namespace Tesk::KoStyle::platform

#endif
