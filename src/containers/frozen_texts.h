// FrozenTexts: texts that are copied once into one block of exactly their size, in the order given.
#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <new>
#include <utility>

#include "containers/text_block.h"
#include "platform/text.h"

namespace Tesk::KoStyle {

class FrozenTexts {
 public:
  FrozenTexts() = default;

  /// Copies the texts of a range.
  template <class Range>
  explicit FrozenTexts(const Range& texts) : views_(allocate(texts)) {
    auto* units = reinterpret_cast<Char*>(views_.get() + texts.size());
    for (const auto& text : texts) new (&views_[size_++]) TextView(appendText(units, text));
  }

  FrozenTexts(FrozenTexts&& other) noexcept { swap(other); }
  FrozenTexts& operator=(FrozenTexts other) noexcept {
    swap(other);
    return *this;
  }

  std::size_t size() const noexcept { return size_; }
  bool empty() const noexcept { return size_ == 0; }
  const TextView* begin() const noexcept { return views_.get(); }
  const TextView* end() const noexcept { return views_.get() + size_; }

  /// The text at a position, with U+0000 behind it; null at or past the end.
  const TextView* at(std::size_t position) const noexcept {
    return position < size_ ? &views_[position] : nullptr;
  }

  friend bool operator==(const FrozenTexts& a, const FrozenTexts& b) noexcept {
    return std::equal(a.begin(), a.end(), b.begin(), b.end());
  }

  void swap(FrozenTexts& other) noexcept {
    views_.swap(other.views_);
    std::swap(size_, other.size_);
  }

 private:
  struct Release {
    void operator()(TextView* block) const noexcept { ::operator delete(block); }
  };
  using Block = std::unique_ptr<TextView[], Release>;

  // Room for the views, and behind them for the units.
  template <class Range>
  static Block allocate(const Range& texts) {
    if (texts.empty()) return nullptr;
    std::size_t units = 0;
    for (const auto& text : texts) units += unitsOf(text);
    const std::size_t bytes = texts.size() * sizeof(TextView) + units * sizeof(Char);
    return Block(static_cast<TextView*>(::operator new(bytes)));
  }

  Block views_;
  std::size_t size_ = 0;
};

}  // namespace Tesk::KoStyle
