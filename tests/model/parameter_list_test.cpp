// Lists of parameters, as far as no host sees them.
#include "model/parameter_list.h"

#include <gmock/gmock.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "model/mutable_style.h"
#include "support/text.h"

namespace Tesk::KoStyle {
namespace {

using test::text;
using testing::ElementsAre;

std::unique_ptr<MutableParameter> named(Text name) {
  static MutableStyle style(nullptr);
  static MutableAudioEffect parent(style, KOSTYLE_TEXT("e"));
  return std::make_unique<MutableParameter>(parent, std::move(name));
}

MutableParameter* append(ParameterList& list, const std::string& name) {
  return list.append(named(text(name)));
}

std::vector<std::string> namesOf(const ParameterList& list) {
  std::vector<std::string> names;
  for (const MutableParameter& parameter : list) names.push_back(test::utf8(parameter.wholeName()));
  return names;
}

TEST(ParameterList, RefusesNull) {
  ParameterList list;
  EXPECT_EQ(list.append(nullptr), nullptr);
  EXPECT_EQ(list.size(), 0u);
}

TEST(ParameterList, TellsNamesWithEmbeddedNulsApart) {
  ParameterList list;
  const Text one(KOSTYLE_TEXT("a\0x"), 3);
  const Text other(KOSTYLE_TEXT("a\0y"), 3);
  EXPECT_NE(list.append(named(one)), nullptr);
  EXPECT_NE(list.append(named(other)), nullptr);
  EXPECT_NE(append(list, "a"), nullptr);
  EXPECT_EQ(list.append(named(other)), nullptr);
  EXPECT_TRUE(list.containsName(one));
  EXPECT_FALSE(list.containsName(Text(KOSTYLE_TEXT("a\0z"), 3)));
}

TEST(ParameterList, TakesAnyNumberWithoutAName) {
  ParameterList list;
  append(list, "a");
  EXPECT_NE(append(list, ""), nullptr);
  EXPECT_NE(append(list, ""), nullptr);
  EXPECT_THAT(namesOf(list), ElementsAre("", "", "a"));
}

TEST(ParameterList, RenamingSomeParameterOfAnotherListOnlyNamesIt) {
  ParameterList list;
  append(list, "a");
  const auto stranger = named(text("b"));
  list.rename(*stranger, text("c"));
  EXPECT_EQ(stranger->wholeName(), text("c"));
  EXPECT_THAT(namesOf(list), ElementsAre("a"));
  EXPECT_FALSE(list.containsName(text("c")));
}

TEST(ParameterList, DestroysOnlyItsOwnParameters) {
  ParameterList list;
  append(list, "a");
  const auto stranger = named(text("a"));
  list.destroy(*stranger);
  EXPECT_EQ(list.size(), 1u);
  list.destroy(*list.at(0));
  EXPECT_EQ(list.size(), 0u);
  EXPECT_FALSE(list.containsName(text("a")));
}

}  // namespace
}  // namespace Tesk::KoStyle
