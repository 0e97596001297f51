// What is reserved is all the memory that an order takes, however its nodes come and go.
#include "containers/rank_tree.h"

#include <gmock/gmock.h>

#include <cstddef>
#include <functional>
#include <random>

#include "memory/failing_allocations.h"

namespace Tesk::KoStyle {
namespace {

// Where the next node goes, of so many.
using Place = std::function<std::size_t(std::size_t)>;

class RankTreeMemory : public ::testing::TestWithParam<Place> {};

TEST_P(RankTreeMemory, IsReserved) {
  std::mt19937 random(1);
  RankTree tree;
  for (RankTree::Node room = 1; room <= 5000; room += 1 + room % 3 * room / 4) {
    tree.reserve(room);
    bool failed = false;
    test::runsOutOfMemory(0, failed, [&] {
      for (RankTree::Node node = 0; node < room; ++node) {
        if (!tree.contains(node)) tree.insertBefore(tree.at(GetParam()(tree.size())), node);
      }
      for (RankTree::Node i = 0; i < room / 2; ++i) tree.erase(tree.at(random() % tree.size()));
    });
    EXPECT_FALSE(failed);
    EXPECT_EQ(tree.size(), room - room / 2);
  }
}

INSTANTIATE_TEST_SUITE_P(Everywhere, RankTreeMemory,
                         ::testing::Values([](std::size_t) { return 0; },
                                           [](std::size_t size) { return size / 2; },
                                           [](std::size_t size) { return size; },
                                           [](std::size_t size) { return size * 7919 % (size + 1); }));

}  // namespace
}  // namespace Tesk::KoStyle
