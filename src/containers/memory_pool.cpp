#include "containers/memory_pool.h"

#include <algorithm>
#include <cstdint>

#include "platform/poison.h"
#include "platform/prefetch.h"

namespace Tesk::KoStyle {

using platform::poison;
using platform::unpoison;

namespace {

constexpr std::array<std::size_t, MemoryPool::numSizes> sizes = {16,  24,  32,  48,  64, 96,
                                                                 128, 192, 256, 384, 512};
constexpr std::size_t largest = sizes[sizes.size() - 1];

// By the number of pointers that a block must have room for, the number of the least such size.
constexpr auto sizeNumbers = [] {
  std::array<std::uint8_t, largest / sizeof(void*) + 1> numbers = {};
  std::uint8_t number = 0;
  for (std::size_t pointers = 0; pointers < numbers.size(); ++pointers) {
    if (pointers * sizeof(void*) > sizes[number]) ++number;
    numbers[pointers] = number;
  }
  return numbers;
}();

std::size_t sizeNumber(std::size_t bytes) noexcept {
  return sizeNumbers[(bytes + sizeof(void*) - 1) / sizeof(void*)];
}

}  // namespace

MemoryPool::~MemoryPool() {
  while (Chunk* const chunk = chunks_) {
    chunks_ = chunk->next;
    unpoison(chunk + 1, chunk->size);
    ::operator delete(chunk);
  }
  while (LargeBlock* const block = large_) {
    large_ = block->next;
    unpoison(block + 1, block->size);
    ::operator delete(block);
  }
}

void MemoryPool::prefetch() const noexcept {
  constexpr std::size_t mostAhead = 64 << 10;
  if (total_ > mostAhead) return;
  for (const Chunk* chunk = chunks_; chunk; chunk = chunk->next)
    platform::prefetch(chunk + 1, chunk->size);
}

void* MemoryPool::allocateLarge(std::size_t bytes) {
  auto* const block =
      new (::operator new(sizeof(LargeBlock) + bytes)) LargeBlock{nullptr, large_, bytes, 0};
  if (large_) large_->previous = block;
  large_ = block;
  return block + 1;
}

void MemoryPool::deallocateLarge(void* memory) noexcept {
  LargeBlock* const block = static_cast<LargeBlock*>(memory) - 1;
  if (block->next) block->next->previous = block->previous;
  (block->previous ? block->previous->next : large_) = block->next;
  ::operator delete(block);
}

void* MemoryPool::allocate(std::size_t bytes) {
  if (bytes > largest) return allocateLarge(bytes);
  const std::size_t size = sizeNumber(bytes);
  FreeBlock*& free = free_[size];
  if (FreeBlock* const block = free) {
    unpoison(block, std::max(bytes, sizeof(FreeBlock)));
    free = block->next;
    return block;
  }
  if (static_cast<std::size_t>(end_ - next_) < sizes[size]) addChunk();
  std::byte* const block = next_;
  next_ += sizes[size];
  unpoison(block, bytes);
  return block;
}

void MemoryPool::deallocate(void* block, std::size_t bytes) noexcept {
  if (isAbandoned_) return;
  if (bytes > largest) return deallocateLarge(block);
  const std::size_t size = sizeNumber(bytes);
  FreeBlock*& free = free_[size];
  unpoison(block, sizeof(FreeBlock));
  free = new (block) FreeBlock{free};
  poison(block, sizes[size]);
}

// The first ones are small, since many a style holds little; then half as much as there is.
void MemoryPool::addChunk() {
  constexpr std::size_t smallest = 1024;
  const std::size_t size = std::max(smallest, total_ / 2 / alignof(Chunk) * alignof(Chunk));
  auto* const chunk = new (::operator new(sizeof(Chunk) + size)) Chunk{chunks_, size};
  chunks_ = chunk;
  next_ = reinterpret_cast<std::byte*>(chunk + 1);
  end_ = next_ + size;
  total_ += size;
  poison(next_, size);
}

}  // namespace Tesk::KoStyle
