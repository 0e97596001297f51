#include "containers/text_order.h"

#include <gtest/gtest.h>

#include <vector>

namespace Tesk::KoStyle {
namespace {

// Every text of up to ten units whose last units are taken from a few: shorter and longer than what is
// compared at a time, and unlike each other in each place.
std::vector<Text> someTexts() {
  std::vector<Text> texts;
  for (std::size_t size = 0; size <= 10; ++size) {
    texts.emplace_back(size, Char('b'));
    for (std::size_t place = 0; place < size; ++place) {
      for (const Char unit : {Char(0), Char('a'), Char(0x100), Char(0xD800), Char(0xFFFF)}) {
        texts.emplace_back(size, Char('b'));
        texts.back()[place] = unit;
      }
    }
  }
  return texts;
}

int sign(int number) { return (number > 0) - (number < 0); }

TEST(TextOrder, IsThatOfTextView) {
  const std::vector<Text> texts = someTexts();
  for (const TextView first : texts) {
    for (const TextView second : texts) {
      ASSERT_EQ(sign(compareTexts(first, second)), sign(first.compare(second)));
      ASSERT_EQ(equalTexts(first, second), first == second);
    }
  }
}

TEST(TextOrder, AFrontNeverContradictsIt) {
  const std::vector<Text> texts = someTexts();
  for (const TextView first : texts) {
    for (const TextView second : texts) {
      if (frontOf(first) < frontOf(second)) {
        ASSERT_LT(first.compare(second), 0);
      }
      if (first == second) {
        ASSERT_EQ(frontOf(first), frontOf(second));
      }
    }
  }
}

TEST(TextOrder, TakesATextWithoutUnits) {
  EXPECT_EQ(frontOf(TextView()), 0u);
  EXPECT_EQ(compareTexts(TextView(), TextView()), 0);
  EXPECT_TRUE(equalTexts(TextView(), TextView(KOSTYLE_TEXT(""))));
}

}  // namespace
}  // namespace Tesk::KoStyle
