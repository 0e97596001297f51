// Running out of memory while a mutable style is edited: the style is as before.
#include <gmock/gmock.h>

#include <functional>

#include "format/style_snapshot.h"
#include "manager/style_manager.h"
#include "memory/failing_allocations.h"
#include "model/mutable_effect.h"
#include "model/mutable_parameter.h"

namespace {

using namespace Tesk::KoStyle;

constexpr const Char* longText = KOSTYLE_TEXT("a text that is long enough to be allocated");

struct Edit {
  const char* name;
  std::function<bool(IMutableStyle&)> apply;
};

void PrintTo(const Edit& edit, std::ostream* out) { *out << edit.name; }

IMutableParameter* parameterOf(IMutableStyle& style, std::size_t index) {
  return style.audioEffect(0)->parameter(index);
}

class EditingWithoutMemory : public testing::TestWithParam<Edit> {
 protected:
  // A style with something of everything, and parameters that are renamed but not sorted yet.
  static std::unique_ptr<MutableStyle> makeStyle() {
    auto style = std::make_unique<MutableStyle>(nullptr);
    style->setName(KOSTYLE_TEXT("a name that is long enough to be allocated"));
    style->addLanguage(1);
    for (const Char* each : {KOSTYLE_TEXT("m"), KOSTYLE_TEXT("z")}) {
      style->addSingerGroup(each);
      style->addGenre(each);
      style->addSubGenre(each);
      style->addColor(each);
    }
    style->insertAudioEffect(0, KOSTYLE_TEXT("E"));
    style->insertMidiEffect(0, KOSTYLE_TEXT("M"));
    for (const Char* each :
         {KOSTYLE_TEXT("a"), KOSTYLE_TEXT("b"), KOSTYLE_TEXT("c"), KOSTYLE_TEXT("d")})
      style->audioEffect(0)->addParameter(each);
    parameterOf(*style, 0)->setValueString(KOSTYLE_TEXT("a value that is long enough to be allocated"));
    parameterOf(*style, 1)->setName(KOSTYLE_TEXT("y"));
    parameterOf(*style, 2)->setName(KOSTYLE_TEXT("x"));
    return style;
  }
};

TEST_P(EditingWithoutMemory, LeavesTheStyleAsItWas) {
  const auto expected = makeStyle();
  const test::StyleSnapshot before = test::snapshot(*expected);
  EXPECT_TRUE(GetParam().apply(*expected));
  const test::StyleSnapshot after = test::snapshot(*expected);
  ASSERT_NE(after, before);

  const auto style = makeStyle();
  bool applied = false;
  const long failures = test::failEachAllocation([&] { applied = GetParam().apply(*style); },
                                                 [&](long n, bool thrown) {
                                                   EXPECT_TRUE(thrown) << n;
                                                   EXPECT_EQ(test::snapshot(*style), before) << n;
                                                 });
  EXPECT_GT(failures, 0);
  EXPECT_TRUE(applied);
  EXPECT_EQ(test::snapshot(*style), after);
}

INSTANTIATE_TEST_SUITE_P(
    Each, EditingWithoutMemory,
    testing::Values(
        Edit{"setName", [](IMutableStyle& style) { return style.setName(longText); }},
        Edit{"addLanguage", [](IMutableStyle& style) { return style.addLanguage(0); }},
        Edit{"addSingerGroup", [](IMutableStyle& style) { return style.addSingerGroup(longText); }},
        Edit{"addSingerID",
             [](IMutableStyle& style) { return style.addSingerID(KOSTYLE_TEXT("1234567890123456")); }},
        Edit{"addGenre", [](IMutableStyle& style) { return style.addGenre(longText); }},
        Edit{"addSubGenre", [](IMutableStyle& style) { return style.addSubGenre(longText); }},
        Edit{"addColor", [](IMutableStyle& style) { return style.addColor(longText); }},
        Edit{"insertAudioEffect",
             [](IMutableStyle& style) { return style.insertAudioEffect(0, longText) != nullptr; }},
        Edit{"insertMidiEffect",
             [](IMutableStyle& style) { return style.insertMidiEffect(9, longText) != nullptr; }},
        Edit{"addFirstParameter",
             [](IMutableStyle& style) {
               return style.midiEffect(0)->addParameter(longText) != nullptr;
             }},
        Edit{"setParameterName",
             [](IMutableStyle& style) { return parameterOf(style, 3)->setName(longText); }},
        Edit{"setParameterNameAgain",
             [](IMutableStyle& style) { return parameterOf(style, 1)->setName(longText); }},
        Edit{
            "setValueString",
            [](IMutableStyle& style) { return parameterOf(style, 0)->setValueString(longText), true; }},
        Edit{"setValueStringOfAnInt",
             [](IMutableStyle& style) {
               return parameterOf(style, 3)->setValueString(longText), true;
             }}),
    [](const auto& edit) { return std::string(edit.param.name); });

// Sorting may do with less memory, so that adding can succeed although an allocation failed.
TEST_F(EditingWithoutMemory, AddingAParameterSortsAllOrNothing) {
  const auto apply = [](IMutableStyle& style) {
    return style.audioEffect(0)->addParameter(longText) != nullptr;
  };
  const auto expected = makeStyle();
  const test::StyleSnapshot before = test::snapshot(*expected);
  apply(*expected);
  const test::StyleSnapshot after = test::snapshot(*expected);
  long thrown = 0;
  for (long n = 0;; ++n) {
    const auto style = makeStyle();
    bool failed = false;
    if (test::runsOutOfMemory(n, failed, [&] { apply(*style); })) {
      ++thrown;
      EXPECT_EQ(test::snapshot(*style), before) << n;
    } else {
      EXPECT_EQ(test::snapshot(*style), after) << n;
    }
    if (!failed) break;
  }
  EXPECT_GT(thrown, 2);
}

// Edits that need no memory cannot fail for want of it.
TEST_F(EditingWithoutMemory, TakingOutNeedsNone) {
  const auto style = makeStyle();
  bool failed = false;
  EXPECT_FALSE(test::runsOutOfMemory(0, failed, [&] {
    style->deleteLanguage(1);
    style->deleteSingerGroup(style->singerGroup(0));
    style->deleteGenre(style->genre(0));
    style->deleteSubGenre(style->subGenre(1));
    style->deleteColor(style->color(1));
    parameterOf(*style, 2)->destroy();
    parameterOf(*style, 0)->setValueInt(5);
    parameterOf(*style, 1)->setValueFloat(2.5f);
    style->audioEffect(0)->move(7);
    style->midiEffect(0)->destroy();
  }));
  EXPECT_FALSE(failed);
  EXPECT_EQ(style->numMidiEffect(), 0u);
  EXPECT_EQ(style->audioEffect(0)->numParameter(), 3u);
  EXPECT_EQ(style->numLanguage(), 0u);
}

}  // namespace
