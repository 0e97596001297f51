// Sentences for codes.
#include <gmock/gmock.h>
#include <kostyle/helpers.h>

#include <fstream>
#include <set>
#include <string>
#include <vector>

namespace {

// The codes of the interface as it was released.
std::vector<int> codes() {
  std::vector<int> values;
  std::ifstream interface(KOSTYLE_INTERFACE);
  for (std::string line; std::getline(interface, line);) {
    const bool isCode = line.rfind("KOSTYLE_OK = ", 0) == 0 || line.rfind("KOSTYLE_ERROR_", 0) == 0;
    if (isCode) values.push_back(std::stoi(line.substr(line.rfind(' '))));
  }
  return values;
}

TEST(HelperSentence, EveryCodeHasItsOwn) {
  ASSERT_GT(codes().size(), 20u);
  std::set<std::string> sentences;
  for (const int code : codes()) sentences.insert(KoStyle_codeText(code));
  EXPECT_EQ(sentences.size(), codes().size());
  EXPECT_EQ(sentences.count(KoStyle_codeText(-1)), 0u);
  EXPECT_STREQ(KoStyle_codeText(KOSTYLE_ERROR_DUPLICATE_ID), "another style has the same identifier");
}

TEST(HelperSentence, EveryParseErrorHasItsOwn) {
  std::set<std::string> sentences;
  for (int code = KOSTYLE_PARSE_OK; code <= KOSTYLE_PARSE_TERMINATED; ++code)
    sentences.insert(KoStyle_parseErrorText(code));
  EXPECT_EQ(sentences.size(), std::size_t{KOSTYLE_PARSE_TERMINATED} + 1);
  EXPECT_THAT(KoStyle_parseErrorText(1000), testing::StrEq("another syntax error"));
}

}  // namespace
