#include "containers/rank_tree.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <numeric>
#include <random>
#include <vector>

namespace Tesk::KoStyle {
namespace {

using Node = RankTree::Node;
using Nodes = std::vector<Node>;

constexpr Node none = RankTree::none;

RankTree treeWithRoomFor(std::size_t nodes) {
  RankTree tree;
  tree.reserve(nodes);
  return tree;
}

void insert(RankTree& tree, std::size_t position, Node node) {
  tree.insertBefore(tree.at(position), node);
}

Nodes walkForwards(const RankTree& tree) {
  Nodes nodes;
  for (Node node = tree.at(0); node != none; node = tree.next(node)) nodes.push_back(node);
  return nodes;
}

Nodes walkBackwards(const RankTree& tree) {
  Nodes nodes;
  if (tree.size() == 0) return nodes;
  Node node = tree.at(tree.size() - 1);
  for (; node != none; node = tree.previous(node)) nodes.push_back(node);
  return nodes;
}

void expectOrder(const RankTree& tree, const Nodes& expected) {
  ASSERT_EQ(tree.size(), expected.size());
  EXPECT_EQ(walkForwards(tree), expected);
  EXPECT_EQ(walkBackwards(tree), Nodes(expected.rbegin(), expected.rend()));
  for (std::size_t i = 0; i < expected.size(); ++i) {
    EXPECT_EQ(tree.at(i), expected[i]);
    EXPECT_EQ(tree.position(expected[i]), i);
    EXPECT_TRUE(tree.contains(expected[i]));
  }
}

// The longest of the searches for every `stride`th position, in nodes looked at.
std::size_t longestSearch(const RankTree& tree, std::size_t stride) {
  std::size_t longest = 0;
  for (std::size_t position = 0; position <= tree.size(); position += stride) {
    std::size_t steps = 0;
    const Node found = tree.partitionPoint([&](Node node) {
      ++steps;
      return tree.position(node) < position;
    });
    EXPECT_EQ(tree.position(found), position);
    longest = std::max(longest, steps);
  }
  return longest;
}

void expectLogarithmicSearches(const RankTree& tree, std::size_t stride) {
  const auto size = static_cast<double>(tree.size());
  EXPECT_LE(static_cast<double>(longestSearch(tree, stride)), 2 * std::log2(size + 1));
}

TEST(RankTree, IsEmptyAtFirst) {
  const RankTree tree;
  EXPECT_EQ(tree.size(), 0u);
  EXPECT_EQ(tree.at(0), none);
  EXPECT_EQ(tree.at(SIZE_MAX), none);
  EXPECT_EQ(tree.partitionPoint([](Node) { return true; }), none);
  for (const Node node : {Node{0}, Node{7}, none}) EXPECT_FALSE(tree.contains(node));
}

TEST(RankTree, ASingleNodeHasNoNeighbours) {
  RankTree tree = treeWithRoomFor(1);
  tree.insertBefore(none, 0);
  EXPECT_EQ(tree.at(0), 0u);
  EXPECT_EQ(tree.at(1), none);
  EXPECT_EQ(tree.next(0), none);
  EXPECT_EQ(tree.previous(0), none);
  EXPECT_TRUE(tree.contains(0));
  EXPECT_FALSE(tree.contains(1));
  tree.erase(0);
  EXPECT_EQ(tree.size(), 0u);
  EXPECT_FALSE(tree.contains(0));
}

TEST(RankTree, InsertsBeforeANodeAndAtTheEnd) {
  RankTree tree = treeWithRoomFor(5);
  tree.insertBefore(none, 4);
  tree.insertBefore(none, 2);
  tree.insertBefore(2, 0);
  tree.insertBefore(4, 1);
  tree.insertBefore(0, 3);
  expectOrder(tree, {1, 4, 3, 0, 2});
}

TEST(RankTree, AnErasedNodeCanBeInsertedAgain) {
  RankTree tree = treeWithRoomFor(3);
  for (const Node node : {0u, 1u, 2u}) tree.insertBefore(none, node);
  tree.erase(1);
  EXPECT_FALSE(tree.contains(1));
  expectOrder(tree, {0, 2});
  insert(tree, 0, 1);
  expectOrder(tree, {1, 0, 2});
}

TEST(RankTree, KeepsItsOrderWhenItGetsMoreRoom) {
  RankTree tree = treeWithRoomFor(2);
  tree.insertBefore(none, 1);
  tree.insertBefore(none, 0);
  tree.reserve(1000);
  tree.insertBefore(0, 999);
  expectOrder(tree, {1, 999, 0});
}

TEST(RankTree, FindsThePartitionPoint) {
  RankTree tree = treeWithRoomFor(1000);
  for (Node node = 0; node < 1000; ++node) tree.insertBefore(none, node);
  for (Node limit = 0; limit < 1000; ++limit)
    EXPECT_EQ(tree.partitionPoint([&](Node node) { return node < limit; }), limit);
  EXPECT_EQ(tree.partitionPoint([](Node) { return true; }), none);
  EXPECT_EQ(tree.position(none), 1000u);
}

TEST(RankTree, AgreesWithAVectorThroughRandomChanges) {
  for (const unsigned seed : {1u, 2u, 3u, 4u, 5u, 6u}) {
    std::mt19937 random(seed);
    const auto below = [&](std::size_t n) {
      return std::uniform_int_distribution<std::size_t>(0, n - 1)(random);
    };
    Nodes unused(600);
    std::iota(unused.begin(), unused.end(), 0);
    Nodes reference;
    RankTree tree = treeWithRoomFor(unused.size());
    for (int step = 0; step < 6000; ++step) {
      const bool growing = (step / 1000) % 2 == 0;
      if (reference.empty() || (!unused.empty() && below(10) < (growing ? 8u : 2u))) {
        const Node node = unused.back();
        unused.pop_back();
        const std::size_t position = below(reference.size() + 1);
        reference.insert(reference.begin() + static_cast<std::ptrdiff_t>(position), node);
        insert(tree, position, node);
      } else {
        const std::size_t position = below(reference.size());
        const Node node = reference[position];
        reference.erase(reference.begin() + static_cast<std::ptrdiff_t>(position));
        unused.push_back(node);
        tree.erase(node);
      }
      ASSERT_EQ(tree.size(), reference.size());
      if (step % 97 == 0) {
        expectOrder(tree, reference);
        expectLogarithmicSearches(tree, 1);
      }
    }
    expectOrder(tree, reference);
    for (const Node node : unused) EXPECT_FALSE(tree.contains(node));
  }
}

class RankTreeDepth : public ::testing::TestWithParam<std::function<std::size_t(std::size_t)>> {};

TEST_P(RankTreeDepth, StaysLogarithmic) {
  constexpr Node count = 100000;
  RankTree tree = treeWithRoomFor(count);
  for (Node node = 0; node < count; ++node) insert(tree, GetParam()(node), node);
  EXPECT_EQ(tree.size(), count);
  expectLogarithmicSearches(tree, 97);

  // Erasing from one end must not let the other degenerate.
  for (Node i = 0; i < count - 1000; ++i) tree.erase(tree.at(0));
  EXPECT_EQ(tree.size(), 1000u);
  expectLogarithmicSearches(tree, 1);
}

INSTANTIATE_TEST_SUITE_P(Front, RankTreeDepth, ::testing::Values([](std::size_t) { return 0; }));
INSTANTIATE_TEST_SUITE_P(Back, RankTreeDepth, ::testing::Values([](std::size_t i) { return i; }));
INSTANTIATE_TEST_SUITE_P(FixedMiddle, RankTreeDepth,
                         ::testing::Values([](std::size_t) { return 500; }));
INSTANTIATE_TEST_SUITE_P(MovingMiddle, RankTreeDepth,
                         ::testing::Values([](std::size_t i) { return i / 2; }));
INSTANTIATE_TEST_SUITE_P(BothEndsInTurn, RankTreeDepth,
                         ::testing::Values([](std::size_t i) { return i % 2 ? i : 0; }));

TEST(RankTree, TakesAHundredThousandNodesOutInAnyOrder) {
  Nodes nodes(100000);
  std::iota(nodes.begin(), nodes.end(), 0);
  RankTree tree = treeWithRoomFor(nodes.size());
  for (const Node node : nodes) tree.insertBefore(none, node);
  std::shuffle(nodes.begin(), nodes.end(), std::mt19937(11));
  for (std::size_t i = 0; i < nodes.size(); ++i) {
    tree.erase(nodes[i]);
    if (i % 20000 == 0) expectLogarithmicSearches(tree, 97);
  }
  EXPECT_EQ(tree.size(), 0u);
  EXPECT_EQ(tree.at(0), none);
}

}  // namespace
}  // namespace Tesk::KoStyle
