// RankTree: an order of nodes that somebody else owns. A node is found by its position and a position
// by its node in logarithmic time, wherever nodes are inserted and erased.
//
// A weight-balanced binary tree: a subtree's size gives the positions and the balance alike. Nothing
// allocates, nothing throws. Reading never writes, so any number of threads may read at once.
#pragma once

#include <cstddef>

namespace Tesk::KoStyle {

struct RankNode {
  RankNode* parent = nullptr;
  RankNode* left = nullptr;
  RankNode* right = nullptr;
  std::size_t size = 1;
};

class RankTree {
 public:
  RankTree() = default;
  RankTree(const RankTree&) = delete;
  RankTree& operator=(const RankTree&) = delete;

  std::size_t size() const noexcept { return root_ ? root_->size : 0; }

  /// The node at a position; null at or past the end.
  RankNode* at(std::size_t position) const noexcept;

  /// The position of a node of this tree.
  static std::size_t position(const RankNode& node) noexcept;

  static RankNode* next(const RankNode& node) noexcept;
  static RankNode* previous(const RankNode& node) noexcept;

  /// Inserts a node that is in no tree, before `position`; past the end it is appended.
  void insert(std::size_t position, RankNode& node) noexcept;

  /// Takes a node of this tree out.
  void erase(RankNode& node) noexcept;

  /// Forgets all nodes, which are in no tree then.
  void clear() noexcept { root_ = nullptr; }

  /// The first position whose node `before` does not hold for. It must hold for a front part of the
  /// nodes and for no other.
  template <class Before>
  std::size_t partitionPoint(Before before) const {
    std::size_t position = 0;
    for (const RankNode* node = root_; node;) {
      if (before(*node)) {
        position += 1 + (node->left ? node->left->size : 0);
        node = node->right;
      } else {
        node = node->left;
      }
    }
    return position;
  }

 private:
  void attach(RankNode* parent, RankNode* old, RankNode* replacement) noexcept;
  RankNode* rotate(RankNode& node, RankNode& child, RankNode* RankNode::*rising,
                   RankNode* RankNode::*falling) noexcept;
  RankNode* balanceSide(RankNode& node, RankNode* RankNode::*light,
                        RankNode* RankNode::*heavy) noexcept;
  void rebalanceUpwards(RankNode* node) noexcept;
  void swapWithSuccessor(RankNode& node) noexcept;

  RankNode* root_ = nullptr;
};

}  // namespace Tesk::KoStyle
