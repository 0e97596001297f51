#include "containers/memory_pool.h"

#include <gmock/gmock.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <set>
#include <utility>
#include <vector>

namespace Tesk::KoStyle {
namespace {

using Block = std::pair<void*, std::size_t>;

TEST(MemoryPool, GivesBlocksOfAnySizeThatDoNotOverlap) {
  MemoryPool pool;
  std::vector<Block> blocks;
  for (std::size_t round = 0; round < 5; ++round) {
    for (std::size_t bytes = 1; bytes < 700; bytes += 7)
      blocks.push_back({pool.allocate(bytes), bytes});
  }
  for (std::size_t i = 0; i < blocks.size(); ++i) {
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(blocks[i].first) % alignof(void*), 0u);
    std::memset(blocks[i].first, static_cast<int>(i % 251), blocks[i].second);
  }
  for (std::size_t i = 0; i < blocks.size(); ++i) {
    const std::vector<unsigned char> expected(blocks[i].second, static_cast<unsigned char>(i % 251));
    EXPECT_EQ(std::memcmp(blocks[i].first, expected.data(), expected.size()), 0);
    pool.deallocate(blocks[i].first, blocks[i].second);
  }
}

TEST(MemoryPool, UsesABlockAgainForTheNextOneOfItsSize) {
  MemoryPool pool;
  void* const first = pool.allocate(40);
  void* const second = pool.allocate(40);
  pool.deallocate(first, 40);
  pool.deallocate(second, 40);
  EXPECT_EQ(pool.allocate(33), second);
  EXPECT_EQ(pool.allocate(48), first);
}

TEST(MemoryPool, TakesNoMoreForWhatIsReplacedAgainAndAgain) {
  MemoryPool pool;
  std::set<void*> places;
  void* block = pool.allocate(1);
  std::size_t bytes = 1;
  for (std::size_t i = 0; i < 10000; ++i) {
    const std::size_t next = 1 + i % 512;
    void* const replacement = pool.allocate(next);
    pool.deallocate(block, bytes);
    block = replacement;
    bytes = next;
    places.insert(block);
  }
  pool.deallocate(block, bytes);
  EXPECT_LE(places.size(), 2 * MemoryPool::numSizes) << "two places of each size";
}

TEST(MemoryPool, KeepsSmallBlocksCloseToEachOther) {
  MemoryPool pool;
  const auto* const first = static_cast<const std::byte*>(pool.allocate(32));
  const auto* const second = static_cast<const std::byte*>(pool.allocate(32));
  EXPECT_EQ(second - first, 32);
}

// A leak is found by the sanitizers.
TEST(MemoryPool, LargeBlocksGoWithIt) {
  MemoryPool pool;
  std::vector<void*> blocks;
  for (std::size_t i = 0; i < 5; ++i)
    blocks.push_back(std::memset(pool.allocate(5000), static_cast<int>(i), 5000));
  for (const std::size_t i : {2u, 0u, 4u}) pool.deallocate(blocks[i], 5000);
  for (const std::size_t i : {1u, 3u})
    EXPECT_EQ(static_cast<unsigned char*>(blocks[i])[4999], static_cast<unsigned char>(i));
}

TEST(MemoryPool, TakesNothingBackOnceItIsAbandoned) {
  MemoryPool pool;
  EXPECT_FALSE(pool.isAbandoned());
  void* const small = pool.allocate(40);
  auto* const large = static_cast<unsigned char*>(pool.allocate(5000));
  pool.abandon();
  EXPECT_TRUE(pool.isAbandoned());
  pool.deallocate(small, 40);
  EXPECT_NE(pool.allocate(40), small);
  pool.deallocate(large, 5000);
  large[4999] = 7;
  EXPECT_EQ(large[4999], 7);
}

#if defined(__SANITIZE_ADDRESS__)

TEST(MemoryPoolDeathTest, ABlockThatIsGivenBackMustNotBeTouched) {
  MemoryPool pool;
  auto* const block = static_cast<volatile char*>(pool.allocate(64));
  block[0] = 1;
  pool.deallocate(const_cast<char*>(block), 64);
  EXPECT_DEATH(block[0] = 2, "use-after-poison");
}

#endif

TEST(PoolAllocator, TakesTheSystemsMemoryWithoutAPool) {
  PoolAllocator<int> system(nullptr);
  int* const memory = system.allocate(3);
  memory[2] = 1;
  system.deallocate(memory, 3);
}

TEST(PoolAllocator, EqualsOneOfTheSamePool) {
  MemoryPool pool;
  const PoolAllocator<int> one(&pool);
  EXPECT_TRUE(one == PoolAllocator<int>(PoolAllocator<char>(&pool)));
  EXPECT_TRUE(one != PoolAllocator<int>(nullptr));
}

}  // namespace
}  // namespace Tesk::KoStyle
