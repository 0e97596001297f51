#include "containers/node_order.h"

#include <utility>

namespace Tesk::KoStyle {

void NodeOrder::reserve(std::size_t count) {
  if (count <= few) return;
  if (isTree()) return tree_->reserve(count);
  auto tree = std::make_unique<RankTree>();
  tree->reserve(count);
  for (std::size_t position = 0; position < size_; ++position)
    tree->insertBefore(none, nodes_[position]);
  tree_ = std::move(tree);
}

void NodeOrder::insertBefore(Node after, Node node) noexcept {
  if (isTree()) return tree_->insertBefore(after, node);
  std::size_t position = size_++;
  for (; after != none && position > place(after); --position) put(nodes_[position - 1], position);
  put(node, position);
}

void NodeOrder::erase(Node node) noexcept {
  if (isTree()) return tree_->erase(node);
  --size_;
  for (std::size_t position = place(node); position < size_; ++position)
    put(nodes_[position + 1], position);
  places_[node] = nowhere;
}

void NodeOrder::put(Node node, std::size_t position) noexcept {
  nodes_[position] = static_cast<std::uint8_t>(node);
  places_[node] = static_cast<std::uint8_t>(position);
}

}  // namespace Tesk::KoStyle
