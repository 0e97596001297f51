// SharedBlock: memory that several owners use and the last of them gives back. The owners belong to one
// thread at a time.
#pragma once

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

}  // namespace Tesk::KoStyle
