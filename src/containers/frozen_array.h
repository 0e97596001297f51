// FrozenArray: elements that are made once, in one block of exactly their size, and never move.
//
// An element's place is its address: the next one lies behind it, and whether an address is an
// element's is arithmetic with the ends of the block. Addresses are compared and never followed, so one
// whose object is gone may be asked about.
#pragma once

#include <cstddef>
#include <cstdint>
#include <new>
#include <utility>

namespace Tesk::KoStyle {

template <class Element>
class FrozenArray {
 public:
  FrozenArray() = default;

  /// Takes the memory of `capacity` elements, which emplace() then makes one by one.
  explicit FrozenArray(std::size_t capacity)
      : elements_(capacity == 0 ? nullptr
                                : static_cast<Element*>(::operator new(capacity * sizeof(Element)))) {}

  FrozenArray(FrozenArray&& other) noexcept { swap(other); }
  FrozenArray& operator=(FrozenArray other) noexcept {
    swap(other);
    return *this;
  }

  ~FrozenArray() {
    for (Element& element : *this) element.~Element();
    ::operator delete(elements_);
  }

  /// Makes the next element; there must be room for it.
  template <class... Arguments>
  Element& emplace(Arguments&&... arguments) {
    Element* const made = new (elements_ + size_) Element(std::forward<Arguments>(arguments)...);
    ++size_;
    return *made;
  }

  std::size_t size() const noexcept { return size_; }
  bool empty() const noexcept { return size_ == 0; }
  Element* begin() const noexcept { return elements_; }
  Element* end() const noexcept { return elements_ + size_; }

  /// The element at a position; null at or past the end.
  Element* at(std::size_t position) const noexcept {
    return position < size_ ? elements_ + position : nullptr;
  }

  /// Whether this is the address of an element, seen through its interface.
  template <class Interface>
  bool contains(const Interface* address) const noexcept {
    return holdsAddress(elements_, size_, address);
  }

  void swap(FrozenArray& other) noexcept {
    std::swap(elements_, other.elements_);
    std::swap(size_, other.size_);
  }

  /// contains() for a part of such an array.
  template <class Interface>
  static bool holdsAddress(const Element* first, std::size_t count, const Interface* address) noexcept {
    const auto offset =
        reinterpret_cast<std::uintptr_t>(address) - reinterpret_cast<std::uintptr_t>(first);
    const std::size_t index = offset / sizeof(Element);
    return index < count && static_cast<const Interface*>(first + index) == address;
  }

 private:
  Element* elements_ = nullptr;
  std::size_t size_ = 0;
};

}  // namespace Tesk::KoStyle
