// RankTree: an order of numbered nodes, whose numbers their user gives. A node is found by its position
// and a position by its node in logarithmic time, wherever nodes are inserted and erased.
//
// A weight-balanced binary tree: a subtree's size gives the positions and the balance alike. Its links
// are numbers and lie in one array, 24 bytes for a node, so that a large tree stays in the cache.
// Only reserve() can throw. Reading never writes, so any number of threads may read at once.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace Tesk::KoStyle {

class RankTree {
 public:
  using Node = std::uint32_t;
  static constexpr Node none = UINT32_MAX;

  /// Makes room for the nodes whose numbers are less than `count`. Others must not be inserted.
  void reserve(std::size_t count) { links_.resize(count); }

  std::size_t size() const noexcept { return sizeOf(root_); }

  /// Whether a node, of any number, is in the tree.
  bool contains(Node node) const noexcept { return node < links_.size() && links_[node].size != 0; }

  /// The node at a position; none at or past the end.
  Node at(std::size_t position) const noexcept;

  /// The position of a node of this tree; size() for none.
  std::size_t position(Node node) const noexcept;

  /// The neighbours of a node of this tree; none at the ends.
  Node next(Node node) const noexcept { return links_[node].next; }
  Node previous(Node node) const noexcept { return links_[node].previous; }

  /// Inserts a node that is not in the tree, before another; at the end before none.
  void insertBefore(Node after, Node node) noexcept;

  /// Takes a node of this tree out.
  void erase(Node node) noexcept;

  /// The first node that `before` does not hold for; none when it holds for all. It must hold for a
  /// front part of the nodes and for no other.
  template <class Before>
  Node partitionPoint(Before before) const {
    Node found = none;
    for (Node node = root_; node != none;) {
      if (before(node)) {
        node = links_[node].right;
      } else {
        found = node;
        node = links_[node].left;
      }
    }
    return found;
  }

 private:
  struct Link {
    Node parent = none;
    Node left = none;
    Node right = none;
    Node size = 0;  // of the subtree; zero for what is not in the tree
    Node previous = none;
    Node next = none;
  };
  using Side = Node Link::*;

  std::size_t sizeOf(Node node) const noexcept { return node == none ? 0 : links_[node].size; }
  std::size_t weight(Node node) const noexcept;
  void updateSize(Node node) noexcept;
  Node last() const noexcept;
  void join(Node before, Node after) noexcept;
  void attach(Node parent, Node old, Node replacement) noexcept;
  Node rotate(Node upper, Node lower, Side rising, Side falling) noexcept;
  Node balanceSide(Node node, Side light, Side heavy) noexcept;
  void rebalanceUpwards(Node node) noexcept;
  void swapWithSuccessor(Node node) noexcept;

  std::vector<Link> links_;
  Node root_ = none;
};

}  // namespace Tesk::KoStyle
