// Editing the name, sub-genres and colours of user styles.
#include <gmock/gmock.h>
#include <kostyle/kostyle.h>

#include <string>

#include "support/host.h"
#include "support/style_value.h"

namespace {

using test::document;
using test::Text;
using test::text;
using test::utf8;
using test::valueOf;
using testing::ElementsAre;

class PropertyEditor : public testing::Test {
 protected:
  static std::string fullDocument() {
    return R"({"id":"u","name":"old","vendor":"V","filter":{"languages":[1],"genres":["g"],)"
           R"("subGenres":["s"],"colors":["c"]},"audioEffect":{"E":{"parameter":{"p":1}}}})";
  }
  bool setName(const char* name) { return PropertyEditor_setStyleName(editor, text(name).c_str()); }
  bool addSubGenre(const char* word) { return PropertyEditor_addSubGenre(editor, text(word).c_str()); }
  bool addColor(const char* word) { return PropertyEditor_addColor(editor, text(word).c_str()); }
  bool save(bool pretty = false) { return PropertyEditor_save(editor, pretty); }
  std::string content() const { return test::readFile(file); }

  /// Expects save() to fail and to leave the file and the style as they are.
  void expectRefused() {
    const test::StyleValue before = valueOf(style);
    const std::string contentBefore = content();
    EXPECT_FALSE(save());
    EXPECT_EQ(valueOf(style), before);
    EXPECT_EQ(content(), contentBefore);
  }

  /// Makes the style's file one that cannot be opened.
  void putDirectoryInFilesPlace() const {
    test::fs::remove(file);
    test::fs::create_directory(file);
  }

  test::Host host;
  KoStyleStyle* style = host.addUserStyle("u", fullDocument());
  test::fs::path file = host.user / "u.kostyle";
  KoStylePropertyEditor* editor = UserStyle_createPropertyEditor(style);
};

TEST_F(PropertyEditor, RefusesToSaveWithoutAName) {
  expectRefused();
  addSubGenre("x");
  addColor("x");
  expectRefused();
}

TEST_F(PropertyEditor, TakesAnyNameButSavesOneOf100UnitsAtMost) {
  EXPECT_TRUE(setName(std::string(101, 'n').c_str()));
  expectRefused();
  EXPECT_TRUE(setName(std::string(100, 'n').c_str()));
  EXPECT_TRUE(save());
  EXPECT_EQ(Style_name(style), Text(100, KoStyleChar('n')));
}

TEST_F(PropertyEditor, RefusesNullAndEmptyTextsAndKeepsWhatItHas) {
  EXPECT_TRUE(setName("kept"));
  EXPECT_FALSE(setName(""));
  EXPECT_FALSE(PropertyEditor_setStyleName(editor, nullptr));
  EXPECT_FALSE(addSubGenre(""));
  EXPECT_FALSE(PropertyEditor_addSubGenre(editor, nullptr));
  EXPECT_FALSE(addColor(""));
  EXPECT_FALSE(PropertyEditor_addColor(editor, nullptr));
  EXPECT_TRUE(save());
  EXPECT_EQ(utf8(Style_name(style)), "kept");
}

TEST_F(PropertyEditor, TakesATextOnce) {
  EXPECT_TRUE(addSubGenre("x"));
  EXPECT_FALSE(addSubGenre("x"));
  EXPECT_TRUE(addSubGenre("X"));
  EXPECT_TRUE(addColor("x"));
  EXPECT_FALSE(addColor("x"));
  EXPECT_TRUE(addColor("s")) << "the style's own texts do not count";
}

TEST_F(PropertyEditor, ChangesNothingBeforeItSaves) {
  const test::StyleValue before = valueOf(style);
  setName("new");
  addSubGenre("x");
  addColor("x");
  EXPECT_EQ(valueOf(style), before);
  EXPECT_EQ(content(), fullDocument());
}

TEST_F(PropertyEditor, EmptiesTheListsThatNothingWasAddedTo) {
  test::StyleValue expected = valueOf(style);
  expected.name = text("A");
  expected.lists[test::subGenres].clear();
  expected.lists[test::colors].clear();
  ASSERT_TRUE(setName("A"));
  ASSERT_TRUE(save());
  EXPECT_EQ(valueOf(style), expected);
  ASSERT_EQ(StyleManager_readUserStyles(host.manager), KOSTYLE_OK);
  EXPECT_EQ(valueOf(host.userStyle("u")), expected);
}

TEST_F(PropertyEditor, ReplacesTheListsWithSortedOnes) {
  setName("A");
  for (const char* word : {"red", "blue"}) {
    addColor(word);
    addSubGenre(word);
  }
  ASSERT_TRUE(save());
  EXPECT_THAT(valueOf(style).lists[test::colors], ElementsAre(text("blue"), text("red")));
  EXPECT_THAT(valueOf(style).lists[test::subGenres], ElementsAre(text("blue"), text("red")));
}

TEST_F(PropertyEditor, WritesIndentedWhateverTheFlag) {
  for (const bool pretty : {false, true}) {
    setName("A");
    addColor("red");
    ASSERT_TRUE(save(pretty));
    EXPECT_EQ(content(), R"({
    "id": "u",
    "name": "A",
    "filter": {
        "languages": [
            1
        ],
        "genres": [
            "g"
        ],
        "colors": [
            "red"
        ]
    },
    "audioEffect": {
        "E": {
            "parameter": {
                "p": 1
            }
        }
    }
})");
  }
}

