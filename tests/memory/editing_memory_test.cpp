// Running out of memory while a mutable style is edited: the style is as before.
#include <gmock/gmock.h>

#include <functional>
#include <string>

#include "memory/failing_allocations.h"
#include "support/host.h"
#include "support/style_value.h"

namespace {

constexpr const KoStyleChar* longText = KOSTYLE_TEXT("a text that is long enough to be allocated");

std::basic_string<KoStyleChar> nameOf(int number) {
  return {static_cast<KoStyleChar>('a' + number % 16), static_cast<KoStyleChar>('a' + number / 16)};
}

struct Edit {
  const char* name;
  std::function<bool(KoStyleStyle*)> apply;
};

void PrintTo(const Edit& edit, std::ostream* out) { *out << edit.name; }

KoStyleParameter* parameterOf(KoStyleStyle* style, std::size_t index) {
  return MutableEffect_parameter(MutableStyle_audioEffect(style, 0), index);
}

// A style takes memory in chunks. With so many fillings each place at which an edit asks for some comes
// to be the one where a chunk ends.
constexpr int fillings = 64;

class EditingWithoutMemory : public testing::TestWithParam<Edit> {
 protected:
  // A style with something of everything, and parameters that are renamed but not sorted yet.
  KoStyleStyle* makeStyle(int filling = 0) const {
    KoStyleStyle* const style = StyleManager_createMutableStyle(host.manager);
    MutableStyle_setName(style, KOSTYLE_TEXT("a name that is long enough to be allocated"));
    MutableStyle_addLanguage(style, 1);
    for (int i = 0; i < filling; ++i) MutableStyle_addColor(style, nameOf(i).c_str());
    for (const KoStyleChar* each : {KOSTYLE_TEXT("m"), KOSTYLE_TEXT("z")}) {
      MutableStyle_addSingerGroup(style, each);
      MutableStyle_addGenre(style, each);
      MutableStyle_addSubGenre(style, each);
      MutableStyle_addColor(style, each);
    }
    KoStyleEffect* const effect = MutableStyle_insertAudioEffect(style, 0, KOSTYLE_TEXT("E"));
    MutableStyle_insertMidiEffect(style, 0, KOSTYLE_TEXT("M"));
    for (const KoStyleChar* each :
         {KOSTYLE_TEXT("a"), KOSTYLE_TEXT("b"), KOSTYLE_TEXT("c"), KOSTYLE_TEXT("d")})
      MutableEffect_addParameter(effect, each);
    MutableParameter_setValueString(parameterOf(style, 0),
                                    KOSTYLE_TEXT("a value that is long enough to be allocated"));
    MutableParameter_setName(parameterOf(style, 1), KOSTYLE_TEXT("y"));
    MutableParameter_setName(parameterOf(style, 2), KOSTYLE_TEXT("x"));
    return style;
  }

  // Lets each allocation of an edit fail in turn. Gives the number of failures.
  long failEach(const Edit& edit, int filling) const {
    KoStyleStyle* const expected = makeStyle(filling);
    const test::StyleValue before = test::valueOf(expected);
    EXPECT_TRUE(edit.apply(expected));
    const test::StyleValue after = test::valueOf(expected);
    EXPECT_NE(after, before);

    KoStyleStyle* const style = makeStyle(filling);
    bool applied = false;
    const long failures = test::failEachAllocation([&] { applied = edit.apply(style); },
                                                   [&](long n, bool thrown) {
                                                     EXPECT_TRUE(thrown) << n;
                                                     EXPECT_EQ(test::valueOf(style), before) << n;
                                                   });
    EXPECT_TRUE(applied);
    EXPECT_EQ(test::valueOf(style), after);
    MutableStyle_destroy(expected);
    MutableStyle_destroy(style);
    return failures;
  }

