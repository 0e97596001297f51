// Makes a program allocate through failing_allocations.h. Compiled by itself, so that no
// compiler inlines one half of a pair.
#include <cstdlib>
#include <new>

#include "memory/failing_allocations.h"

void* operator new(std::size_t size) { return test::allocateOnTrial(size); }
void* operator new[](std::size_t size) { return test::allocateOnTrial(size); }
void* operator new(std::size_t size, const std::nothrow_t&) noexcept try {
  return test::allocateOnTrial(size);
} catch (const std::bad_alloc&) {
  return nullptr;
}
void* operator new[](std::size_t size, const std::nothrow_t& nothrow) noexcept {
  return operator new(size, nothrow);
}
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete[](void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
void operator delete[](void* memory, std::size_t) noexcept { std::free(memory); }
void operator delete(void* memory, const std::nothrow_t&) noexcept { std::free(memory); }
void operator delete[](void* memory, const std::nothrow_t&) noexcept { std::free(memory); }
