// The records that reading style files leaves behind.
#include <gmock/gmock.h>
#include <kostyle/kostyle.h>

#include <map>
#include <string>

#include "support/file_reader.h"
#include "support/host.h"

namespace {

using test::document;
using test::Outcome;
using test::refused;
using test::syntaxError;
using test::utf8;
using test::writeFile;

class CreationResult : public testing::Test {
 protected:
  /// The record of a user directory that holds one file of this content.
  KoStyleCreationResult* recordOf(std::string_view content) {
    writeFile(host.user / "only.kostyle", content);
    StyleManager_readUserStyles(host.manager);
    return StyleManager_userStyleCreationResult(host.manager, 0);
  }

  void expect(std::string_view content, const std::string& id, const Outcome& outcome) {
    SCOPED_TRACE(content);
    KoStyleCreationResult* record = recordOf(content);
    ASSERT_NE(record, nullptr);
    EXPECT_EQ(test::outcomeOf(record), outcome);
    EXPECT_EQ(utf8(StyleCreationResult_id(record)), id);
    EXPECT_EQ(StyleCreationResult_type(record), KOSTYLE_KIND_USER);
    EXPECT_EQ(StyleCreationResult_filePath(record), test::pathText(host.user / "only.kostyle"));
    EXPECT_EQ(StyleManager_numUserStyle(host.manager), outcome == test::taken() ? 1u : 0u);
    EXPECT_EQ(StyleManager_numUserStyleCreationResult(host.manager), 1u);
  }

