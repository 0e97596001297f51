// The records that reading style files leaves behind.
#include <gmock/gmock.h>
#include <kostyle/kostyle.h>

#include <string>

#include "support/host.h"

namespace {

using test::document;
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

  struct Outcome {
    int error;
    std::string id, jsonPath;
    int parseError;
    std::size_t offset;
  };
  void expect(std::string_view content, const Outcome& outcome) {
    SCOPED_TRACE(content);
    KoStyleCreationResult* record = recordOf(content);
    ASSERT_NE(record, nullptr);
    EXPECT_EQ(StyleCreationResult_error(record), outcome.error);
    EXPECT_EQ(utf8(StyleCreationResult_id(record)), outcome.id);
    EXPECT_EQ(utf8(StyleCreationResult_jsonPath(record)), outcome.jsonPath);
    EXPECT_EQ(StyleCreationResult_parseError(record), outcome.parseError);
    EXPECT_EQ(StyleCreationResult_parseErrorOffset(record), outcome.offset);
    EXPECT_EQ(StyleCreationResult_type(record), KOSTYLE_KIND_USER);
    EXPECT_EQ(StyleCreationResult_filePath(record), test::pathText(host.user / "only.kostyle"));
    EXPECT_EQ(StyleManager_numUserStyle(host.manager), outcome.error == 0 ? 1u : 0u);
    EXPECT_EQ(StyleManager_numUserStyleCreationResult(host.manager), 1u);
  }

  test::Host host;
};

TEST_F(CreationResult, OfATakenStyleHasItsIdentifierAndNoError) {
  expect(document("taken", "name"), {0, "taken", "", 0, 0});
}

TEST_F(CreationResult, OfASyntaxErrorHasTheParsersCodeAndOffset) {
  expect("", {17, "", "", KOSTYLE_PARSE_EMPTY, 0});
  expect("{} {}", {17, "", "", KOSTYLE_PARSE_ROOT_NOT_SINGULAR, 4});
  expect("nul", {17, "", "", KOSTYLE_PARSE_VALUE_INVALID, 3});
  expect("{1", {17, "", "", KOSTYLE_PARSE_OBJECT_NAME_MISSING, 2});
}

TEST_F(CreationResult, OfAMissingMemberHasItsPath) {
  expect("{}", {19, "", "/id", 0, 0});
  expect(R"({"id":"x"})", {19, "", "/name", 0, 0});
}

TEST_F(CreationResult, OfAWrongTypeHasItsPath) {
  expect("[]", {20, "", "/", 0, 0});
  expect(R"("text")", {20, "", "/", 0, 0});
  expect(R"({"id":1,"name":"n"})", {20, "", "/id", 0, 0});
  expect(R"({"id":"x","name":5})", {20, "", "/name", 0, 0});
}

TEST_F(CreationResult, OfAnEmptyStringHasItsPath) {
  expect(R"({"id":"","name":"n"})", {21, "", "/id", 0, 0});
  expect(R"({"id":"x","name":""})", {21, "", "/name", 0, 0});
}

TEST_F(CreationResult, OfAStyleWithoutEffectHasTheRootsPath) {
  expect(R"({"id":"x","name":"n"})", {23, "", "/", 0, 0});
  expect(R"({"id":"x","name":"n","audioEffect":[]})", {23, "", "/", 0, 0});
}

TEST_F(CreationResult, OfAKnownIdentifierHasThatIdentifier) {
  host.addSystemStyle("known");
  expect(document("known", "name"), {22, "known", "", 0, 0});
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
  EXPECT_EQ(StyleCreationResult_error(record), 0);
  EXPECT_EQ(StyleCreationResult_next(record), nullptr);
}

}  // namespace
