#include "memory_in_use.h"

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

void releaseFreeMemory() {}

}  // namespace bench

#else

#include <malloc.h>

namespace bench {

std::size_t memoryInUse() {
  const auto info = mallinfo2();
  return info.uordblks + info.hblkhd;
}

void releaseFreeMemory() { malloc_trim(0); }

}  // namespace bench

#endif
