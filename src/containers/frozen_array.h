// FrozenArray: elements that are made once, in one block of exactly their size, and never move.
#pragma once

#include <cstddef>
#include <new>
#include <utility>

#include "containers/frozen_range.h"

namespace Tesk::KoStyle {

template <class Element>
class FrozenArray {
 public:
  FrozenArray() = default;

  /// Takes the memory of `capacity` elements, which emplace() then makes one by one.
  explicit FrozenArray(std::size_t capacity)
      : range_(
            capacity == 0 ? nullptr : static_cast<Element*>(::operator new(capacity * sizeof(Element))),
            0) {}

  FrozenArray(FrozenArray&& other) noexcept : range_(std::exchange(other.range_, {})) {}
  FrozenArray& operator=(FrozenArray other) noexcept {
    std::swap(range_, other.range_);
    return *this;
  }

  ~FrozenArray() {
    for (Element& element : range_) element.~Element();
    ::operator delete(range_.begin());
  }

  /// Makes the next element; there must be room for it.
  template <class... Arguments>
  Element& emplace(Arguments&&... arguments) {
    auto* const made = new (range_.end()) Element(std::forward<Arguments>(arguments)...);
    range_ = {range_.begin(), range_.size() + 1};
    return *made;
  }

  const FrozenRange<Element>& range() const noexcept { return range_; }
  std::size_t size() const noexcept { return range_.size(); }
  Element* begin() const noexcept { return range_.begin(); }
  Element* end() const noexcept { return range_.end(); }
  Element* at(std::size_t position) const noexcept { return range_.at(position); }
  template <class Interface>
  bool contains(const Interface* address) const noexcept {
    return range_.contains(address);
  }

 private:
  FrozenRange<Element> range_;
};

}  // namespace Tesk::KoStyle
