// PooledText: a text that does not change, in a block of a pool, or of the system where there is no
// pool. It takes one pointer itself, and the empty text takes no block.
#pragma once

#include <cstddef>
#include <new>
#include <utility>

#include "containers/memory_pool.h"
#include "platform/text.h"

namespace Tesk::KoStyle {

class PooledText {
 public:
  PooledText() = default;
  PooledText(MemoryPool* pool, TextView text) {
    if (text.empty()) return;
    Memory memory(pool);
    block_ = new (memory.allocate(bytesFor(text.size()))) Block{memory, text.size()};
    text.copy(block_->units(), text.size());
    block_->units()[text.size()] = 0;
  }
  PooledText(PooledText&& other) noexcept : block_(std::exchange(other.block_, nullptr)) {}
  PooledText& operator=(PooledText other) noexcept {
    std::swap(block_, other.block_);
    return *this;
  }
  ~PooledText() {
    if (!block_) return;
    Memory memory = block_->memory;
    memory.deallocate(reinterpret_cast<std::byte*>(block_), bytesFor(block_->size));
  }

  const Char* data() const noexcept { return block_ ? block_->units() : nothing; }
  operator TextView() const noexcept { return {data(), block_ ? block_->size : 0}; }

 private:
  using Memory = PoolAllocator<std::byte>;

  struct Block {
    Char* units() noexcept { return reinterpret_cast<Char*>(this + 1); }

    Memory memory;
    std::size_t size;
  };

  static constexpr Char nothing[1] = {};

  static std::size_t bytesFor(std::size_t size) noexcept {
    return sizeof(Block) + (size + 1) * sizeof(Char);
  }

  Block* block_ = nullptr;
};

template <>
inline constexpr bool goesWithPool<PooledText> = true;

}  // namespace Tesk::KoStyle
