// NodeOrder: an order of numbered nodes, as RankTree is, for orders of which most are short. While
// there is room for a few nodes only, they stand in two arrays of bytes, and no memory is taken.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>

#include "containers/rank_tree.h"

namespace Tesk::KoStyle {

class NodeOrder {
 public:
  using Node = RankTree::Node;
  static constexpr Node none = RankTree::none;

  /// With room for more nodes than these it is a tree.
  static constexpr std::size_t few = 16;

  /// Makes room for the nodes whose numbers are less than `count`. Others must not be inserted. Only
  /// this can throw.
  void reserve(std::size_t count);

  std::size_t size() const noexcept { return isTree() ? tree_->size() : size_; }

  /// Whether a node, of any number, is in the order.
  bool contains(Node node) const noexcept {
    return isTree() ? tree_->contains(node) : node < few && places_[node] != nowhere;
  }

  /// The node at a position; none at or past the end.
  Node at(std::size_t position) const noexcept {
    return isTree() ? tree_->at(position) : position < size_ ? nodes_[position] : none;
  }

  /// The position of a node of this order; size() for none.
  std::size_t position(Node node) const noexcept {
    return isTree() ? tree_->position(node) : node == none ? size_ : place(node);
  }

  // The neighbours of a node of this order; none at the ends.
  Node next(Node node) const noexcept { return isTree() ? tree_->next(node) : at(place(node) + 1); }
  Node previous(Node node) const noexcept {
    return isTree() ? tree_->previous(node) : place(node) == 0 ? none : nodes_[place(node) - 1];
  }

  // The node so many places, up to `reach`, after or before another; none past the ends, and in an
  // order of a few, where neighbours are at hand.
  static constexpr std::size_t reach = RankTree::reach;
  Node after(Node node, std::size_t places) const noexcept {
    return isTree() ? tree_->after(node, places) : none;
  }
  Node before(Node node, std::size_t places) const noexcept {
    return isTree() ? tree_->before(node, places) : none;
  }

  /// Inserts a node that is not in the order, before another; at the end before none.
  void insertBefore(Node after, Node node) noexcept;

  /// Takes a node of this order out.
  void erase(Node node) noexcept;

  /// The first node that `before` does not hold for; none when it holds for all. It must hold for a
  /// front part of the nodes and for no other.
  template <class Before>
  Node partitionPoint(Before before) const {
    if (isTree()) return tree_->partitionPoint(before);
    const auto* const end = nodes_.data() + size_;
    const auto* const found = std::partition_point(
        nodes_.data(), end, [&before](std::uint8_t node) { return before(Node{node}); });
    return found == end ? none : *found;
  }

 private:
  static constexpr std::uint8_t nowhere = few;

  bool isTree() const noexcept { return tree_ != nullptr; }
  std::size_t place(Node node) const noexcept { return places_[node]; }
  void put(Node node, std::size_t position) noexcept;

  static constexpr std::array<std::uint8_t, few> allNowhere() noexcept {
    std::array<std::uint8_t, few> places = {};
    for (auto& place : places) place = nowhere;
    return places;
  }

  std::unique_ptr<RankTree> tree_;
  std::uint8_t size_ = 0;
  std::array<std::uint8_t, few> nodes_ = {};             // by position
  std::array<std::uint8_t, few> places_ = allNowhere();  // by node
};

}  // namespace Tesk::KoStyle
