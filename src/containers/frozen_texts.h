// Frozen texts: copied once into a block of exactly their size, each with U+0000 behind it. Single ones
// and lists may lie in one block, which goes with the last of them.
#pragma once

#include <algorithm>
#include <cstddef>
#include <new>
#include <utility>

#include "containers/shared_block.h"
#include "platform/text.h"

namespace Tesk::KoStyle {

/// The units that a text takes in a block.
inline std::size_t unitsOf(TextView text) noexcept { return text.size() + 1; }

/// Copies a text to `end` and moves `end` behind it. Gives the copy.
inline TextView appendText(Char*& end, TextView text) noexcept {
  Char* const copy = end;
  text.copy(copy, text.size());
  copy[text.size()] = 0;
  end += unitsOf(text);
  return {copy, text.size()};
}

/// A single text.
class FrozenText {
 public:
  FrozenText() = default;

  /// A copy in a block of its own.
  explicit FrozenText(TextView text);

  const Char* c_str() const noexcept { return units_.data() ? units_.data() : nothing; }
  operator TextView() const noexcept { return {c_str(), units_.size()}; }
  bool empty() const noexcept { return units_.size() == 0; }

  /// Ends the text before a unit of it, without moving it.
  void truncate(std::size_t size) noexcept { units_.truncate(size); }

  friend bool operator==(const FrozenText& a, const FrozenText& b) noexcept {
    return TextView(a) == TextView(b);
  }

 private:
  friend class FrozenTextBlock;
  FrozenText(SharedBlock block, TextView text) noexcept
      : units_(std::move(block), text.data(), text.size()) {}

  static constexpr Char nothing[1] = {};

  SharedSpan<Char> units_;
};

/// A list of texts, in the order given.
class FrozenTexts {
 public:
  FrozenTexts() = default;

  /// Copies of the texts of a range, in a block of their own.
  template <class Range>
  explicit FrozenTexts(const Range& texts);

  std::size_t size() const noexcept { return texts_.size(); }
  bool empty() const noexcept { return size() == 0; }
  const TextView* begin() const noexcept { return texts_.data(); }
  const TextView* end() const noexcept { return texts_.data() + size(); }

  /// The text at a position; null at or past the end.
  const TextView* at(std::size_t position) const noexcept {
    return position < size() ? begin() + position : nullptr;
  }

  friend bool operator==(const FrozenTexts& a, const FrozenTexts& b) noexcept {
    return std::equal(a.begin(), a.end(), b.begin(), b.end());
  }

 private:
  friend class FrozenTextBlock;
  FrozenTexts(SharedBlock block, const TextView* texts, std::size_t size) noexcept
      : texts_(std::move(block), texts, size) {}

  SharedSpan<TextView> texts_;
};

/// Makes texts and lists in one block.
class FrozenTextBlock {
 public:
  /// Room for so many texts in lists, and for the units of these and of single texts.
  FrozenTextBlock(std::size_t listed, std::size_t units)
      : block_(listed * sizeof(TextView) + units * sizeof(Char)),
        list_(static_cast<TextView*>(block_.memory())),
        end_(reinterpret_cast<Char*>(list_ + listed)) {}

  FrozenText add(TextView text) noexcept { return {block_, appendText(end_, text)}; }

  template <class Range>
  FrozenTexts addList(const Range& texts) noexcept {
    const TextView* const first = list_;
    for (const auto& text : texts) new (list_++) TextView(appendText(end_, text));
    return {block_, first, static_cast<std::size_t>(list_ - first)};
  }

 private:
  SharedBlock block_;
  TextView* list_;
  Char* end_;
};

inline FrozenText::FrozenText(TextView text)
    : FrozenText(FrozenTextBlock(0, unitsOf(text)).add(text)) {}

template <class Range>
FrozenTexts::FrozenTexts(const Range& texts) {
  if (texts.empty()) return;
  std::size_t units = 0;
  for (const auto& text : texts) units += unitsOf(text);
  *this = FrozenTextBlock(texts.size(), units).addList(texts);
}

}  // namespace Tesk::KoStyle
