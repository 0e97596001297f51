#include "heap.h"

#if defined(_WIN32)

#include <windows.h>

#include <stdexcept>
#include <vector>

namespace bench {
namespace {

std::size_t bytesInUse(HANDLE heap) {
  std::size_t bytes = 0;
  HeapLock(heap);
  PROCESS_HEAP_ENTRY entry = {};
  while (HeapWalk(heap, &entry)) {
    if (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) bytes += entry.cbData + entry.cbOverhead;
  }
  const bool complete = GetLastError() == ERROR_NO_MORE_ITEMS;
  HeapUnlock(heap);
  if (!complete) throw std::runtime_error("a heap cannot be walked");
  return bytes;
}

}  // namespace

std::size_t memoryInUse() {
  std::vector<HANDLE> heaps(GetProcessHeaps(0, nullptr));
  heaps.resize(GetProcessHeaps(static_cast<DWORD>(heaps.size()), heaps.data()));
  std::size_t bytes = 0;
  for (HANDLE heap : heaps) bytes += bytesInUse(heap);
  return bytes;
}

// What follows matters to reading only, which is not measured here.
void keepFreedMemory() {}
void warmHeap(std::size_t) {}
void chillHeap() {}

}  // namespace bench

#else

#include <malloc.h>

#include <climits>
#include <memory>
#include <vector>

namespace bench {

std::size_t memoryInUse() {
  const auto info = mallinfo2();
  return info.uordblks + info.hblkhd;
}

void keepFreedMemory() {
  constexpr int largestMmapThreshold = 32 << 20;
  mallopt(M_TRIM_THRESHOLD, INT_MAX);
  mallopt(M_MMAP_THRESHOLD, largestMmapThreshold);
}

void warmHeap(std::size_t bytes) {
  constexpr std::size_t block = 1U << 16;
  constexpr std::size_t page = 1U << 12;
  std::vector<std::unique_ptr<volatile char[]> > blocks;
  for (std::size_t taken = 0; taken < bytes; taken += block) {
    blocks.emplace_back(new volatile char[block]);
    for (std::size_t i = 0; i < block; i += page) blocks.back()[i] = 1;
  }
}

void chillHeap() { malloc_trim(0); }

}  // namespace bench

#endif
