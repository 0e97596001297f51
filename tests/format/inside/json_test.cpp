// Memory for RapidJSON, which counts in 32 bits.
#include "format/json.h"

#include <gtest/gtest.h>

#include <new>

namespace {

using namespace Tesk::KoStyle;

TEST(JsonMemory, RefusesABlockInWhichALengthCouldWrap) {
  json::ThrowingAllocator allocator;
  EXPECT_THROW(allocator.Malloc(json::largestBlock + 1), std::bad_alloc);
  json::StackMemory stack;
  EXPECT_THROW(stack.Malloc(json::largestBlock + 1), std::bad_alloc);
  void* const memory = stack.Malloc(100);
  EXPECT_THROW(stack.Realloc(memory, 100, json::largestBlock + 1), std::bad_alloc);
  EXPECT_EQ(stack.Realloc(memory, 100, 50), memory) << "what it had stays";
}

TEST(JsonMemory, GivesNothingForNothing) { EXPECT_EQ(json::ThrowingAllocator().Malloc(0), nullptr); }

TEST(JsonString, RefusesATextThatCannotBeCounted) {
  const Char unit = 0;
  EXPECT_EQ(json::stringRef(TextView(&unit, 1)).GetStringLength(), 1u);
  EXPECT_THROW(json::stringRef(TextView(&unit, std::size_t{1} << 32)), std::bad_alloc);
}

}  // namespace
