// Overwriting user styles with mutable ones.
#include <gmock/gmock.h>
#include <kostyle/kostyle.h>

#include <string>

#include "support/host.h"
#include "support/style_value.h"
#include "support/style_walk.h"

namespace {

using test::document;
using test::text;
using test::utf8;
using test::valueOf;
using test::writeFile;
using testing::ElementsAre;

class Overwrite : public testing::Test {
 protected:
  static KoStyleStyle* overwrite(KoStyleStyle* style, const std::string& id, bool pretty = false) {
    int error = -1;
    KoStyleStyle* const result = MutableStyle_overwrite(style, text(id).c_str(), pretty, &error);
    EXPECT_EQ(error, result ? 0 : error);
    return result;
  }

  test::Host host;
  KoStyleManager* manager = host.manager;
};

TEST_F(Overwrite, KeepsHandlePathIdentifierAndPlace) {
  for (const char* id : {"a", "b", "c"}) host.addUserStyle(id);
  KoStyleStyle* user = StyleManager_userStyle(manager, 1);
  const std::string id = utf8(Style_id(user));
  const test::Text path = Style_path(user);
  KoStyleStyle* style = host.createMutableStyle("new");
  MutableStyle_addGenre(style, KOSTYLE_TEXT("g"));
  MutableStyle_insertMidiEffect(style, 0, KOSTYLE_TEXT("M"));
  const test::StyleValue expected = valueOf(style);
  EXPECT_EQ(overwrite(style, id), user);
  EXPECT_EQ(StyleManager_userStyle(manager, 1), user);
  EXPECT_EQ(StyleManager_numUserStyle(manager), 3u);
  EXPECT_EQ(utf8(Style_id(user)), id);
  EXPECT_EQ(Style_path(user), path);
  EXPECT_EQ(Style_type(user), KOSTYLE_KIND_USER);
  EXPECT_EQ(valueOf(user), expected);
  EXPECT_FALSE(StyleManager_hasMutableStyle(manager, style));
  test::expectStyleWalks(user);
  test::expectManagerWalks(manager);
  EXPECT_THAT(test::entryNames(host.user), ElementsAre("a.kostyle", "b.kostyle", "c.kostyle"));
  EXPECT_EQ(test::readFile(test::Host::fileOf(user)),
            R"({"id":")" + id +
                R"(","name":"new","filter":{"genres":["g"]},)"
                R"("audioEffect":{"E":{"parameter":{"p":1}}},"midiEffect":{"M":{}}})");
}

TEST_F(Overwrite, LeavesTheTextsOfIdentifierAndPathWhereTheyAre) {
  for (const std::string& id : {std::string("u"), std::string(100, 'u')}) {
    KoStyleStyle* user = host.addUserStyle(id);
    const KoStyleChar* const idBefore = Style_id(user);
    const KoStyleChar* const pathBefore = Style_path(user);
    int error = -1;
    ASSERT_EQ(MutableStyle_overwrite(host.createMutableStyle("new"), idBefore, false, &error), user);
    EXPECT_EQ(Style_id(user), idBefore);
    EXPECT_EQ(Style_path(user), pathBefore);
    EXPECT_EQ(utf8(idBefore), id);
  }
}

TEST_F(Overwrite, WritesPrettyOnRequest) {
  KoStyleStyle* user = host.addUserStyle("u");
  ASSERT_EQ(overwrite(host.createMutableStyle("new"), "u", true), user);
  EXPECT_EQ(test::readFile(host.user / "u.kostyle").substr(0, 20), "{\n    \"id\": \"u\",\n   ");
}

TEST_F(Overwrite, LosesTheVendorInTheFileOnly) {
  KoStyleStyle* user = host.addUserStyle(
      "u", R"({"id":"u","name":"n","vendor":"V","audioEffect":{"E":{"parameter":{}}}})");
  ASSERT_EQ(overwrite(host.createMutableStyle("new"), "u"), user);
  EXPECT_EQ(utf8(Style_vendor(user)), "V");
  EXPECT_EQ(test::readFile(host.user / "u.kostyle"), document("u", "new"));
  ASSERT_EQ(StyleManager_readUserStyles(manager), KOSTYLE_OK);
  EXPECT_EQ(utf8(Style_vendor(host.userStyle("u"))), "");
}

TEST_F(Overwrite, ReplacesLongContentWithShort) {
  const std::string longName(100, 'n');
  host.addUserStyle("u", document("u", longName) + std::string(10000, ' '));
  ASSERT_NE(overwrite(host.createMutableStyle("s"), "u"), nullptr);
  EXPECT_EQ(test::readFile(host.user / "u.kostyle"), document("u", "s"));
}

