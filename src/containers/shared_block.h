// SharedBlock: memory that several owners use and the last of them gives back. SharedSpan: elements in
// such a block. The owners belong to one thread at a time.
#pragma once

#include <algorithm>
#include <cstddef>
#include <new>
#include <utility>

namespace Tesk::KoStyle {

class SharedBlock {
 public:
  SharedBlock() = default;
  explicit SharedBlock(std::size_t bytes)
      : header_(new (::operator new(sizeof(Header) + bytes)) Header) {}
  SharedBlock(const SharedBlock& other) noexcept : header_(other.header_) {
    if (header_) ++header_->owners;
  }
  SharedBlock(SharedBlock&& other) noexcept : header_(std::exchange(other.header_, nullptr)) {}
  SharedBlock& operator=(SharedBlock other) noexcept {
    std::swap(header_, other.header_);
    return *this;
  }
  ~SharedBlock() {
    if (header_ && --header_->owners == 0) ::operator delete(header_);
  }

  /// The bytes, aligned for pointers.
  void* memory() const noexcept { return header_ + 1; }

 private:
  struct Header {
    std::size_t owners = 1;
  };

  Header* header_ = nullptr;
};

/// Elements that live as long as a block, in which they stand; it destroys none. A copy has the same
/// elements; what was moved from has none.
template <class Element>
class SharedSpan {
 public:
  SharedSpan() = default;
  SharedSpan(SharedBlock block, const Element* first, std::size_t size) noexcept
      : block_(std::move(block)), first_(first), size_(size) {}
  SharedSpan(const SharedSpan&) = default;
  SharedSpan(SharedSpan&& other) noexcept
      : block_(std::move(other.block_)),
        first_(std::exchange(other.first_, nullptr)),
        size_(std::exchange(other.size_, 0)) {}
  SharedSpan& operator=(SharedSpan other) noexcept {
    std::swap(block_, other.block_);
    std::swap(first_, other.first_);
    std::swap(size_, other.size_);
    return *this;
  }
  ~SharedSpan() = default;

  const Element* data() const noexcept { return first_; }
  std::size_t size() const noexcept { return size_; }

  /// Leaves out the elements from a number on.
  void truncate(std::size_t size) noexcept { size_ = std::min(size_, size); }

 private:
  SharedBlock block_;
  const Element* first_ = nullptr;
  std::size_t size_ = 0;
};

}  // namespace Tesk::KoStyle
