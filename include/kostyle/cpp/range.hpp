/*
 * KoStyle for C++: ranges over what an object of the library owns, for range-for, the standard algorithms
 * and, in C++20, std::ranges.
 *
 * A range is a view: it holds the handle of the owner and calls the C functions, nothing more. It is valid
 * while the owner lives; what is added or taken out is seen at once. Iterators do not need their range. An
 * element that goes takes its iterators with it; adding or taking out others spoils those of an IndexRange,
 * which counts, but not those of a LinkedRange, which goes by neighbours.
 *
 * An iterator gives views and texts by value, so it has no references to elements. In all else it is of the
 * category that it names.
 */
#ifndef KOSTYLE_CPP_RANGE_HPP
#define KOSTYLE_CPP_RANGE_HPP

#include <cstddef>
#include <cstdint>
#include <iterator>

#if __cplusplus >= 202002L || defined(_MSVC_LANG) && _MSVC_LANG >= 202002L
#include <ranges>
#endif

namespace kostyle {
namespace detail {

// What `->` of an iterator gives, since there is no element to point to.
template <class Value>
struct Arrow {
  Value value;
  const Value* operator->() const noexcept { return &value; }
};

// SIZE_MAX is the count of a null handle.
inline std::size_t sizeOf(std::size_t count) noexcept { return count == SIZE_MAX ? 0 : count; }

template <class List, class Category>
class IndexIterator {
 public:
  using iterator_category = Category;
  using value_type = typename List::Value;
  using difference_type = std::ptrdiff_t;
  using pointer = Arrow<value_type>;
  using reference = value_type;

  IndexIterator() noexcept = default;
  IndexIterator(typename List::Owner* owner, std::size_t index) noexcept
      : owner_(owner), index_(index) {}

  reference operator*() const noexcept { return List::at(owner_, index_); }
  pointer operator->() const noexcept { return {**this}; }
  reference operator[](difference_type step) const noexcept { return *(*this + step); }

  IndexIterator& operator++() noexcept { return *this += 1; }
  IndexIterator& operator--() noexcept { return *this -= 1; }
  IndexIterator operator++(int) noexcept {
    const IndexIterator before = *this;
    ++*this;
    return before;
  }
  IndexIterator operator--(int) noexcept {
    const IndexIterator before = *this;
    --*this;
    return before;
  }
  IndexIterator& operator+=(difference_type step) noexcept {
    index_ += static_cast<std::size_t>(step);
    return *this;
  }
  IndexIterator& operator-=(difference_type step) noexcept { return *this += -step; }

  friend IndexIterator operator+(IndexIterator i, difference_type step) noexcept { return i += step; }
  friend IndexIterator operator+(difference_type step, IndexIterator i) noexcept { return i += step; }
  friend IndexIterator operator-(IndexIterator i, difference_type step) noexcept { return i -= step; }
  friend difference_type operator-(const IndexIterator& a, const IndexIterator& b) noexcept {
    return static_cast<difference_type>(a.index_ - b.index_);
  }
  friend bool operator==(const IndexIterator& a, const IndexIterator& b) noexcept {
    return a.index_ == b.index_;
  }
  friend bool operator!=(const IndexIterator& a, const IndexIterator& b) noexcept { return !(a == b); }
  friend bool operator<(const IndexIterator& a, const IndexIterator& b) noexcept {
    return a.index_ < b.index_;
  }
  friend bool operator>(const IndexIterator& a, const IndexIterator& b) noexcept { return b < a; }
  friend bool operator<=(const IndexIterator& a, const IndexIterator& b) noexcept { return !(b < a); }
  friend bool operator>=(const IndexIterator& a, const IndexIterator& b) noexcept { return !(a < b); }

 private:
  typename List::Owner* owner_ = nullptr;
  std::size_t index_ = 0;
};

template <class List>
class LinkedIterator {
 public:
  using iterator_category = std::bidirectional_iterator_tag;
  using value_type = typename List::Value;
  using difference_type = std::ptrdiff_t;
  using pointer = Arrow<value_type>;
  using reference = value_type;

  LinkedIterator() noexcept = default;
  LinkedIterator(typename List::Owner* owner, value_type element) noexcept
      : owner_(owner), element_(element) {}

  reference operator*() const noexcept { return element_; }
  pointer operator->() const noexcept { return {element_}; }

