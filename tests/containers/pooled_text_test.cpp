#include "containers/pooled_text.h"

#include <gtest/gtest.h>

#include <utility>

namespace Tesk::KoStyle {
namespace {

class PooledTextTest : public testing::TestWithParam<bool> {
 protected:
  PooledText make(TextView text) { return {GetParam() ? &pool_ : nullptr, text}; }

 private:
  MemoryPool pool_;
};

TEST_P(PooledTextTest, HoldsACopyWithItsEnd) {
  Text original = KOSTYLE_TEXT("text");
  const PooledText text = make(original);
  original[0] = u'n';
  EXPECT_EQ(TextView(text), KOSTYLE_TEXT("text"));
  EXPECT_EQ(text.data()[4], 0);
}

TEST_P(PooledTextTest, MayHoldTheEndInside) {
  const TextView whole(KOSTYLE_TEXT("a\0b"), 3);
  EXPECT_EQ(TextView(make(whole)), whole);
}

TEST_P(PooledTextTest, IsEmptyWithoutText) {
  EXPECT_TRUE(TextView(PooledText()).empty());
  const PooledText empty = make(TextView());
  EXPECT_TRUE(TextView(empty).empty());
  EXPECT_EQ(*empty.data(), 0);
}

TEST_P(PooledTextTest, StaysWhereItIsWhenItIsMoved) {
  PooledText first = make(KOSTYLE_TEXT("first"));
  const Char* const place = first.data();
  PooledText second = make(KOSTYLE_TEXT("second"));
  second = std::move(first);
  EXPECT_EQ(second.data(), place);
  const PooledText third(std::move(second));
  EXPECT_EQ(third.data(), place);
}

TEST_P(PooledTextTest, HoldsALongText) {
  const Text text(10000, u'x');
  EXPECT_EQ(TextView(make(text)), text);
}

INSTANTIATE_TEST_SUITE_P(Memory, PooledTextTest, testing::Bool(),
                         [](const auto& each) { return each.param ? "OfAPool" : "OfTheSystem"; });

}  // namespace
}  // namespace Tesk::KoStyle
