// Running out of memory while a style is saved: disk, lists and contents are as before.
#include <gmock/gmock.h>

#include "format/style_snapshot.h"
#include "manager/style_manager.h"
#include "memory/disk.h"
#include "memory/failing_allocations.h"
#include "model/mutable_effect.h"
#include "model/mutable_parameter.h"
#include "model/user_style.h"

namespace {

using namespace Tesk::KoStyle;

class SavingWithoutMemory : public testing::Test {
 protected:
  SavingWithoutMemory() {
    test::writeFile(folder / "a.kostyle",
                    R"({"id":"A","name":"A name that is long enough to be allocated","vendor":"V",
                        "filter":{"subGenres":["s"],"colors":["c"],"genres":["a genre of some length"]},
                        "audioEffect":{"E":{"parameter":{"p":1,"q":"a value of some length"}}}})");
    test::writeFile(folder / "b.kostyle",
                    R"({"id":"B","name":"N","midiEffect":{"E":{"parameter":{"p":1}}}})");
    manager.readUserStyles();
    style = dynamic_cast<MutableStyle*>(manager.createMutableStyle());
    style->setName(KOSTYLE_TEXT("a new name that is long enough to be allocated"));
    style->addLanguage(3);
    style->addSingerID(KOSTYLE_TEXT("1234567890123456"));
    for (const Char* each : {KOSTYLE_TEXT("one"), KOSTYLE_TEXT("a text of considerable length")}) {
      style->addSingerGroup(each);
      style->addGenre(each);
      style->addSubGenre(each);
      style->addColor(each);
      auto* const audio = style->insertAudioEffect(0, each);
      audio->addParameter(KOSTYLE_TEXT("f"))->setValueFloat(2.5f);
      audio->addParameter(KOSTYLE_TEXT("s"))->setValueString(each);
      style->insertMidiEffect(9, each)->addParameter(each);
    }
  }

  // All that a failed save must not change.
  struct State {
    std::map<std::string, std::string> files;
    std::vector<const StyleBase*> objects;
    std::vector<test::StyleSnapshot> contents;
    std::vector<Text> paths;
    bool operator==(const State& other) const {
      return files == other.files && objects == other.objects && contents == other.contents &&
             paths == other.paths;
    }
  };
  State state() {
    State state;
    state.files = test::filesOf(folder);
    for (const StyleKind kind : {StyleKind::user, StyleKind::editable}) {
      for (const StyleBase& each : manager.styles(kind)) {
        state.objects.push_back(&each);
        state.contents.push_back(test::snapshot(each));
        state.paths.emplace_back(each.path());
      }
    }
    return state;
  }

  template <class Save>
  void failEachAllocationOf(Save save) {
    const State before = state();
    const long failures = test::failEachAllocation(save, [&](long n, bool thrown) {
      ASSERT_TRUE(thrown) << n;
      ASSERT_TRUE(state() == before) << n;
    });
    EXPECT_GT(failures, 5);
    EXPECT_FALSE(state() == before) << "the save that had its memory";
  }

  UserStyle* userStyle(const char* id) {
    return dynamic_cast<UserStyle*>(manager.styles(StyleKind::user).findKey(test::text(id)));
  }

  // The styles that another manager finds in the folder.
  std::map<std::string, test::StyleSnapshot> stored() {
    StyleManager other(test::text("other"), test::pathText(folder), test::pathText(folder), {}, {});
    other.readUserStyles();
    std::map<std::string, test::StyleSnapshot> styles;
    for (const StyleBase& each : other.styles(StyleKind::user))
      styles[test::utf8(each.id())] = test::snapshot(each);
    return styles;
  }

  test::TemporaryDirectory directory;
  test::fs::path folder = directory.folder("user");
  StyleManager manager{
      test::text("app"), test::pathText(directory.path()), test::pathText(folder), {}, {}};
  MutableStyle* style = nullptr;
};

class SavingInEitherForm : public SavingWithoutMemory, public testing::WithParamInterface<bool> {};

