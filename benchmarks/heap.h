// The process's heap: how much of it is in use, and the state in which a measurement finds it.
#pragma once

#include <cstddef>

namespace bench {

/// Bytes in blocks that were allocated and not freed.
std::size_t memoryInUse();

/// From now on freed memory stays with the process, as in a host that has run for a while.
void keepFreedMemory();

/// Sees to it that as many bytes can be had without asking the system for pages.
void warmHeap(std::size_t bytes);

/// Gives freed memory back to the system, as if the process had just started.
void chillHeap();

}  // namespace bench
