#include "containers/rank_tree.h"

namespace Tesk::KoStyle {
namespace {

constexpr std::size_t balanceRatio = 3;   // one side may weigh up to this many times the other
constexpr std::size_t rotationRatio = 2;  // an inner child from this ratio on takes a double rotation

}  // namespace

// One more than the size: the pair of ratios above keeps its balance proof for this weight.
std::size_t RankTree::weight(Node node) const noexcept { return sizeOf(node) + 1; }

void RankTree::updateSize(Node node) noexcept {
  Link& link = links_[node];
  link.size = static_cast<Node>(1 + sizeOf(link.left) + sizeOf(link.right));
}

RankTree::Node RankTree::at(std::size_t position) const noexcept {
  Node node = root_;
  while (node != none) {
    const Link& link = links_[node];
    const std::size_t before = sizeOf(link.left);
    if (position == before) return node;
    if (position < before) {
      node = link.left;
    } else {
      position -= before + 1;
      node = link.right;
    }
  }
  return none;
}

std::size_t RankTree::position(Node node) const noexcept {
  if (node == none) return size();
  std::size_t position = sizeOf(links_[node].left);
  for (Node parent = links_[node].parent; parent != none; parent = links_[node].parent) {
    if (links_[parent].right == node) position += 1 + sizeOf(links_[parent].left);
    node = parent;
  }
  return position;
}

void RankTree::insertBefore(Node after, Node node) noexcept {
  const Node before = after == none ? last() : links_[after].previous;
  links_[node] = Link();
  links_[node].size = 1;
  join(before, node);
  join(node, after);
  // One of the two has no child where the new node belongs.
  const bool belowAfter = after != none && links_[after].left == none;
  const Node parent = belowAfter ? after : before;
  links_[node].parent = parent;
  if (parent == none) {
    root_ = node;
  } else {
    (belowAfter ? links_[parent].left : links_[parent].right) = node;
  }
  rebalanceUpwards(parent);
}

void RankTree::erase(Node node) noexcept {
  if (links_[node].left != none && links_[node].right != none) swapWithSuccessor(node);
  const Link link = links_[node];
  join(link.previous, link.next);
  attach(link.parent, node, link.left != none ? link.left : link.right);
  rebalanceUpwards(link.parent);
  links_[node] = Link();
}

RankTree::Node RankTree::last() const noexcept { return size() == 0 ? none : at(size() - 1); }

void RankTree::join(Node before, Node after) noexcept {
  if (before != none) links_[before].next = after;
  if (after != none) links_[after].previous = before;
}

// Puts `replacement` where `old` hangs below `parent`, or at the root.
void RankTree::attach(Node parent, Node old, Node replacement) noexcept {
  if (parent == none) {
    root_ = replacement;
  } else {
    (links_[parent].left == old ? links_[parent].left : links_[parent].right) = replacement;
  }
  if (replacement != none) links_[replacement].parent = parent;
}

// Lifts a node, which is the `rising` child of another, above it.
RankTree::Node RankTree::rotate(Node upper, Node lower, Side rising, Side falling) noexcept {
  attach(links_[upper].parent, upper, lower);
  const Node passedOn = links_[lower].*falling;
  links_[upper].*rising = passedOn;
  if (passedOn != none) links_[passedOn].parent = upper;
  links_[lower].*falling = upper;
  links_[upper].parent = lower;
  updateSize(upper);
  updateSize(lower);
  return lower;
}

RankTree::Node RankTree::balanceSide(Node node, Side light, Side heavy) noexcept {
  Node child = links_[node].*heavy;
  if (child == none || weight(child) <= balanceRatio * weight(links_[node].*light)) return node;
  const Node inner = links_[child].*light;
  if (inner != none && weight(inner) >= rotationRatio * weight(links_[child].*heavy)) {
    child = rotate(child, inner, light, heavy);
  }
  return rotate(node, child, heavy, light);
}

void RankTree::rebalanceUpwards(Node node) noexcept {
  while (node != none) {
    updateSize(node);
    node = balanceSide(node, &Link::left, &Link::right);
    node = balanceSide(node, &Link::right, &Link::left);
    node = links_[node].parent;
  }
}

// Exchanges the places of a node with two children and of the node after it, which has no left child.
void RankTree::swapWithSuccessor(Node node) noexcept {
  const Node successor = links_[node].next;
  const Link before = links_[node];
  const Link after = links_[successor];
  attach(before.parent, node, successor);
  links_[successor].size = before.size;
  links_[successor].left = before.left;
  links_[before.left].parent = successor;
  if (after.parent == node) {
    links_[successor].right = node;
    links_[node].parent = successor;
  } else {
    links_[successor].right = before.right;
    links_[before.right].parent = successor;
    links_[after.parent].left = node;
    links_[node].parent = after.parent;
  }
  links_[node].left = none;
  links_[node].right = after.right;
  links_[node].size = after.size;
  if (after.right != none) links_[after.right].parent = node;
}

}  // namespace Tesk::KoStyle
