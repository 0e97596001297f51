#include "containers/rank_tree.h"

#include <utility>

namespace Tesk::KoStyle {
namespace {

using Side = RankNode* RankNode::*;

std::size_t sizeOf(const RankNode* node) noexcept { return node ? node->size : 0; }

// One more than the size: the pair of ratios below keeps its balance proof for this weight.
std::size_t weight(const RankNode* node) noexcept { return sizeOf(node) + 1; }

constexpr std::size_t balanceRatio = 3;   // one side may weigh up to this many times the other
constexpr std::size_t rotationRatio = 2;  // an inner child from this ratio on takes a double rotation

void updateSize(RankNode& node) noexcept { node.size = 1 + sizeOf(node.left) + sizeOf(node.right); }

RankNode* outermost(RankNode* node, Side side) noexcept {
  while (node && node->*side) node = node->*side;
  return node;
}

RankNode* neighbour(const RankNode& node, Side towards, Side away) noexcept {
  if (node.*towards) return outermost(node.*towards, away);
  const RankNode* child = &node;
  RankNode* parent = node.parent;
  while (parent && parent->*towards == child) {
    child = parent;
    parent = parent->parent;
  }
  return parent;
}

}  // namespace

RankNode* RankTree::at(std::size_t position) const noexcept {
  RankNode* node = root_;
  while (node) {
    const std::size_t before = sizeOf(node->left);
    if (position == before) return node;
    if (position < before) {
      node = node->left;
    } else {
      position -= before + 1;
      node = node->right;
    }
  }
  return nullptr;
}

std::size_t RankTree::position(const RankNode& node) noexcept {
  std::size_t position = sizeOf(node.left);
  for (const RankNode* child = &node; child->parent; child = child->parent) {
    if (child->parent->right == child) position += 1 + sizeOf(child->parent->left);
  }
  return position;
}

RankNode* RankTree::next(const RankNode& node) noexcept {
  return neighbour(node, &RankNode::right, &RankNode::left);
}

RankNode* RankTree::previous(const RankNode& node) noexcept {
  return neighbour(node, &RankNode::left, &RankNode::right);
}

void RankTree::insert(std::size_t position, RankNode& node) noexcept {
  node = RankNode{};
  if (!root_) {
    root_ = &node;
    return;
  }
  RankNode* const following = at(position);
  RankNode* parent = following ? following->left : outermost(root_, &RankNode::right);
  Side side = &RankNode::right;
  if (following && !parent) {
    parent = following;
    side = &RankNode::left;
  } else if (following) {
    parent = outermost(parent, &RankNode::right);
  }
  parent->*side = &node;
  node.parent = parent;
  rebalanceUpwards(parent);
}

void RankTree::erase(RankNode& node) noexcept {
  if (node.left && node.right) swapWithSuccessor(node);
  RankNode* const child = node.left ? node.left : node.right;
  RankNode* const parent = node.parent;
  attach(parent, &node, child);
  rebalanceUpwards(parent);
  node = RankNode{};
}

// Puts `replacement` where `old` hangs below `parent`, or at the root.
void RankTree::attach(RankNode* parent, RankNode* old, RankNode* replacement) noexcept {
  if (!parent) {
    root_ = replacement;
  } else {
    (parent->left == old ? parent->left : parent->right) = replacement;
  }
  if (replacement) replacement->parent = parent;
}

// Lifts a child, which is on the `rising` side of its parent, above it.
RankNode* RankTree::rotate(RankNode& node, RankNode& child, Side rising, Side falling) noexcept {
  attach(node.parent, &node, &child);
  node.*rising = child.*falling;
  if (node.*rising) (node.*rising)->parent = &node;
  child.*falling = &node;
  node.parent = &child;
  updateSize(node);
  updateSize(child);
  return &child;
}

RankNode* RankTree::balanceSide(RankNode& node, Side light, Side heavy) noexcept {
  RankNode* child = node.*heavy;
  if (!child || weight(child) <= balanceRatio * weight(node.*light)) return &node;
  RankNode* const inner = child->*light;
  if (inner && weight(inner) >= rotationRatio * weight(child->*heavy)) {
    child = rotate(*child, *inner, light, heavy);
  }
  return rotate(node, *child, heavy, light);
}

void RankTree::rebalanceUpwards(RankNode* node) noexcept {
  while (node) {
    updateSize(*node);
    node = balanceSide(*node, &RankNode::left, &RankNode::right);
    node = balanceSide(*node, &RankNode::right, &RankNode::left);
    node = node->parent;
  }
}

// Exchanges the places of a node with two children and of the node after it, which has no left child.
void RankTree::swapWithSuccessor(RankNode& node) noexcept {
  RankNode& successor = *outermost(node.right, &RankNode::left);
  RankNode* const successorParent = successor.parent;
  RankNode* const successorChild = successor.right;
  attach(node.parent, &node, &successor);
  successor.left = node.left;
  successor.left->parent = &successor;
  if (successorParent == &node) {
    successor.right = &node;
    node.parent = &successor;
  } else {
    successor.right = node.right;
    successor.right->parent = &successor;
    successorParent->left = &node;
    node.parent = successorParent;
  }
  node.left = nullptr;
  node.right = successorChild;
  if (successorChild) successorChild->parent = &node;
  std::swap(node.size, successor.size);
}

}  // namespace Tesk::KoStyle