  test::Host host;
};

TEST_F(CreationResult, OfATakenStyleHasItsIdentifierAndNoError) {
  expect(document("taken", "name"), "taken", test::taken());
}

TEST_F(CreationResult, OfASyntaxErrorHasTheParsersCodeAndOffset) {
  expect("", "", syntaxError(KOSTYLE_PARSE_EMPTY, 0));
  expect("{} {}", "", syntaxError(KOSTYLE_PARSE_ROOT_NOT_SINGULAR, 4));
  expect("nul", "", syntaxError(KOSTYLE_PARSE_VALUE_INVALID, 3));
  expect("{1", "", syntaxError(KOSTYLE_PARSE_OBJECT_NAME_MISSING, 2));
}

TEST_F(CreationResult, OfAMissingMemberHasItsPath) {
  expect("{}", "", refused(KOSTYLE_ERROR_MEMBER_MISSING, "/id"));
  expect(R"({"id":"x"})", "", refused(KOSTYLE_ERROR_MEMBER_MISSING, "/name"));
}

TEST_F(CreationResult, OfAWrongTypeHasItsPath) {
  expect("[]", "", refused(KOSTYLE_ERROR_WRONG_TYPE, "/"));
  expect(R"("text")", "", refused(KOSTYLE_ERROR_WRONG_TYPE, "/"));
  expect(R"({"id":1,"name":"n"})", "", refused(KOSTYLE_ERROR_WRONG_TYPE, "/id"));
  expect(R"({"id":"x","name":5})", "", refused(KOSTYLE_ERROR_WRONG_TYPE, "/name"));
}

TEST_F(CreationResult, OfAnEmptyStringHasItsPath) {
  expect(R"({"id":"","name":"n"})", "", refused(KOSTYLE_ERROR_EMPTY_STRING, "/id"));
  expect(R"({"id":"x","name":""})", "", refused(KOSTYLE_ERROR_EMPTY_STRING, "/name"));
}

TEST_F(CreationResult, OfAStyleWithoutEffectHasTheRootsPath) {
  expect(R"({"id":"x","name":"n"})", "", refused(KOSTYLE_ERROR_NO_EFFECT, "/"));
  expect(R"({"id":"x","name":"n","audioEffect":[]})", "", refused(KOSTYLE_ERROR_NO_EFFECT, "/"));
}

TEST_F(CreationResult, OfAKnownIdentifierHasThatIdentifier) {
  host.addSystemStyle("known");
  expect(document("known", "name"), "known", refused(KOSTYLE_ERROR_DUPLICATE_ID, ""));
}

TEST_F(CreationResult, IsOneForEachStyleFile) {
  const std::map<std::string, std::string> contents{{"taken", document("T", "N")},
                                                    {"empty", ""},
                                                    {"two", "{}{}"},
                                                    {"noid", R"({"name":"N"})"},
                                                    {"array", "[]"},
                                                    {"emptyname", R"({"id":"I","name":""})"},
                                                    {"noeffect", R"({"id":"I","name":"N"})"}};
  for (const auto& [name, content] : contents) writeFile(host.user / (name + ".kostyle"), content);
  writeFile(host.user / "other.txt", document("X", "N"));
  ASSERT_EQ(StyleManager_readUserStyles(host.manager), KOSTYLE_OK);
  std::map<test::Text, Outcome> outcomes;
  for (std::size_t i = 0; i < StyleManager_numUserStyleCreationResult(host.manager); ++i) {
    KoStyleCreationResult* record = StyleManager_userStyleCreationResult(host.manager, i);
    outcomes[StyleCreationResult_filePath(record)] = test::outcomeOf(record);
  }
  const auto pathOf = [&](const char* name) {
    return test::pathText(host.user / (std::string(name) + ".kostyle"));
  };
  EXPECT_EQ(outcomes, (std::map<test::Text, Outcome>{
                          {pathOf("taken"), test::taken()},
                          {pathOf("empty"), syntaxError(KOSTYLE_PARSE_EMPTY, 0)},
                          {pathOf("two"), syntaxError(KOSTYLE_PARSE_ROOT_NOT_SINGULAR, 3)},
                          {pathOf("noid"), refused(KOSTYLE_ERROR_MEMBER_MISSING, "/id")},
                          {pathOf("array"), refused(KOSTYLE_ERROR_WRONG_TYPE, "/")},
                          {pathOf("emptyname"), refused(KOSTYLE_ERROR_EMPTY_STRING, "/name")},
                          {pathOf("noeffect"), refused(KOSTYLE_ERROR_NO_EFFECT, "/")}}));
  EXPECT_EQ(StyleManager_numUserStyleCreationResult(host.manager), contents.size());
  EXPECT_EQ(StyleManager_numUserStyle(host.manager), 1u);
  EXPECT_EQ(StyleManager_numSystemStyleCreationResult(host.manager), 0u);
}

TEST_F(CreationResult, StandsInTheOrderOfTheStyles) {
  const test::fs::path further = host.directory.folder("further");
  const test::Manager manager(host.system, host.user, {further});
  for (int i = 0; i < 20; ++i) {
    const std::string id = std::to_string(i);
    writeFile(host.system / (id + ".kostyle"), i % 3 ? document(id, id) : "x");
    writeFile(further / (id + ".kostyle"), document("further " + id, id));
  }
  ASSERT_EQ(StyleManager_readSystemStyles(manager), KOSTYLE_OK);
  ASSERT_EQ(StyleManager_numSystemStyleCreationResult(manager), 40u);
  KoStyleStyle* style = StyleManager_systemStyle(manager, 0);
  for (std::size_t i = 0; i < 40; ++i) {
    KoStyleCreationResult* record = StyleManager_systemStyleCreationResult(manager, i);
    const test::Text path = StyleCreationResult_filePath(record);
    const test::fs::path& folder = i < 20 ? host.system : further;
    EXPECT_EQ(path.find(test::pathText(folder / "")), 0u) << utf8(path);
    if (StyleCreationResult_error(record) != KOSTYLE_OK) continue;
    ASSERT_NE(style, nullptr);
    EXPECT_EQ(Style_path(style), path);
    EXPECT_EQ(utf8(Style_id(style)), utf8(StyleCreationResult_id(record)));
    style = SystemStyle_next(style);
  }
  EXPECT_EQ(style, nullptr);
}

TEST_F(CreationResult, HasTheKindOfItsRead) {
  host.addSystemStyle("s");
  EXPECT_EQ(StyleCreationResult_type(StyleManager_systemStyleCreationResult(host.manager, 0)),
            KOSTYLE_KIND_SYSTEM);
}

TEST_F(CreationResult, LeadsToItsNeighboursOfTheSameSet) {
  for (int i = 0; i < 5; ++i)
    writeFile(host.user / (std::to_string(i) + ".kostyle"),
              i % 2 ? "{" : document(std::to_string(i), "n"));
  host.addSystemStyle("s");
  ASSERT_EQ(StyleManager_readUserStyles(host.manager), KOSTYLE_OK);
  ASSERT_EQ(StyleManager_numUserStyleCreationResult(host.manager), 5u);
  for (std::size_t i = 0; i < 5; ++i) {
    KoStyleCreationResult* record = StyleManager_userStyleCreationResult(host.manager, i);
    EXPECT_EQ(StyleCreationResult_next(record),
              StyleManager_userStyleCreationResult(host.manager, i + 1));
    EXPECT_EQ(StyleCreationResult_prev(record),
              StyleManager_userStyleCreationResult(host.manager, i - 1));
  }
}

TEST_F(CreationResult, HasNoNeighboursWhenItIsAlone) {
  KoStyleCreationResult* record = recordOf(document("x", "n"));
  host.addSystemStyle("s");
  EXPECT_EQ(StyleCreationResult_next(record), nullptr);
  EXPECT_EQ(StyleCreationResult_prev(record), nullptr);
}

TEST_F(CreationResult, StaysAsItIsWhenItsStyleIsRemovedOrOthersAreSaved) {
  KoStyleCreationResult* record = recordOf(document("x", "n"));
  ASSERT_EQ(UserStyle_remove(host.userStyle("x")), KOSTYLE_OK);
  test::Host::save(host.createMutableStyle("new"));
  EXPECT_EQ(StyleManager_numUserStyleCreationResult(host.manager), 1u);
  EXPECT_EQ(utf8(StyleCreationResult_id(record)), "x");
  EXPECT_EQ(StyleCreationResult_error(record), KOSTYLE_OK);
  EXPECT_EQ(StyleCreationResult_next(record), nullptr);
}

}  // namespace
