// The interface that RankTree and NodeOrder share, and where NodeOrder becomes a tree.
#include "containers/node_order.h"

#include <gmock/gmock.h>

#include <cstddef>
#include <cstdint>
#include <random>

#include "containers/order_checks.h"

namespace Tesk::KoStyle {
namespace {

using Node = NodeOrder::Node;
constexpr Node none = NodeOrder::none;

template <class Order>
class OrderOfNodes : public ::testing::Test {};
using Orders = ::testing::Types<RankTree, NodeOrder>;
TYPED_TEST_SUITE(OrderOfNodes, Orders);

TYPED_TEST(OrderOfNodes, IsEmptyAtFirst) {
  const TypeParam order;
  EXPECT_EQ(order.size(), 0u);
  EXPECT_EQ(order.at(0), none);
  EXPECT_EQ(order.at(SIZE_MAX), none);
  EXPECT_EQ(order.partitionPoint([](Node) { return true; }), none);
  for (const Node node : {Node{0}, Node{7}, none}) EXPECT_FALSE(order.contains(node));
}

TYPED_TEST(OrderOfNodes, ASingleNodeHasNoNeighbours) {
  TypeParam order = withRoomFor<TypeParam>(1);
  order.insertBefore(none, 0);
  EXPECT_EQ(order.at(0), 0u);
  EXPECT_EQ(order.at(1), none);
  EXPECT_EQ(order.next(0), none);
  EXPECT_EQ(order.previous(0), none);
  EXPECT_TRUE(order.contains(0));
  EXPECT_FALSE(order.contains(1));
  order.erase(0);
  EXPECT_EQ(order.size(), 0u);
  EXPECT_FALSE(order.contains(0));
}

TYPED_TEST(OrderOfNodes, InsertsBeforeANodeAndAtTheEnd) {
  TypeParam order = withRoomFor<TypeParam>(5);
  order.insertBefore(none, 4);
  order.insertBefore(none, 2);
  order.insertBefore(2, 0);
  order.insertBefore(4, 1);
  order.insertBefore(0, 3);
  expectOrder(order, {1, 4, 3, 0, 2});
}

TYPED_TEST(OrderOfNodes, AnErasedNodeCanBeInsertedAgain) {
  TypeParam order = withRoomFor<TypeParam>(3);
  for (const Node node : {0u, 1u, 2u}) order.insertBefore(none, node);
  order.erase(1);
  EXPECT_FALSE(order.contains(1));
  expectOrder(order, {0, 2});
  insert(order, 0, 1);
  expectOrder(order, {1, 0, 2});
}

TYPED_TEST(OrderOfNodes, KeepsItsOrderWhenItGetsMoreRoom) {
  TypeParam order = withRoomFor<TypeParam>(2);
  order.insertBefore(none, 1);
  order.insertBefore(none, 0);
  order.reserve(1000);
  order.insertBefore(0, 999);
  expectOrder(order, {1, 999, 0});
}

TYPED_TEST(OrderOfNodes, FindsThePartitionPoint) {
  for (const Node count : {Node{NodeOrder::few}, Node{1000}}) {
    TypeParam order = withRoomFor<TypeParam>(count);
    for (Node node = 0; node < count; ++node) order.insertBefore(none, node);
    for (Node limit = 0; limit < count; ++limit)
      EXPECT_EQ(order.partitionPoint([&](Node node) { return node < limit; }), limit);
    EXPECT_EQ(order.partitionPoint([](Node) { return true; }), none);
    EXPECT_EQ(order.position(none), count);
  }
}

// Room for new nodes is made in small steps, so that NodeOrder becomes a tree on the way.
TYPED_TEST(OrderOfNodes, AgreesWithAVectorThroughRandomChanges) {
  for (const unsigned seed : {1u, 2u, 3u, 4u, 5u, 6u}) {
    std::mt19937 random(seed);
    const auto below = [&](std::size_t n) {
      return std::uniform_int_distribution<std::size_t>(0, n - 1)(random);
    };
    Nodes unused;
    Nodes reference;
    TypeParam order;
    std::size_t room = 0;
    for (int step = 0; step < 6000; ++step) {
      const bool growing = (step / 1000) % 2 == 0;
      if (reference.empty() || below(10) < (growing ? 8u : 2u)) {
        if (unused.empty()) {
          for (const std::size_t more = room + 4; room < more; ++room)
            unused.push_back(static_cast<Node>(room));
          order.reserve(room);
        }
        const Node node = unused.back();
        unused.pop_back();
        const std::size_t position = below(reference.size() + 1);
        reference.insert(reference.begin() + static_cast<std::ptrdiff_t>(position), node);
        insert(order, position, node);
      } else {
        const std::size_t position = below(reference.size());
        const Node node = reference[position];
        reference.erase(reference.begin() + static_cast<std::ptrdiff_t>(position));
        unused.push_back(node);
        order.erase(node);
      }
      ASSERT_EQ(order.size(), reference.size());
      if (step < 100 || step % 97 == 0) {
        expectOrder(order, reference);
        expectLogarithmicSearches(order, 1);
      }
    }
    expectOrder(order, reference);
    for (const Node node : unused) EXPECT_FALSE(order.contains(node));
  }
}

}  // namespace
}  // namespace Tesk::KoStyle
