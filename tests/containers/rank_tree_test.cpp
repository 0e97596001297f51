#include "containers/rank_tree.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <random>
#include <vector>

namespace Tesk::KoStyle {
namespace {

struct Numbered : RankNode {
  int number = 0;
};

int numberOf(const RankNode& node) { return static_cast<const Numbered&>(node).number; }

std::vector<const RankNode*> walkForwards(const RankTree& tree) {
  std::vector<const RankNode*> nodes;
  for (const RankNode* node = tree.at(0); node; node = RankTree::next(*node)) nodes.push_back(node);
  return nodes;
}

std::vector<const RankNode*> walkBackwards(const RankTree& tree) {
  std::vector<const RankNode*> nodes;
  if (tree.size() == 0) return nodes;
  const RankNode* node = tree.at(tree.size() - 1);
  for (; node; node = RankTree::previous(*node)) nodes.push_back(node);
  return nodes;
}

const RankNode* rootOf(const RankTree& tree) {
  const RankNode* node = tree.at(0);
  while (node && node->parent) node = node->parent;
  return node;
}

struct Shape {
  std::size_t nodes = 0;
  std::size_t depth = 0;
};

// Walks a tree by its links. Every node is expected to know its parent and its size, and neither side
// to weigh more than three times the other.
Shape measure(const RankNode* node, const RankNode* parent) {
  if (!node) return {};
  EXPECT_EQ(node->parent, parent);
  const Shape left = measure(node->left, node);
  const Shape right = measure(node->right, node);
  const Shape whole{left.nodes + right.nodes + 1, std::max(left.depth, right.depth) + 1};
  EXPECT_EQ(node->size, whole.nodes);
  EXPECT_LE(left.nodes + 1, 3 * (right.nodes + 1));
  EXPECT_LE(right.nodes + 1, 3 * (left.nodes + 1));
  return whole;
}

Shape measure(const RankTree& tree) { return measure(rootOf(tree), nullptr); }

void expectOrder(const RankTree& tree, const std::vector<Numbered*>& expected) {
  ASSERT_EQ(tree.size(), expected.size());
  const std::vector<const RankNode*> nodes(expected.begin(), expected.end());
  EXPECT_EQ(walkForwards(tree), nodes);
  EXPECT_EQ(walkBackwards(tree), std::vector<const RankNode*>(nodes.rbegin(), nodes.rend()));
  for (std::size_t i = 0; i < nodes.size(); ++i) {
    EXPECT_EQ(tree.at(i), nodes[i]);
    EXPECT_EQ(RankTree::position(*nodes[i]), i);
  }
}

TEST(RankTree, IsEmptyAtFirst) {
  const RankTree tree;
  EXPECT_EQ(tree.size(), 0u);
  EXPECT_EQ(tree.at(0), nullptr);
  EXPECT_EQ(tree.at(SIZE_MAX), nullptr);
  EXPECT_EQ(tree.partitionPoint([](const RankNode&) { return true; }), 0u);
}

TEST(RankTree, ASingleNodeHasNoNeighbours) {
  RankTree tree;
  Numbered node;
  tree.insert(0, node);
  EXPECT_EQ(tree.at(0), &node);
  EXPECT_EQ(tree.at(1), nullptr);
  EXPECT_EQ(RankTree::next(node), nullptr);
  EXPECT_EQ(RankTree::previous(node), nullptr);
  tree.erase(node);
  EXPECT_EQ(tree.size(), 0u);
}

TEST(RankTree, InsertsPastTheEndAtTheEnd) {
  RankTree tree;
  Numbered a, b, c;
  tree.insert(SIZE_MAX, a);
  tree.insert(2, b);
  tree.insert(SIZE_MAX, c);
  expectOrder(tree, {&a, &b, &c});
}

TEST(RankTree, AnErasedNodeCanBeInsertedAgain) {
  RankTree tree;
  Numbered a, b, c;
  for (Numbered* node : {&a, &b, &c}) tree.insert(SIZE_MAX, *node);
  tree.erase(b);
  expectOrder(tree, {&a, &c});
  tree.insert(0, b);
  expectOrder(tree, {&b, &a, &c});
}

TEST(RankTree, ForgetsItsNodes) {
  RankTree tree;
  Numbered a, b;
  tree.insert(0, a);
  tree.clear();
  EXPECT_EQ(tree.size(), 0u);
  tree.insert(0, b);
  tree.insert(1, a);
  expectOrder(tree, {&b, &a});
}

TEST(RankTree, FindsThePartitionPoint) {
  std::deque<Numbered> nodes(1000);
  RankTree tree;
  for (int i = 0; i < 1000; ++i) {
    nodes[static_cast<std::size_t>(i)].number = i;
    tree.insert(SIZE_MAX, nodes[static_cast<std::size_t>(i)]);
  }
  for (int limit = 0; limit <= 1000; ++limit) {
    EXPECT_EQ(tree.partitionPoint([&](const RankNode& node) { return numberOf(node) < limit; }),
              static_cast<std::size_t>(limit));
  }
}

TEST(RankTree, AgreesWithAVectorThroughRandomChanges) {
  for (const unsigned seed : {1u, 2u, 3u, 4u, 5u, 6u}) {
    std::mt19937 random(seed);
    const auto below = [&](std::size_t n) {
      return std::uniform_int_distribution<std::size_t>(0, n - 1)(random);
    };
    std::deque<Numbered> storage(600);
    std::vector<Numbered*> unused;
    for (Numbered& node : storage) unused.push_back(&node);
    std::vector<Numbered*> reference;
    RankTree tree;
    for (int step = 0; step < 6000; ++step) {
      const bool growing = (step / 1000) % 2 == 0;
      const bool insert = reference.empty() || (!unused.empty() && below(10) < (growing ? 8u : 2u));
      if (insert) {
        Numbered* const node = unused.back();
        unused.pop_back();
        const std::size_t position = below(reference.size() + 1);
        reference.insert(reference.begin() + static_cast<std::ptrdiff_t>(position), node);
        tree.insert(position, *node);
      } else {
        const std::size_t position = below(reference.size());
        Numbered* const node = reference[position];
        reference.erase(reference.begin() + static_cast<std::ptrdiff_t>(position));
        unused.push_back(node);
        tree.erase(*node);
      }
      ASSERT_EQ(tree.size(), reference.size());
      if (step % 97 == 0) {
        expectOrder(tree, reference);
        measure(tree);
      }
    }
    expectOrder(tree, reference);
    measure(tree);
  }
}

class RankTreeDepth : public ::testing::TestWithParam<std::function<std::size_t(std::size_t)>> {};

TEST_P(RankTreeDepth, StaysLogarithmic) {
  constexpr std::size_t count = 100000;
  std::vector<Numbered> nodes(count);
  RankTree tree;
  for (std::size_t i = 0; i < count; ++i) tree.insert(GetParam()(i), nodes[i]);
  Shape shape = measure(tree);
  EXPECT_EQ(shape.nodes, count);
  EXPECT_LT(static_cast<double>(shape.depth), 2 * std::log2(count));

  // Erasing from one end must not let the other degenerate.
  for (std::size_t i = 0; i < count - 1000; ++i) tree.erase(*tree.at(0));
  shape = measure(tree);
  EXPECT_EQ(shape.nodes, 1000u);
  EXPECT_LT(static_cast<double>(shape.depth), 2 * std::log2(1000));
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
  std::vector<Numbered> nodes(100000);
  RankTree tree;
  for (Numbered& node : nodes) tree.insert(SIZE_MAX, node);
  std::vector<Numbered*> order;
  for (Numbered& node : nodes) order.push_back(&node);
  std::shuffle(order.begin(), order.end(), std::mt19937(11));
  for (std::size_t i = 0; i < order.size(); ++i) {
    tree.erase(*order[i]);
    if (i % 20000 == 0) measure(tree);
  }
  EXPECT_EQ(tree.size(), 0u);
  EXPECT_EQ(tree.at(0), nullptr);
}

}  // namespace
}  // namespace Tesk::KoStyle
