// Sentences for codes.
#include <gmock/gmock.h>
#include <kostyle/helpers.h>

#include <set>
#include <string>

namespace {

constexpr int codes[] = {0,  1,  2,  3,  4,  5,  6,  7,  8,  9,  10, 14, 15, 16,
                         17, 18, 19, 20, 21, 22, 23, 24, 25, 26, 27, 28, 29, 31};

TEST(HelperSentence, EveryCodeHasItsOwn) {
  std::set<std::string> sentences;
  for (const int code : codes) sentences.insert(KoStyle_codeText(code));
  EXPECT_EQ(sentences.size(), std::size(codes));
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
