// What the tests of orders of numbered nodes ask of them.
#pragma once

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

#include "containers/rank_tree.h"

namespace Tesk::KoStyle {

using Nodes = std::vector<RankTree::Node>;

template <class Order>
Order withRoomFor(std::size_t nodes) {
  Order order;
  order.reserve(nodes);
  return order;
}

template <class Order>
void insert(Order& order, std::size_t position, RankTree::Node node) {
  order.insertBefore(order.at(position), node);
}

template <class Order>
Nodes walkForwards(const Order& order) {
  Nodes nodes;
  for (auto node = order.at(0); node != Order::none; node = order.next(node)) nodes.push_back(node);
  return nodes;
}

template <class Order>
Nodes walkBackwards(const Order& order) {
  Nodes nodes;
  if (order.size() == 0) return nodes;
  auto node = order.at(order.size() - 1);
  for (; node != Order::none; node = order.previous(node)) nodes.push_back(node);
  return nodes;
}

template <class Order>
void expectOrder(const Order& order, const Nodes& expected) {
  ASSERT_EQ(order.size(), expected.size());
  EXPECT_EQ(walkForwards(order), expected);
  EXPECT_EQ(walkBackwards(order), Nodes(expected.rbegin(), expected.rend()));
  for (std::size_t i = 0; i < expected.size(); ++i) {
    EXPECT_EQ(order.at(i), expected[i]);
    EXPECT_EQ(order.position(expected[i]), i);
    EXPECT_TRUE(order.contains(expected[i]));
  }
}

// The longest of the searches for every `stride`th position, in nodes looked at.
template <class Order>
std::size_t longestSearch(const Order& order, std::size_t stride) {
  std::size_t longest = 0;
  for (std::size_t position = 0; position <= order.size(); position += stride) {
    std::size_t steps = 0;
    const auto found = order.partitionPoint([&](RankTree::Node node) {
      ++steps;
      return order.position(node) < position;
    });
    EXPECT_EQ(order.position(found), position);
    longest = std::max(longest, steps);
  }
  return longest;
}

template <class Order>
void expectLogarithmicSearches(const Order& order, std::size_t stride) {
  const auto size = static_cast<double>(order.size());
  EXPECT_LE(static_cast<double>(longestSearch(order, stride)), 2 * std::log2(size + 1));
}

}  // namespace Tesk::KoStyle
