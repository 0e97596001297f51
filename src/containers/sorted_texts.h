// SortedSet: values without duplicates in ascending order, found by position or by value in
// logarithmic time. A value keeps its address until it is erased.
#pragma once

#include <cstddef>
#include <memory>
#include <utility>

#include "containers/rank_tree.h"

namespace Tesk::KoStyle {

template <class Value>
class SortedSet {
 public:
  SortedSet() = default;
  SortedSet(const SortedSet&) = delete;
  SortedSet& operator=(const SortedSet&) = delete;
  ~SortedSet() { clear(); }

  class Iterator {
   public:
    const Value& operator*() const noexcept { return valueOf(*at_); }
    Iterator& operator++() noexcept {
      at_ = RankTree::next(*at_);
      return *this;
    }
    friend bool operator!=(Iterator a, Iterator b) noexcept { return a.at_ != b.at_; }

   private:
    friend SortedSet;
    explicit Iterator(RankNode* at) noexcept : at_(at) {}
    RankNode* at_;
  };

  Iterator begin() const noexcept { return Iterator(tree_.at(0)); }
  Iterator end() const noexcept { return Iterator(nullptr); }

  std::size_t size() const noexcept { return tree_.size(); }
  bool empty() const noexcept { return size() == 0; }

  /// The value at a position; null at or past the end.
  const Value* at(std::size_t position) const noexcept {
    RankNode* const node = tree_.at(position);
    return node ? &valueOf(*node) : nullptr;
  }

  /// Adds a value; false when it is here already.
  template <class Like>
  bool insert(const Like& value) {
    const std::size_t position = lowerBound(value);
    if (holdsAt(position, value)) return false;
    tree_.insert(position, *std::make_unique<Node>(value).release());
    return true;
  }

  /// Erases a value; false when it is not here.
  template <class Like>
  bool erase(const Like& value) noexcept {
    const std::size_t position = lowerBound(value);
    if (!holdsAt(position, value)) return false;
    eraseAt(position);
    return true;
  }

  void clear() noexcept {
    while (!empty()) eraseAt(0);
  }

 private:
  struct Node : RankNode {
    template <class Like>
    explicit Node(const Like& like) : value(like) {}
    const Value value;
  };

  static const Value& valueOf(const RankNode& node) noexcept {
    return static_cast<const Node&>(node).value;
  }

  template <class Like>
  std::size_t lowerBound(const Like& value) const noexcept {
    return tree_.partitionPoint([&](const RankNode& node) { return valueOf(node) < value; });
  }
  template <class Like>
  bool holdsAt(std::size_t position, const Like& value) const noexcept {
    const Value* const found = at(position);
    return found && *found == value;
  }
  void eraseAt(std::size_t position) noexcept {
    RankNode* const node = tree_.at(position);
    tree_.erase(*node);
    delete static_cast<Node*>(node);
  }

  RankTree tree_;
};

}  // namespace Tesk::KoStyle
