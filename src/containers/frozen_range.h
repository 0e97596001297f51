// FrozenRange: elements beside each other in an array that never moves, seen and not owned.
//
// An element's place is its address: the next one lies behind it, and whether an address is an
// element's is arithmetic with the ends. Addresses are compared and never followed, so one whose object
// is gone may be asked about.
#pragma once

#include <cstddef>
#include <cstdint>

namespace Tesk::KoStyle {

template <class Element>
class FrozenRange {
 public:
  FrozenRange() = default;
  FrozenRange(Element* first, std::size_t count) noexcept : first_(first), count_(count) {}

  std::size_t size() const noexcept { return count_; }
  Element* begin() const noexcept { return first_; }
  Element* end() const noexcept { return first_ + count_; }

  /// The element at a position; null at or past the end.
  Element* at(std::size_t position) const noexcept {
    return position < count_ ? first_ + position : nullptr;
  }

  /// The element that stands `step` places from another of the range; null where there is none.
  Element* neighbour(const Element& element, std::ptrdiff_t step) const noexcept {
    return at(static_cast<std::size_t>(&element - first_ + step));
  }

  /// Whether this is the address of an element, seen through its interface.
  template <class Interface>
  bool contains(const Interface* address) const noexcept {
    const auto offset =
        reinterpret_cast<std::uintptr_t>(address) - reinterpret_cast<std::uintptr_t>(first_);
    const Element* const element = at(offset / sizeof(Element));
    return element && static_cast<const Interface*>(element) == address;
  }

 private:
  Element* first_ = nullptr;
  std::size_t count_ = 0;
};

}  // namespace Tesk::KoStyle
