// SortedTexts: texts without duplicates in ascending order, found by position or by value in
// logarithmic time. A text stays where it is until it is erased.
#pragma once

#include <cstddef>

#include "containers/owned_sequence.h"
#include "containers/pooled_text.h"
#include "platform/text.h"

namespace Tesk::KoStyle {

class SortedTexts {
  struct Itself {
    TextView operator()(const PooledText& text) const noexcept { return text; }
  };
  using Sequence = OwnedSequence<PooledText, PooledText, Itself>;

 public:
  explicit SortedTexts(MemoryPool* pool = nullptr) noexcept : texts_(pool) {}

  auto begin() const noexcept { return texts_.begin(); }
  auto end() const noexcept { return texts_.end(); }

  std::size_t size() const noexcept { return texts_.size(); }
  bool empty() const noexcept { return texts_.empty(); }

  /// The text at a position; null at or past the end.
  const PooledText* at(std::size_t position) const noexcept { return texts_.at(position); }

  /// Adds a text; false when it is here already.
  bool insert(TextView text) {
    if (texts_.findKey(text)) return false;
    texts_.insertByKey(texts_.makeNode(texts_.pool(), text));
    return true;
  }

  /// Erases a text; false when it is not here.
  bool erase(TextView text) noexcept {
    const PooledText* const found = texts_.findKey(text);
    return found && texts_.destroy(found);
  }

 private:
  Sequence texts_;
};

}  // namespace Tesk::KoStyle
