// MemoryPool: memory for what one owner holds in many small blocks. They lie close to each other in a
// few chunks, which the system gives, and gets back when the pool goes.
//
// A block that is given back is used again for the next one of its size. There are few sizes, and they
// grow by steps, so that what is changed again and again takes at most a few times its largest size.
// Large blocks are the system's own, and go with the pool too.
#pragma once

#include <array>
#include <cstddef>
#include <new>

namespace Tesk::KoStyle {

class MemoryPool {
 public:
  /// How many sizes small blocks have.
  static constexpr std::size_t numSizes = 11;

  MemoryPool() = default;
  MemoryPool(const MemoryPool&) = delete;
  MemoryPool& operator=(const MemoryPool&) = delete;

  /// All blocks go with the pool.
  ~MemoryPool();

  /// Asks for the small blocks ahead, since they are about to be read; for none when they are so many
  /// that the first would be gone from the cache when the last arrive.
  void prefetch() const noexcept;

  /// From now on nothing need be given back, since the pool is about to go: giving back does nothing.
  void abandon() noexcept { isAbandoned_ = true; }
  bool isAbandoned() const noexcept { return isAbandoned_; }

  /// A block aligned for pointers. Throws std::bad_alloc.
  void* allocate(std::size_t bytes);

  /// Gives a block back; `bytes` is what it was asked for with.
  void deallocate(void* block, std::size_t bytes) noexcept;

 private:
  struct FreeBlock {
    FreeBlock* next;
  };
  struct Chunk {
    Chunk* next;
    std::size_t size;
  };

  // In front of a large block.
  struct LargeBlock {
    LargeBlock* previous;
    LargeBlock* next;
    std::size_t size;
    std::size_t unused;  // keeps the block aligned
  };

  void addChunk();
  void* allocateLarge(std::size_t bytes);
  void deallocateLarge(void* memory) noexcept;

  std::array<FreeBlock*, numSizes> free_ = {};  // by size
  std::byte* next_ = nullptr;                   // what is left of the newest chunk
  std::byte* end_ = nullptr;
  Chunk* chunks_ = nullptr;
  LargeBlock* large_ = nullptr;
  std::size_t total_ = 0;
  bool isAbandoned_ = false;
};

/// Whether what objects of a type hold is memory of their pool alone: when that is abandoned, they need
/// not be destroyed.
template <class Type>
inline constexpr bool goesWithPool = false;

/// Memory of a pool, or the system's where there is no pool.
template <class Type>
class PoolAllocator {
 public:
  using value_type = Type;

  explicit PoolAllocator(MemoryPool* pool) noexcept : pool_(pool) {}
  template <class Other>
  PoolAllocator(const PoolAllocator<Other>& other) noexcept : pool_(other.pool()) {}

  MemoryPool* pool() const noexcept { return pool_; }

  Type* allocate(std::size_t count) {
    static_assert(alignof(Type) <= alignof(void*));
    const std::size_t bytes = count * sizeof(Type);
    return static_cast<Type*>(pool_ ? pool_->allocate(bytes) : ::operator new(bytes));
  }
  void deallocate(Type* memory, std::size_t count) noexcept {
    if (pool_) return pool_->deallocate(memory, count * sizeof(Type));
    ::operator delete(memory);
  }

  friend bool operator==(PoolAllocator a, PoolAllocator b) noexcept { return a.pool_ == b.pool_; }
  friend bool operator!=(PoolAllocator a, PoolAllocator b) noexcept { return a.pool_ != b.pool_; }

 private:
  MemoryPool* pool_;
};

}  // namespace Tesk::KoStyle
