// Lists of parameters, as far as no host sees them.
#include "model/parameter_list.h"

#include <gtest/gtest.h>

#include <utility>

#include "model/mutable_style.h"
#include "platform/text.h"

namespace Tesk::KoStyle {
namespace {

MutableParameter* append(ParameterList& list, Text name) {
  static MutableStyle style(nullptr);
  static MutableAudioEffect parent(style, KOSTYLE_TEXT("e"));
  return list.append(parent, std::move(name));
}

TEST(ParameterList, TellsNamesWithEmbeddedNulsApart) {
  ParameterList list;
  const Text one(KOSTYLE_TEXT("a\0x"), 3);
  const Text other(KOSTYLE_TEXT("a\0y"), 3);
  EXPECT_NE(append(list, one), nullptr);
  EXPECT_NE(append(list, other), nullptr);
  EXPECT_NE(append(list, KOSTYLE_TEXT("a")), nullptr);
  EXPECT_EQ(append(list, other), nullptr);
  EXPECT_TRUE(list.containsName(one));
  EXPECT_FALSE(list.containsName(Text(KOSTYLE_TEXT("a\0z"), 3)));
}

}  // namespace
}  // namespace Tesk::KoStyle
