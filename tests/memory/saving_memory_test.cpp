// Running out of memory while a style is saved: disk, lists and contents are as before.
#include <gmock/gmock.h>

#include "memory/disk.h"
#include "memory/failing_allocations.h"
#include "support/host.h"
#include "support/style_value.h"

namespace {

using test::Text;
using test::text;

class SavingWithoutMemory : public testing::Test {
 protected:
  SavingWithoutMemory() {
    test::writeFile(host.user / "a.kostyle",
                    R"({"id":"A","name":"A name that is long enough to be allocated","vendor":"V",
                        "filter":{"subGenres":["s"],"colors":["c"],"genres":["a genre of some length"]},
                        "audioEffect":{"E":{"parameter":{"p":1,"q":"a value of some length"}}}})");
    host.addUserStyle("b", test::document("B", "N"));
    MutableStyle_setName(style, KOSTYLE_TEXT("a new name that is long enough to be allocated"));
    MutableStyle_addLanguage(style, 3);
    MutableStyle_addSingerID(style, KOSTYLE_TEXT("1234567890123456"));
    for (const KoStyleChar* each :
         {KOSTYLE_TEXT("one"), KOSTYLE_TEXT("a text of considerable length")}) {
      MutableStyle_addSingerGroup(style, each);
      MutableStyle_addGenre(style, each);
      MutableStyle_addSubGenre(style, each);
      MutableStyle_addColor(style, each);
      KoStyleEffect* const audio = MutableStyle_insertAudioEffect(style, 0, each);
      MutableParameter_setValueFloat(MutableEffect_addParameter(audio, KOSTYLE_TEXT("f")), 2.5f);
      MutableParameter_setValueString(MutableEffect_addParameter(audio, KOSTYLE_TEXT("s")), each);
      MutableEffect_addParameter(MutableStyle_insertMidiEffect(style, 9, each), each);
    }
  }

  // All that a failed save must not change.
  struct State {
    std::map<std::string, std::string> files;
    bool hasMutableStyle;
    test::StyleValue mutableValue;
    std::vector<KoStyleStyle*> styles;
    std::vector<test::StoredValue> values;
    std::vector<Text> paths;
    bool operator==(const State& other) const {
      return files == other.files && hasMutableStyle == other.hasMutableStyle &&
             mutableValue == other.mutableValue && styles == other.styles && values == other.values &&
             paths == other.paths;
    }
  };
  State state() const {
    State state;
    state.files = test::filesOf(host.user);
    state.hasMutableStyle = StyleManager_hasMutableStyle(host.manager, style);
    if (state.hasMutableStyle) state.mutableValue = test::valueOf(style);
    for (std::size_t i = 0; KoStyleStyle* each = StyleManager_userStyle(host.manager, i); ++i) {
      state.styles.push_back(each);
      state.values.push_back(test::storedValueOf(each));
      state.paths.emplace_back(Style_path(each));
    }
    return state;
  }

  template <class Save>
  void failEachAllocationOf(Save save) const {
    const State before = state();
    const long failures = test::failEachAllocation(save, [&](long n, bool thrown) {
      ASSERT_TRUE(thrown) << n;
      ASSERT_TRUE(state() == before) << n;
    });
    EXPECT_GT(failures, 2);
    EXPECT_FALSE(state() == before) << "the save that had its memory";
  }

  // The value of a style that another manager finds in the folder.
  test::StyleValue reread(const std::string& id) const {
    const test::Manager other(host.system, host.user);
    StyleManager_readUserStyles(other);
    for (std::size_t i = 0; KoStyleStyle* each = StyleManager_userStyle(other, i); ++i) {
      if (test::utf8(Style_id(each)) == id) return test::valueOf(each);
    }
    throw std::runtime_error("not found: " + id);
  }

  const test::Host host;
  KoStyleStyle* const style = StyleManager_createMutableStyle(host.manager);
};

class SavingInEitherForm : public SavingWithoutMemory, public testing::WithParamInterface<bool> {};

TEST_P(SavingInEitherForm, ANewStyleLeavesNoTrace) {
  const test::StyleValue expected = test::valueOf(style);
  KoStyleStyle* saved = nullptr;
  int error = -1;
  failEachAllocationOf([&] { saved = MutableStyle_save(style, GetParam(), &error); });
  ASSERT_NE(saved, nullptr);
  EXPECT_EQ(error, KOSTYLE_OK);
  EXPECT_EQ(StyleManager_numUserStyle(host.manager), 3u);
  EXPECT_FALSE(StyleManager_hasMutableStyle(host.manager, style));
  EXPECT_EQ(test::filesOf(host.user).size(), 3u);
  EXPECT_EQ(test::valueOf(saved), expected);
  EXPECT_EQ(reread(test::utf8(Style_id(saved))), expected);
}

