// SortedTexts: texts without duplicates in ascending order, found by position or by value in
// logarithmic time. A text stays where it is until it is erased.
#pragma once

#include <cstddef>

#include "containers/owned_sequence.h"
#include "platform/text.h"

namespace Tesk::KoStyle {

class SortedTexts {
  struct Itself {
    TextView operator()(const Text& text) const noexcept { return text; }
  };
  using Sequence = OwnedSequence<Text, Text, Itself>;

 public:
  auto begin() const noexcept { return texts_.begin(); }
  auto end() const noexcept { return texts_.end(); }

  std::size_t size() const noexcept { return texts_.size(); }
  bool empty() const noexcept { return texts_.empty(); }

  /// The text at a position; null at or past the end.
  const Text* at(std::size_t position) const noexcept { return texts_.at(position); }

  /// Adds a text; false when it is here already.
  bool insert(TextView text) {
    if (texts_.findKey(text)) return false;
    texts_.insertByKey(texts_.makeNode(text));
    return true;
  }

  /// Erases a text; false when it is not here.
  bool erase(TextView text) noexcept {
    const Text* const found = texts_.findKey(text);
    return found && texts_.destroy(found);
  }

 private:
  Sequence texts_;
};

}  // namespace Tesk::KoStyle