TEST_P(SavingInEitherForm, ANewStyleLeavesNoTrace) {
  test::StyleSnapshot expected = test::snapshot(*style);
  IUserStyle* saved = nullptr;
  std::uint32_t error = 99;
  failEachAllocationOf([&] { saved = style->save(GetParam(), &error); });
  ASSERT_NE(saved, nullptr);
  EXPECT_EQ(error, unsigned{KOSTYLE_OK});
  EXPECT_EQ(manager.numUserStyle(), 3u);
  EXPECT_TRUE(manager.styles(StyleKind::editable).empty());
  EXPECT_EQ(test::filesOf(folder).size(), 3u);
  expected.id = saved->id();
  EXPECT_EQ(stored().at(test::utf8(saved->id())), expected);
}

TEST_P(SavingInEitherForm, AnOverwriteLeavesTheOldStyle) {
  test::StyleSnapshot expected = test::snapshot(*style);
  IUserStyle* saved = nullptr;
  std::uint32_t error = 99;
  failEachAllocationOf([&] { saved = style->overwrite(KOSTYLE_TEXT("A"), GetParam(), &error); });
  EXPECT_EQ(saved, userStyle("A"));
  EXPECT_EQ(error, unsigned{KOSTYLE_OK});
  EXPECT_TRUE(manager.styles(StyleKind::editable).empty());
  EXPECT_THAT(test::entryNames(folder), testing::ElementsAre("a.kostyle", "b.kostyle"));
  expected.id = test::text("A");
  EXPECT_EQ(stored().at("A"), expected);
}

INSTANTIATE_TEST_SUITE_P(Forms, SavingInEitherForm, testing::Bool(),
                         [](const auto& pretty) { return pretty.param ? "Indented" : "Compact"; });

TEST_F(SavingWithoutMemory, AnEditorLeavesFileAndStyle) {
  IPropertyEditor* const editor = userStyle("A")->createPropertyEditor();
  editor->setStyleName(KOSTYLE_TEXT("an edited name that is long enough to be allocated"));
  editor->addSubGenre(KOSTYLE_TEXT("a sub-genre of considerable length"));
  editor->addColor(KOSTYLE_TEXT("red"));
  bool saved = false;
  failEachAllocationOf([&] { saved = editor->save(false); });
  EXPECT_TRUE(saved);
  const auto after = stored().at("A");
  EXPECT_EQ(after.name, test::text("an edited name that is long enough to be allocated"));
  EXPECT_THAT(after.subGenres, testing::ElementsAre(test::text("a sub-genre of considerable length")));
  EXPECT_THAT(after.colors, testing::ElementsAre(test::text("red")));
}

TEST_F(SavingWithoutMemory, AnEditorKeepsItsPendingValues) {
  IPropertyEditor* const editor = userStyle("B")->createPropertyEditor();
  const Char* const text = KOSTYLE_TEXT("a text that is long enough to be allocated");
  editor->setStyleName(KOSTYLE_TEXT("first"));
  const auto mustThrow = [](long, bool thrown) { EXPECT_TRUE(thrown); };
  EXPECT_GT(test::failEachAllocation([&] { EXPECT_TRUE(editor->setStyleName(text)); }, mustThrow), 0);
  EXPECT_GT(test::failEachAllocation([&] { EXPECT_TRUE(editor->addSubGenre(text)); }, mustThrow), 0);
  EXPECT_GT(test::failEachAllocation([&] { EXPECT_TRUE(editor->addColor(text)); }, mustThrow), 0);
  EXPECT_TRUE(editor->save(true));
  EXPECT_EQ(test::snapshot(*userStyle("B")).subGenres, std::vector<Text>{text});
  EXPECT_EQ(test::snapshot(*userStyle("B")).colors, std::vector<Text>{text});
}

TEST_F(SavingWithoutMemory, MakingAnEditorKeepsTheEarlierOne) {
  UserStyle* const user = userStyle("B");
  IPropertyEditor* const earlier = user->createPropertyEditor();
  earlier->setStyleName(KOSTYLE_TEXT("pending"));
  IPropertyEditor* editor = nullptr;
  EXPECT_GT(test::failEachAllocation([&] { editor = user->createPropertyEditor(); },
                                     [&](long, bool thrown) {
                                       EXPECT_TRUE(thrown);
                                       EXPECT_TRUE(earlier->save(false)) << "the editor still works";
                                     }),
            0);
  EXPECT_FALSE(editor->save(false)) << "the new editor has no name yet";
  EXPECT_EQ(test::utf8(user->name()), "pending");
}

}  // namespace
