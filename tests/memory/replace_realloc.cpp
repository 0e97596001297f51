// Lets realloc fail as failing_allocations.h says. The linker puts it in the place of the system's.
#include <cstddef>

#include "memory/failing_allocations.h"

extern "C" void* __real_realloc(void* memory, std::size_t size);
extern "C" void* __wrap_realloc(void* memory, std::size_t size) {
  return test::failsOnTrial() ? nullptr : __real_realloc(memory, size);
}
