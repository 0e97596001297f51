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
  for (const TextView a : texts) {
    for (const TextView b : texts) {
      ASSERT_EQ(sign(compareTexts(a, b)), sign(a.compare(b)));
      ASSERT_EQ(equalTexts(a, b), a == b);
    }
  }
}

TEST(TextOrder, AFrontNeverContradictsIt) {
  const std::vector<Text> texts = someTexts();
  for (const TextView a : texts) {
    for (const TextView b : texts) {
      if (frontOf(a) < frontOf(b)) {
        ASSERT_LT(a.compare(b), 0);
      }
      if (a == b) {
        ASSERT_EQ(frontOf(a), frontOf(b));
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