TEST_P(SavingInEitherForm, AnOverwriteLeavesTheOldStyle) {
  const test::StyleValue expected = test::valueOf(style);
  KoStyleStyle* saved = nullptr;
  int error = -1;
  failEachAllocationOf(
      [&] { saved = MutableStyle_overwrite(style, KOSTYLE_TEXT("A"), GetParam(), &error); });
  EXPECT_EQ(saved, host.userStyle("A"));
  EXPECT_EQ(error, KOSTYLE_OK);
  EXPECT_FALSE(StyleManager_hasMutableStyle(host.manager, style));
  EXPECT_THAT(test::entryNames(host.user), testing::ElementsAre("a.kostyle", "b.kostyle"));
  EXPECT_EQ(test::valueOf(saved), expected);
  EXPECT_EQ(reread("A"), expected);
}

INSTANTIATE_TEST_SUITE_P(Forms, SavingInEitherForm, testing::Bool(),
                         [](const auto& pretty) { return pretty.param ? "Indented" : "Compact"; });

TEST_F(SavingWithoutMemory, AnEditorLeavesFileAndStyle) {
  KoStylePropertyEditor* const editor = UserStyle_createPropertyEditor(host.userStyle("A"));
  PropertyEditor_setStyleName(editor,
                              KOSTYLE_TEXT("an edited name that is long enough to be allocated"));
  PropertyEditor_addSubGenre(editor, KOSTYLE_TEXT("a sub-genre of considerable length"));
  PropertyEditor_addColor(editor, KOSTYLE_TEXT("red"));
  bool saved = false;
  failEachAllocationOf([&] { saved = PropertyEditor_save(editor, false); });
  EXPECT_TRUE(saved);
  const test::StyleValue after = reread("A");
  EXPECT_EQ(after.name, text("an edited name that is long enough to be allocated"));
  EXPECT_THAT(after.lists[test::subGenres],
              testing::ElementsAre(text("a sub-genre of considerable length")));
  EXPECT_THAT(after.lists[test::colors], testing::ElementsAre(text("red")));
}

TEST_F(SavingWithoutMemory, AnEditorKeepsItsPendingValues) {
  KoStylePropertyEditor* const editor = UserStyle_createPropertyEditor(host.userStyle("B"));
  const KoStyleChar* const word = KOSTYLE_TEXT("a text that is long enough to be allocated");
  PropertyEditor_setStyleName(editor, KOSTYLE_TEXT("first"));
  const auto expectFailures = [](auto edit) {
    EXPECT_GT(test::failEachAllocation([&] { EXPECT_TRUE(edit()); },
                                       [](long, bool thrown) { EXPECT_TRUE(thrown); }),
              0);
  };
  expectFailures([&] { return PropertyEditor_setStyleName(editor, word); });
  expectFailures([&] { return PropertyEditor_addSubGenre(editor, word); });
  expectFailures([&] { return PropertyEditor_addColor(editor, word); });
  EXPECT_TRUE(PropertyEditor_save(editor, true));
  const test::StyleValue after = test::valueOf(host.userStyle("B"));
  EXPECT_EQ(after.name, word);
  EXPECT_EQ(after.lists[test::subGenres], std::vector<Text>{word});
  EXPECT_EQ(after.lists[test::colors], std::vector<Text>{word});
}

TEST_F(SavingWithoutMemory, MakingAnEditorKeepsTheEarlierOne) {
  KoStyleStyle* const user = host.userStyle("B");
  KoStylePropertyEditor* const earlier = UserStyle_createPropertyEditor(user);
  PropertyEditor_setStyleName(earlier, KOSTYLE_TEXT("pending"));
  KoStylePropertyEditor* editor = nullptr;
  EXPECT_GT(test::failEachAllocation([&] { editor = UserStyle_createPropertyEditor(user); },
                                     [&](long, bool thrown) {
                                       EXPECT_TRUE(thrown);
                                       EXPECT_TRUE(PropertyEditor_save(earlier, false))
                                           << "the editor still works";
                                     }),
            0);
  EXPECT_FALSE(PropertyEditor_save(editor, false)) << "the new editor has no name yet";
  EXPECT_EQ(test::utf8(Style_name(user)), "pending");
}

}  // namespace