TEST_F(PropertyEditor, KeepsHandleIdentifierPathAndEffects) {
  KoStyleEffect* effect = Style_audioEffect(style, 0);
  setName("A");
  ASSERT_TRUE(save());
  EXPECT_EQ(StyleManager_userStyle(host.manager, 0), style);
  EXPECT_EQ(utf8(Style_id(style)), "u");
  EXPECT_EQ(Style_path(style), test::pathText(file));
  EXPECT_EQ(Style_audioEffect(style, 0), effect);
  EXPECT_THAT(test::entryNames(host.user), ElementsAre("u.kostyle"));
}

TEST_F(PropertyEditor, LosesTheVendorInTheFileOnly) {
  setName("A");
  ASSERT_TRUE(save());
  EXPECT_EQ(utf8(Style_vendor(style)), "V");
  ASSERT_EQ(StyleManager_readUserStyles(host.manager), KOSTYLE_OK);
  EXPECT_EQ(utf8(Style_vendor(host.userStyle("u"))), "");
}

TEST_F(PropertyEditor, KeepsWhatItCollectedAfterSaving) {
  setName("A");
  addColor("red");
  ASSERT_TRUE(save());
  EXPECT_FALSE(addColor("red"));
  addColor("blue");
  ASSERT_TRUE(save());
  EXPECT_THAT(valueOf(style).lists[test::colors], ElementsAre(text("blue"), text("red")));
  const std::string written = content();
  test::writeFile(file, "spoiled");
  ASSERT_TRUE(save());
  EXPECT_EQ(content(), written);
}

TEST_F(PropertyEditor, MakesAFileAgainThatWasDeleted) {
  test::fs::remove(file);
  setName("A");
  ASSERT_TRUE(save());
  ASSERT_EQ(StyleManager_readUserStyles(host.manager), KOSTYLE_OK);
  EXPECT_EQ(utf8(Style_name(host.userStyle("u"))), "A");
}

TEST_F(PropertyEditor, RestoresTheStyleWhenItsFileCannotBeOpened) {
  const test::StyleValue before = valueOf(style);
  setName("A");
  addColor("red");
  putDirectoryInFilesPlace();
  EXPECT_FALSE(save());
  EXPECT_EQ(valueOf(style), before);
  test::fs::remove(file);
  EXPECT_TRUE(save());
  EXPECT_EQ(utf8(Style_name(style)), "A");
  EXPECT_EQ(Style_numColor(style), 1u);
}

TEST_F(PropertyEditor, RestoresTheStyleWhenItsDirectoryIsGone) {
  const test::StyleValue before = valueOf(style);
  setName("A");
  test::fs::remove_all(host.user);
  EXPECT_FALSE(save());
  EXPECT_EQ(valueOf(style), before);
  EXPECT_FALSE(exists(host.user));
}

TEST_F(PropertyEditor, LeavesTheNewNameToAStyleThatHadNoneEvenWhenItCannotWrite) {
  style = host.addUserStyle("u", document("u", std::string(101, 'n')));
  editor = UserStyle_createPropertyEditor(style);
  ASSERT_EQ(utf8(Style_name(style)), "");
  setName("A");
  addColor("red");
  putDirectoryInFilesPlace();
  EXPECT_FALSE(save());
  EXPECT_EQ(utf8(Style_name(style)), "A");
  EXPECT_EQ(Style_numColor(style), 0u);
  setName("B");
  EXPECT_FALSE(save());
  EXPECT_EQ(utf8(Style_name(style)), "A");
}

TEST_F(PropertyEditor, IsReplacedByTheNextOneWhichStartsEmpty) {
  setName("A");
  KoStylePropertyEditor* second = UserStyle_createPropertyEditor(style);
  EXPECT_NE(second, editor);
  editor = second;
  expectRefused();
  EXPECT_TRUE(addColor("red"));
}

TEST_F(PropertyEditor, IsDestroyedOnRequestAndCanBeMadeAgain) {
  UserStyle_destroyPropertyEditor(style);
  UserStyle_destroyPropertyEditor(style);
  editor = UserStyle_createPropertyEditor(style);
  ASSERT_NE(editor, nullptr);
  expectRefused();
}

TEST_F(PropertyEditor, EditsAStyleThatWasJustSaved) {
  style = test::Host::save(host.createMutableStyle("new"));
  file = test::Host::fileOf(style);
  editor = UserStyle_createPropertyEditor(style);
  setName("edited");
  ASSERT_TRUE(save());
  EXPECT_EQ(utf8(Style_name(style)), "edited");
  EXPECT_NE(content().find("edited"), std::string::npos);
}

TEST_F(PropertyEditor, IsOneForEachStyle) {
  KoStyleStyle* saved = test::Host::save(host.createMutableStyle("new"));
  KoStylePropertyEditor* other = UserStyle_createPropertyEditor(saved);
  EXPECT_NE(other, editor);
  setName("A");
  EXPECT_FALSE(PropertyEditor_save(other, true));
  EXPECT_TRUE(save());
  EXPECT_EQ(utf8(Style_name(saved)), "new");
}

}  // namespace
