// FrozenArray: elements that are made once, one by one, in memory of exactly their size, and never
// move. Several arrays may lie in one block, which is given back without a look at them.
#pragma once

#include <cstddef>
#include <memory>
#include <new>
#include <type_traits>
#include <utility>

#include "containers/frozen_range.h"

namespace Tesk::KoStyle {

/// Takes the memory of a block piece by piece. What needs more alignment goes first.
class FrozenBlock {
 public:
  FrozenBlock() = default;
  explicit FrozenBlock(std::size_t bytes) : memory_(new std::byte[bytes]), end_(memory_.get()) {}

  template <class Element>
  Element* take(std::size_t count) noexcept {
    static_assert(std::is_trivially_destructible_v<Element>);
    static_assert(alignof(Element) <= __STDCPP_DEFAULT_NEW_ALIGNMENT__);
    auto* const first = reinterpret_cast<Element*>(end_);
    end_ += count * sizeof(Element);
    return first;
  }

  void swap(FrozenBlock& other) noexcept {
    memory_.swap(other.memory_);
    std::swap(end_, other.end_);
  }

 private:
  std::unique_ptr<std::byte[]> memory_;
  std::byte* end_ = nullptr;
};

/// Makes elements in memory that is large enough.
template <class Element>
class FrozenArray {
 public:
  explicit FrozenArray(Element* memory) noexcept : first_(memory), end_(memory) {}

  template <class... Arguments>
  Element& emplace(Arguments&&... arguments) noexcept {
    static_assert(std::is_nothrow_constructible_v<Element, Arguments...>);
    return *new (end_++) Element(std::forward<Arguments>(arguments)...);
  }

  Element* end() const noexcept { return end_; }
  FrozenRange<Element> range() const noexcept {
    return {first_, static_cast<std::size_t>(end_ - first_)};
  }

 private:
  Element* first_;
  Element* end_;
};

}  // namespace Tesk::KoStyle
