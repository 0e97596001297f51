// What reading left behind for each file.
#include "cpp/cpp_host.h"

namespace {

using namespace kostyle;

struct CppCreationResult : testing::Test {
  CreationResult read(const std::string& content) const {
    test::writeFile(host.user / "u.kostyle", content);
    EXPECT_TRUE(host.manager.readUserStyles());
    return host.manager.userCreationResults()[0];
  }
  test::CppHost host;
};

TEST_F(CppCreationResult, TellsOfAStyleThatWasTaken) {
  const CreationResult result = read(test::document("u", "U"));
  EXPECT_TRUE(result.taken());
  EXPECT_EQ(result.error().code(), KOSTYLE_OK);
  EXPECT_EQ(result.id(), "u");
  EXPECT_EQ(result.type(), KOSTYLE_KIND_USER);
  EXPECT_EQ(result.filePath(), host.user / "u.kostyle");
  EXPECT_EQ(result.filePathText().utf8(), (host.user / "u.kostyle").u8string());
  EXPECT_TRUE(result.jsonPath().empty());
  EXPECT_EQ(result.parseError(), KOSTYLE_PARSE_OK);
  EXPECT_FALSE(result.next());
  EXPECT_FALSE(result.previous());
}

TEST_F(CppCreationResult, TellsWhatAndWhereIsWrong) {
  const CreationResult result = read(R"({"id":"u"})");
  EXPECT_FALSE(result.taken());
  EXPECT_EQ(result.error().code(), KOSTYLE_ERROR_MEMBER_MISSING);
  EXPECT_STREQ(result.error().sentence(), "required member is missing");
  EXPECT_EQ(result.jsonPath(), "/name");
}

TEST_F(CppCreationResult, TellsLineAndColumnOfASyntaxError) {
  const std::string content = "{\n  \"id\" 1}";
  const CreationResult result = read(content);
  EXPECT_EQ(result.error().code(), KOSTYLE_ERROR_JSON_SYNTAX);
  EXPECT_EQ(result.parseError(), KOSTYLE_PARSE_OBJECT_COLON_MISSING);
  EXPECT_STREQ(result.parseErrorSentence(), "no colon follows a member's name");
  EXPECT_EQ(result.parseErrorOffset(), 10U);
  EXPECT_EQ(result.parseErrorPosition(content).line, 2U);
  EXPECT_EQ(result.parseErrorPosition(content).column, 8U);
}

TEST_F(CppCreationResult, IsLeftByReadingSystemStylesToo) {
  host.addSystemStyle("s", "{}");
  const auto results = host.manager.systemCreationResults();
  ASSERT_EQ(results.size(), 1U);
  EXPECT_EQ(results[0].type(), KOSTYLE_KIND_SYSTEM);
  EXPECT_EQ(results[0].error().code(), KOSTYLE_ERROR_MEMBER_MISSING);
}

TEST_F(CppCreationResult, KnowsItsNeighbours) {
  host.addUserStyle("a");
  host.addUserStyle("b");
  const auto results = host.manager.userCreationResults();
  EXPECT_EQ(results[0].next(), results[1]);
  EXPECT_EQ(results[1].previous(), results[0]);
  EXPECT_EQ(CreationResult().error().code(), KOSTYLE_ERROR_NO_CREATION_RESULT);
}

}  // namespace