TEST_F(Overwrite, GivesANameToAStyleThatHadNone) {
  KoStyleStyle* user = host.addUserStyle("u", document("u", std::string(101, 'n')));
  ASSERT_EQ(utf8(Style_name(user)), "");
  ASSERT_EQ(overwrite(host.createMutableStyle("new"), "u"), user);
  EXPECT_EQ(utf8(Style_name(user)), "new");
}

TEST_F(Overwrite, WritesWhereTheStyleWasReadFrom) {
  const test::fs::path further = host.directory.folder("further");
  writeFile(further / "f.kostyle", document("f", "old"));
  const test::Manager both(host.system, host.user, {}, {further});
  ASSERT_EQ(StyleManager_readUserStyles(both), KOSTYLE_OK);
  KoStyleStyle* style = StyleManager_createMutableStyle(both);
  MutableStyle_setName(style, KOSTYLE_TEXT("new"));
  MutableStyle_insertAudioEffect(style, 0, KOSTYLE_TEXT("E"));
  ASSERT_EQ(overwrite(style, "f"), StyleManager_userStyle(both, 0));
  EXPECT_EQ(test::readFile(further / "f.kostyle"), R"({"id":"f","name":"new","audioEffect":{"E":{}}})");
  EXPECT_TRUE(test::entryNames(host.user).empty());
}

TEST_F(Overwrite, PutsTheFileInThePlaceOfAnEmptyDirectory) {
  KoStyleStyle* user = host.addUserStyle("u");
  test::fs::remove(host.user / "u.kostyle");
  test::fs::create_directory(host.user / "u.kostyle");
  ASSERT_EQ(overwrite(host.createMutableStyle("new"), "u"), user);
  EXPECT_EQ(test::readFile(host.user / "u.kostyle"), document("u", "new"));
}

TEST_F(Overwrite, WorksOnAStyleThatWasJustSaved) {
  KoStyleStyle* saved = test::Host::save(host.createMutableStyle("first"));
  const std::string id = utf8(Style_id(saved));
  for (const char* name : {"second", "third"}) {
    ASSERT_EQ(overwrite(host.createMutableStyle(name), id), saved);
    EXPECT_EQ(test::readFile(test::Host::fileOf(saved)), document(id, name));
  }
  EXPECT_EQ(test::entryNames(host.user).size(), 1u);
  ASSERT_EQ(StyleManager_readUserStyles(manager), KOSTYLE_OK);
  EXPECT_EQ(utf8(Style_name(host.userStyle(id))), "third");
}

TEST_F(Overwrite, LeavesTheStylesEditorUsable) {
  KoStyleStyle* user = host.addUserStyle("u");
  KoStylePropertyEditor* editor = UserStyle_createPropertyEditor(user);
  ASSERT_TRUE(PropertyEditor_setStyleName(editor, KOSTYLE_TEXT("edited")));
  KoStyleStyle* style = host.createMutableStyle("new");
  MutableStyle_addGenre(style, KOSTYLE_TEXT("g"));
  MutableStyle_addColor(style, KOSTYLE_TEXT("c"));
  ASSERT_EQ(overwrite(style, "u"), user);
  ASSERT_TRUE(PropertyEditor_save(editor, true));
  EXPECT_EQ(utf8(Style_name(user)), "edited");
  EXPECT_EQ(Style_numGenre(user), 1u);
  EXPECT_EQ(Style_numColor(user), 0u);
}

TEST_F(Overwrite, KeepsTheFirstOfParametersOfOneName) {
  KoStyleStyle* user = host.addUserStyle("u");
  KoStyleStyle* style = host.createMutableStyle("new");
  KoStyleEffect* effect = MutableStyle_audioEffect(style, 0);
  KoStyleParameter* q = MutableEffect_addParameter(effect, KOSTYLE_TEXT("q"));
  MutableParameter_setName(q, KOSTYLE_TEXT("p"));
  ASSERT_EQ(overwrite(style, "u"), user);
  EXPECT_NE(test::readFile(host.user / "u.kostyle").find(R"({"p":1,"p":0})"), std::string::npos);
  ASSERT_EQ(Effect_numParameter(Style_audioEffect(user, 0)), 1u);
  EXPECT_EQ(Parameter_valueInt(Effect_parameter(Style_audioEffect(user, 0), 0)), 1);
}

}  // namespace
