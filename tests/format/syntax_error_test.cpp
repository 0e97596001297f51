// Files that are not one JSON text: the parser's code and the offset in bytes.
#include <gmock/gmock.h>

#include "format/encodings.h"
#include "format/sample_documents.h"

namespace {

using test::encoded;
using test::Encoding;
using test::outcomeOf;

struct Broken {
  const char* text;
  const char* outcome;
};

TEST(SyntaxErrors, HaveTheParsersCodeAndOffset) {
  const Broken all[] = {
      {"", "17  1@0"},
      {"    ", "17  1@4"},
      {"{}{}", "17  2@3"},
      {"{} x", "17  2@4"},
      {"[1],", "17  2@4"},
      {"nul", "17  3@3"},
      {"nulL", "17  3@4"},
      {"truE", "17  3@4"},
      {"falze", "17  3@4"},
      {"-", "17  3@1"},
      {"+1", "17  3@1"},
      {".5", "17  3@1"},
      {"NaN", "17  3@1"},
      {"Infinity", "17  3@1"},
      {"-Infinity", "17  3@2"},
      {"'a'", "17  3@1"},
      {"// comment\n{}", "17  3@1"},
      {"/* comment */{}", "17  3@1"},
      {"{}// comment", "17  2@3"},
      {"[1,]", "17  3@4"},
      {"{1:2}", "17  4@2"},
      {"{", "17  4@1"},
      {"{\"a\":1,}", "17  4@8"},
      {"{'a':1}", "17  4@2"},
      {"{a:1}", "17  4@2"},
      {"{\"a\" 1}", "17  5@6"},
      {"{\"a\"}", "17  5@5"},
      {"{\"a\":1 \"b\":2}", "17  6@8"},
      {"{\"a\":1", "17  6@6"},
      {"{\"a\":1]", "17  6@7"},
      {"[1 2]", "17  7@4"},
      {"[1", "17  7@2"},
      {"[01]", "17  7@3"},
      {"[0x1]", "17  7@3"},
      {"\"\\u00g0\"", "17  8@2"},
      {"\"\\ud800\"", "17  9@2"},
      {"\"\\x\"", "17  10@2"},
      {"\"a\nb\"", "17  10@3"},
      {"\"abc", "17  11@4"},
      {"\"\xFF\xFE\xFD\"", "17  12@2"},
      {"1e309", "17  13@1"},
      {"0e309", "17  13@1"},
      {"1e400", "17  13@1"},
      {"-1e309", "17  13@1"},
      {"1.", "17  14@2"},
      {"1.e5", "17  14@3"},
      {"1e", "17  15@2"},
      {"1e+", "17  15@3"},
      {"1ex", "17  15@3"},
  };
  for (const Broken& broken : all) EXPECT_EQ(outcomeOf(broken.text), broken.outcome) << broken.text;
}

TEST(SyntaxErrors, AnIntegerBeyondDoublePrecisionIsTooBig) {
  EXPECT_EQ(outcomeOf(std::string(400, '9')), "17  13@1");
  EXPECT_EQ(outcomeOf("1" + std::string(308, '0')), "20 / 0@0");
  EXPECT_EQ(outcomeOf("1" + std::string(309, '0')), "17  13@1");
}

TEST(SyntaxErrors, CountBytesInEveryEncoding) {
  // The third character ends the parse, having been taken from the file.
  for (const Encoding encoding : test::allEncodings()) {
    const std::size_t size = unitSize(encoding);
    EXPECT_EQ(outcomeOf(encoded("{} x    ", encoding)), "17  2@" + std::to_string(4 * size))
        << nameOf(encoding);
    const std::size_t mark = encoding == Encoding::utf8 ? 3 : size;
    EXPECT_EQ(outcomeOf(encoded("{} x    ", encoding, true)),
              "17  2@" + std::to_string(mark + 4 * size))
        << nameOf(encoding);
  }
}

TEST(SyntaxErrors, CountBytesPastTheReadersBuffer) {
  for (const std::size_t spaces : {250u, 254u, 255u, 256u, 257u, 511u, 512u, 513u, 100000u})
    EXPECT_EQ(outcomeOf(std::string(spaces, ' ') + "x"), "17  3@" + std::to_string(spaces + 1));
}

TEST(SyntaxErrors, LeaveThePathEmptyAndGiveNoStyle) {
  const test::Reading reading = test::readBytes(test::documentWith("") + "}");
  EXPECT_EQ(reading.style, nullptr);
  EXPECT_EQ(reading.outcome.error, unsigned{KOSTYLE_ERROR_JSON_SYNTAX});
  EXPECT_TRUE(reading.outcome.jsonPath.empty());
}

}  // namespace
