// The memory that the process has in use.
#pragma once

#include <cstddef>

namespace bench {

/// Bytes in blocks that were allocated and not freed.
std::size_t memoryInUse();

/// Gives freed memory back to the system, so that every measurement starts with an equal heap.
void releaseFreeMemory();

}  // namespace bench
