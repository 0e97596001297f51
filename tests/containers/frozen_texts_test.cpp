#include "containers/frozen_texts.h"

#include <gmock/gmock.h>

#include <utility>
#include <vector>

namespace Tesk::KoStyle {
namespace {

const Text withNull(KOSTYLE_TEXT("a\0b"), 3);

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

}  // namespace
}  // namespace Tesk::KoStyle
