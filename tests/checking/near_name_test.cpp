#include "checking/near_name.h"

#include <gmock/gmock.h>

namespace {

using tool::nearName;
using tool::Text;

const std::vector<tool::TextView> known{KOSTYLE_TEXT("id"), KOSTYLE_TEXT("name"),
                                        KOSTYLE_TEXT("parameter"), KOSTYLE_TEXT("colors")};

TEST(NearName, FindsWhatDiffersByTwoLettersAtMost) {
  EXPECT_EQ(nearName(KOSTYLE_TEXT("parameters"), known), KOSTYLE_TEXT("parameter"));
  EXPECT_EQ(nearName(KOSTYLE_TEXT("paramter"), known), KOSTYLE_TEXT("parameter"));
  EXPECT_EQ(nearName(KOSTYLE_TEXT("praameter"), known), KOSTYLE_TEXT("parameter"));
  EXPECT_EQ(nearName(KOSTYLE_TEXT("colours"), known), KOSTYLE_TEXT("colors"));
  EXPECT_EQ(nearName(KOSTYLE_TEXT("colour"), known), KOSTYLE_TEXT("colors"));
  EXPECT_EQ(nearName(KOSTYLE_TEXT("parametric"), known), Text());
}

TEST(NearName, TakesCaseForNoMistake) {
  EXPECT_EQ(nearName(KOSTYLE_TEXT("ID"), known), KOSTYLE_TEXT("id"));
  EXPECT_EQ(nearName(KOSTYLE_TEXT("NAMES"), known), KOSTYLE_TEXT("name"));
}

TEST(NearName, AShortNameIsNotNearToEverything) {
  EXPECT_EQ(nearName(KOSTYLE_TEXT("x"), known), Text());
  EXPECT_EQ(nearName(KOSTYLE_TEXT("ab"), known), Text());
  EXPECT_EQ(nearName(Text(), known), Text());
}

}  // namespace
