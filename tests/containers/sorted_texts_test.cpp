#include "containers/sorted_texts.h"

#include <gmock/gmock.h>

#include <cstdint>
#include <random>
#include <set>
#include <string>
#include <vector>

namespace Tesk::KoStyle {
namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;

// Texts that are shorter and longer than what a comparison takes at a time.
Text numbered(int number) {
  std::string digits = std::to_string(number);
  digits.insert(0, number % 3 == 0 ? "" : "a longer text ");
  return Text(digits.begin(), digits.end());
}

std::vector<Text> valuesOf(const SortedTexts& texts) { return {texts.begin(), texts.end()}; }

TEST(SortedTexts, AreEmptyAtFirst) {
  const SortedTexts texts;
  EXPECT_TRUE(texts.empty());
  EXPECT_EQ(texts.size(), 0u);
  EXPECT_EQ(texts.at(0), nullptr);
  EXPECT_FALSE(texts.begin() != texts.end());
}

TEST(SortedTexts, StandByUnitWithFrontPartsFirst) {
  const Text surrogate(1, Char(0xD800));
  const Text privateUse(1, Char(0xE000));
  const Text withNul(KOSTYLE_TEXT("a\0b"), 3);
  const Text withNulBehind(KOSTYLE_TEXT("a\0"), 2);
  SortedTexts texts;
  for (const Text& value :
       {Text(KOSTYLE_TEXT("b")), Text(KOSTYLE_TEXT("ab")), privateUse, surrogate, withNulBehind,
        Text(KOSTYLE_TEXT("B")), withNul, Text(KOSTYLE_TEXT("a")), Text(KOSTYLE_TEXT("abcdefgh")),
        Text(KOSTYLE_TEXT("abcdefg")), Text(KOSTYLE_TEXT("abcdeg")), Text(KOSTYLE_TEXT("abcd"))}) {
    EXPECT_TRUE(texts.insert(value));
  }
  EXPECT_THAT(
      valuesOf(texts),
      ElementsAre(KOSTYLE_TEXT("B"), KOSTYLE_TEXT("a"), withNulBehind, withNul, KOSTYLE_TEXT("ab"),
                  KOSTYLE_TEXT("abcd"), KOSTYLE_TEXT("abcdefg"), KOSTYLE_TEXT("abcdefgh"),
                  KOSTYLE_TEXT("abcdeg"), KOSTYLE_TEXT("b"), surrogate, privateUse));
  EXPECT_EQ(TextView(*texts.at(1)), KOSTYLE_TEXT("a"));
  EXPECT_EQ(texts.at(12), nullptr);
  EXPECT_EQ(texts.at(SIZE_MAX), nullptr);
}

TEST(SortedTexts, RefuseASecondEqualText) {
  SortedTexts texts;
  EXPECT_TRUE(texts.insert(KOSTYLE_TEXT("a")));
  EXPECT_FALSE(texts.insert(KOSTYLE_TEXT("a")));
  EXPECT_EQ(texts.size(), 1u);
}

TEST(SortedTexts, EraseOnlyWhatIsHere) {
  SortedTexts texts;
  EXPECT_FALSE(texts.erase(KOSTYLE_TEXT("a")));
  for (const TextView text : {KOSTYLE_TEXT("a"), KOSTYLE_TEXT("b"), KOSTYLE_TEXT("c")})
    texts.insert(text);
  EXPECT_FALSE(texts.erase(KOSTYLE_TEXT("d")));
  EXPECT_TRUE(texts.erase(KOSTYLE_TEXT("b")));
  EXPECT_FALSE(texts.erase(KOSTYLE_TEXT("b")));
  EXPECT_THAT(valuesOf(texts), ElementsAre(KOSTYLE_TEXT("a"), KOSTYLE_TEXT("c")));
}

TEST(SortedTexts, StayWhereTheyAreUntilTheyAreErased) {
  SortedTexts texts;
  texts.insert(KOSTYLE_TEXT("m"));
  const PooledText* const kept = texts.at(0);
  for (Char unit = 'a'; unit <= 'z'; ++unit) texts.insert(TextView(&unit, 1));
  for (Char unit = 'a'; unit < 'm'; ++unit) EXPECT_TRUE(texts.erase(TextView(&unit, 1)));
  EXPECT_EQ(texts.at(0), kept);
  EXPECT_EQ(TextView(*kept), KOSTYLE_TEXT("m"));
}

TEST(SortedTexts, MayBeGivenBack) {
  SortedTexts texts;
  texts.insert(Text(100, Char('x')));
  texts.insert(KOSTYLE_TEXT("a"));
  EXPECT_FALSE(texts.insert(*texts.at(1)));
  EXPECT_TRUE(texts.erase(*texts.at(1)));
  EXPECT_TRUE(texts.erase(*texts.at(0)));
  EXPECT_TRUE(texts.empty());
}

TEST(SortedTexts, AgreeWithTheStandardSetThroughRandomChanges) {
  std::mt19937 random(7);
  std::uniform_int_distribution<int> number(0, 299);
  SortedTexts texts;
  std::set<Text> reference;
  for (int step = 0; step < 20000; ++step) {
    const Text candidate = numbered(number(random));
    if (random() % 2 == 0) {
      EXPECT_EQ(texts.insert(candidate), reference.insert(candidate).second);
    } else {
      EXPECT_EQ(texts.erase(candidate), reference.erase(candidate) == 1);
    }
    ASSERT_EQ(texts.size(), reference.size());
    if (step % 500 == 0) {
      EXPECT_THAT(valuesOf(texts), ElementsAreArray(reference.begin(), reference.end()));
    }
  }
}

}  // namespace
}  // namespace Tesk::KoStyle