  LinkedIterator& operator++() noexcept {
    element_ = element_.next();
    return *this;
  }
  LinkedIterator& operator--() noexcept {
    element_ = element_ ? element_.previous() : List::at(owner_, sizeOf(List::count(owner_)) - 1);
    return *this;
  }
  LinkedIterator operator++(int) noexcept {
    const LinkedIterator before = *this;
    ++*this;
    return before;
  }
  LinkedIterator operator--(int) noexcept {
    const LinkedIterator before = *this;
    --*this;
    return before;
  }

  friend bool operator==(const LinkedIterator& a, const LinkedIterator& b) noexcept {
    return a.element_ == b.element_;
  }
  friend bool operator!=(const LinkedIterator& a, const LinkedIterator& b) noexcept {
    return !(a == b);
  }

 private:
  typename List::Owner* owner_ = nullptr;
  value_type element_;
};

}  // namespace detail

/**
 * Elements that are found by index. Category is std::random_access_iterator_tag where that takes constant
 * time, and std::bidirectional_iterator_tag where it takes logarithmic time, as in mutable styles.
 */
template <class List, class Category>
class IndexRange {
 public:
  /** What an iterator gives: a view, a Text, or a number for a language. */
  using value_type = typename List::Value;
  /**
   * A standard iterator, of the category Category. It gives elements by value; `->`
   * reaches what such a value has. Iterators of one range compare with each other.
   */
  using iterator = detail::IndexIterator<List, Category>;
  /** As `iterator`: elements are views and texts, which no iterator changes. */
  using const_iterator = iterator;

  /** Empty. */
  IndexRange() noexcept = default;
  /** Of the handle of the style, effect or manager that owns the elements; of NULL it is empty. */
  explicit IndexRange(typename List::Owner* owner) noexcept : owner_(owner) {}

  /** To the first element. */
  iterator begin() const noexcept { return {owner_, 0}; }
  /** Behind the last element; not to be dereferenced. */
  iterator end() const noexcept { return {owner_, size()}; }
  /** The number of elements. */
  std::size_t size() const noexcept { return detail::sizeOf(List::count(owner_)); }
  /** Whether there are none. */
  bool empty() const noexcept { return size() == 0; }

  /**
   * The element at a zero-based index; an empty text or view, or -1 for a language, at or past the end.
   */
  value_type operator[](std::size_t index) const noexcept { return List::at(owner_, index); }

 private:
  typename List::Owner* owner_ = nullptr;
};

/**
 * Elements that know their neighbours, in sequences that change. Walking goes by these; size() takes
 * constant time, an index logarithmic time.
 */
template <class List>
class LinkedRange {
 public:
  /** What an iterator gives: a view. */
  using value_type = typename List::Value;
  /**
   * A standard iterator, of the category std::bidirectional_iterator_tag. It gives elements by value; `->`
   * reaches what such a value has. Iterators of one range compare with each other.
   */
  using iterator = detail::LinkedIterator<List>;
  /** As `iterator`: elements are views, which no iterator changes. */
  using const_iterator = iterator;

  /** Empty. */
  LinkedRange() noexcept = default;
  /** Of the handle of the style, effect or manager that owns the elements; of NULL it is empty. */
  explicit LinkedRange(typename List::Owner* owner) noexcept : owner_(owner) {}

  /** To the first element. */
  iterator begin() const noexcept { return {owner_, List::at(owner_, 0)}; }
  /** Behind the last element; not to be dereferenced. */
  iterator end() const noexcept { return {owner_, value_type()}; }
  /** The number of elements. */
  std::size_t size() const noexcept { return detail::sizeOf(List::count(owner_)); }
  /** Whether there are none. */
  bool empty() const noexcept { return size() == 0; }

  /** The element at a zero-based index; an empty view at or past the end. */
  value_type operator[](std::size_t index) const noexcept { return List::at(owner_, index); }

 private:
  typename List::Owner* owner_ = nullptr;
};

}  // namespace kostyle

#if defined(__cpp_lib_ranges)
template <class List, class Category>
inline constexpr bool std::ranges::enable_view<kostyle::IndexRange<List, Category>> = true;
template <class List>
inline constexpr bool std::ranges::enable_view<kostyle::LinkedRange<List>> = true;
template <class List, class Category>
inline constexpr bool std::ranges::enable_borrowed_range<kostyle::IndexRange<List, Category>> = true;
template <class List>
inline constexpr bool std::ranges::enable_borrowed_range<kostyle::LinkedRange<List>> = true;
#endif

#endif
