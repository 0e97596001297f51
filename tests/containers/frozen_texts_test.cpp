#include "containers/frozen_texts.h"

#include <gmock/gmock.h>

#include <optional>
#include <utility>
#include <vector>

namespace Tesk::KoStyle {
namespace {

const Text withNull(KOSTYLE_TEXT("a\0b"), 3);

TEST(FrozenText, IsEmptyAtFirst) {
  const FrozenText none;
  EXPECT_TRUE(none.empty());
  EXPECT_EQ(*none.c_str(), 0);
  EXPECT_EQ(none, FrozenText(TextView()));
}

TEST(FrozenText, KeepsAWholeCopyThatEndsWithNull) {
  Text original = withNull;
  const FrozenText text(original);
  original = Text();
  EXPECT_EQ(TextView(text), withNull);
  EXPECT_EQ(text.c_str()[3], 0);
  EXPECT_EQ(text, FrozenText(withNull));
}

TEST(FrozenText, EndsEarlierWithoutMoving) {
  FrozenText text(withNull);
  const Char* const place = text.c_str();
  text.truncate(1);
  EXPECT_EQ(TextView(text), KOSTYLE_TEXT("a"));
  EXPECT_EQ(text.c_str(), place);
}

TEST(FrozenTexts, AreEmptyAtFirst) {
  const FrozenTexts none;
  EXPECT_TRUE(none.empty());
  EXPECT_EQ(none.at(0), nullptr);
  EXPECT_EQ(none.begin(), none.end());
  EXPECT_TRUE(FrozenTexts(std::vector<Text>()).empty());
}

TEST(FrozenTexts, KeepWholeCopiesThatEndWithNull) {
  std::vector<Text> originals{KOSTYLE_TEXT("one"), Text(), withNull};
  const FrozenTexts texts(originals);
  originals.clear();
  ASSERT_EQ(texts.size(), 3u);
  EXPECT_EQ(*texts.at(0), KOSTYLE_TEXT("one"));
  EXPECT_EQ(*texts.at(1), TextView());
  EXPECT_EQ(*texts.at(2), withNull);
  EXPECT_EQ(texts.at(3), nullptr);
  for (const TextView text : texts) EXPECT_EQ(text.data()[text.size()], 0);
}

TEST(FrozenTexts, MoveWithoutMovingTheirTexts) {
  FrozenTexts texts(std::vector<Text>{withNull});
  const Char* const text = texts.at(0)->data();
  FrozenTexts moved(std::move(texts));
  EXPECT_EQ(moved.at(0)->data(), text);
  texts = std::move(moved);
  EXPECT_EQ(texts.at(0)->data(), text);
}

// Sanitizers would report a block that goes too early or never.
TEST(FrozenTextBlock, LastsAsLongAsAnyOfItsTexts) {
  const std::vector<Text> list{KOSTYLE_TEXT("x"), withNull};
  std::optional<FrozenText> single;
  FrozenTexts texts;
  {
    FrozenTextBlock block(2, unitsOf(KOSTYLE_TEXT("name")) + unitsOf(list[0]) + unitsOf(list[1]));
    single = block.add(KOSTYLE_TEXT("name"));
    texts = block.addList(list);
    EXPECT_TRUE(block.addList(std::vector<Text>()).empty());
  }
  EXPECT_EQ(TextView(*single), KOSTYLE_TEXT("name"));
  const FrozenText copy = *single;
  single.reset();
  EXPECT_THAT(std::vector<Text>(texts.begin(), texts.end()), testing::ElementsAreArray(list));
  texts = FrozenTexts();
  EXPECT_EQ(TextView(copy), KOSTYLE_TEXT("name"));
}

}  // namespace
}  // namespace Tesk::KoStyle