  const test::Host host{};
};

TEST_P(EditingWithoutMemory, LeavesTheStyleAsItWas) {
  long failures = 0;
  for (int filling = 0; filling < fillings; ++filling) failures += failEach(GetParam(), filling);
  EXPECT_GT(failures, 0);
}

INSTANTIATE_TEST_SUITE_P(
    Each, EditingWithoutMemory,
    testing::Values(
        Edit{"setName", [](KoStyleStyle* style) { return MutableStyle_setName(style, longText); }},
        Edit{"addSingerGroup",
             [](KoStyleStyle* style) { return MutableStyle_addSingerGroup(style, longText); }},
        Edit{"addSingerID",
             [](KoStyleStyle* style) {
               return MutableStyle_addSingerID(style, KOSTYLE_TEXT("1234567890123456"));
             }},
        Edit{"addGenre", [](KoStyleStyle* style) { return MutableStyle_addGenre(style, longText); }},
        Edit{"addSubGenre",
             [](KoStyleStyle* style) { return MutableStyle_addSubGenre(style, longText); }},
        Edit{"addColor", [](KoStyleStyle* style) { return MutableStyle_addColor(style, longText); }},
        Edit{"insertAudioEffect",
             [](KoStyleStyle* style) {
               return MutableStyle_insertAudioEffect(style, 0, longText) != nullptr;
             }},
        Edit{"insertMidiEffect",
             [](KoStyleStyle* style) {
               return MutableStyle_insertMidiEffect(style, 9, longText) != nullptr;
             }},
        Edit{"addFirstParameter",
             [](KoStyleStyle* style) {
               return MutableEffect_addParameter(MutableStyle_midiEffect(style, 0), longText) !=
                      nullptr;
             }},
        Edit{"setParameterName",
             [](KoStyleStyle* style) {
               return MutableParameter_setName(parameterOf(style, 3), longText);
             }},
        Edit{"setParameterNameAgain",
             [](KoStyleStyle* style) {
               return MutableParameter_setName(parameterOf(style, 1), longText);
             }},
        Edit{"setValueString",
             [](KoStyleStyle* style) {
               return MutableParameter_setValueString(parameterOf(style, 0), longText), true;
             }},
        Edit{"setValueStringOfAnInt",
             [](KoStyleStyle* style) {
               return MutableParameter_setValueString(parameterOf(style, 3), longText), true;
             }}),
    [](const auto& edit) { return std::string(edit.param.name); });

// Sorting may do with less memory, so that adding can succeed although an allocation failed.
TEST_F(EditingWithoutMemory, AddingAParameterSortsAllOrNothing) {
  const auto apply = [](KoStyleStyle* style) {
    return MutableEffect_addParameter(MutableStyle_audioEffect(style, 0), longText) != nullptr;
  };
  KoStyleStyle* const expected = makeStyle();
  const test::StyleValue before = test::valueOf(expected);
  apply(expected);
  const test::StyleValue after = test::valueOf(expected);
  long thrown = 0;
  for (long n = 0;; ++n) {
    KoStyleStyle* const style = makeStyle();
    bool failed = false;
    if (test::runsOutOfMemory(n, failed, [&] { apply(style); })) {
      ++thrown;
      EXPECT_EQ(test::valueOf(style), before) << n;
    } else {
      EXPECT_EQ(test::valueOf(style), after) << n;
    }
    if (!failed) break;
  }
  EXPECT_GT(thrown, 2);
}

// With the seventeenth element, what finds elements by place and by key changes its form.
TEST_F(EditingWithoutMemory, AListThatGrowsLongStaysAsItWas) {
  bool failed = true;
  for (long n = 0; failed; ++n) {
    KoStyleStyle* const style = makeStyle();
    KoStyleEffect* const effect = MutableStyle_midiEffect(style, 0);
    for (int i = 16; i > 0; --i) ASSERT_TRUE(MutableEffect_addParameter(effect, nameOf(i).c_str()));
    const test::StyleValue before = test::valueOf(style);
    const auto add = [&] { MutableEffect_addParameter(effect, nameOf(0).c_str()); };
    EXPECT_EQ(test::runsOutOfMemory(n, failed, add), failed) << n;
    if (failed) {
      EXPECT_EQ(test::valueOf(style), before) << n;
      EXPECT_FALSE(MutableEffect_addParameter(effect, nameOf(7).c_str())) << n;
      add();
    } else {
      EXPECT_GT(n, 4);
    }
    EXPECT_EQ(Effect_numParameter(effect), 17u);
    for (int i = 0; i <= 16; ++i)
      EXPECT_FALSE(MutableEffect_addParameter(effect, nameOf(i).c_str())) << i;
  }
}

// Edits that need no memory cannot fail for want of it.
TEST_F(EditingWithoutMemory, TakingOutNeedsNone) {
  KoStyleStyle* const style = makeStyle();
  bool failed = false;
  EXPECT_FALSE(test::runsOutOfMemory(0, failed, [&] {
    MutableStyle_deleteLanguage(style, 1);
    MutableStyle_deleteSingerGroup(style, Style_singerGroup(style, 0));
    MutableStyle_deleteGenre(style, Style_genre(style, 0));
    MutableStyle_deleteSubGenre(style, Style_subGenre(style, 1));
    MutableStyle_deleteColor(style, Style_color(style, 1));
    MutableParameter_destroy(parameterOf(style, 2));
    MutableParameter_setValueInt(parameterOf(style, 0), 5);
    MutableParameter_setValueFloat(parameterOf(style, 1), 2.5f);
    MutableEffect_move(MutableStyle_audioEffect(style, 0), 7);
    MutableEffect_destroy(MutableStyle_midiEffect(style, 0));
  }));
  EXPECT_FALSE(failed);
  EXPECT_EQ(Style_numMidiEffect(style), 0u);
  EXPECT_EQ(Effect_numParameter(MutableStyle_audioEffect(style, 0)), 3u);
  EXPECT_EQ(Style_numLanguage(style), 0u);
  for (const test::TextList& list : test::textLists()) EXPECT_LE(list.count(style), 1u) << list.name;
}

}  // namespace
