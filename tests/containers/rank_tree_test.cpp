#include "containers/rank_tree.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cstddef>
#include <functional>
#include <numeric>
#include <random>

#include "containers/order_checks.h"

namespace Tesk::KoStyle {
namespace {

using Node = RankTree::Node;

class RankTreeDepth : public ::testing::TestWithParam<std::function<std::size_t(std::size_t)>> {};

TEST_P(RankTreeDepth, StaysLogarithmic) {
  constexpr Node count = 100000;
  RankTree tree = withRoomFor<RankTree>(count);
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

TEST(RankTree, FindsWhatStandsSomePlacesAway) {
  constexpr Node count = 1000;
  RankTree tree = withRoomFor<RankTree>(count);
  for (Node node = 0; node < count; ++node) insert(tree, node / 2, node);  // half full pages
  for (std::size_t places = 1; places <= RankTree::reach; ++places) {
    for (std::size_t position = 0; position < count; ++position) {
      EXPECT_EQ(tree.after(tree.at(position), places), tree.at(position + places));
      EXPECT_EQ(tree.before(tree.at(position), places),
                position < places ? RankTree::none : tree.at(position - places));
    }
  }
}

TEST(RankTree, TakesAHundredThousandNodesOutInAnyOrder) {
  Nodes nodes(100000);
  std::iota(nodes.begin(), nodes.end(), 0);
  RankTree tree = withRoomFor<RankTree>(nodes.size());
  for (const Node node : nodes) tree.insertBefore(RankTree::none, node);
  std::shuffle(nodes.begin(), nodes.end(), std::mt19937(11));
  for (std::size_t i = 0; i < nodes.size(); ++i) {
    tree.erase(nodes[i]);
    if (i % 20000 == 0) expectLogarithmicSearches(tree, 97);
  }
  EXPECT_EQ(tree.size(), 0u);
  EXPECT_EQ(tree.at(0), RankTree::none);
}

}  // namespace
}  // namespace Tesk::KoStyle
