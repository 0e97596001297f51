// Files that are not one JSON text: the parser's code and the offset in bytes.
#include <gmock/gmock.h>

#include "support/encodings.h"
#include "support/file_reader.h"

namespace {

using test::encoded;
using test::Encoding;
using test::outcomeOf;
using test::refused;
using test::syntaxError;

struct Broken {
  const char* text;
  test::Outcome outcome;
};

TEST(SyntaxErrors, HaveTheParsersCodeAndOffset) {
  const Broken all[] = {
      {"", syntaxError(KOSTYLE_PARSE_EMPTY, 0)},
      {"    ", syntaxError(KOSTYLE_PARSE_EMPTY, 4)},
      {"{}{}", syntaxError(KOSTYLE_PARSE_ROOT_NOT_SINGULAR, 3)},
      {"{} x", syntaxError(KOSTYLE_PARSE_ROOT_NOT_SINGULAR, 4)},
      {"[1],", syntaxError(KOSTYLE_PARSE_ROOT_NOT_SINGULAR, 4)},
      {"nul", syntaxError(KOSTYLE_PARSE_VALUE_INVALID, 3)},
      {"nulL", syntaxError(KOSTYLE_PARSE_VALUE_INVALID, 4)},
      {"truE", syntaxError(KOSTYLE_PARSE_VALUE_INVALID, 4)},
      {"falze", syntaxError(KOSTYLE_PARSE_VALUE_INVALID, 4)},
      {"-", syntaxError(KOSTYLE_PARSE_VALUE_INVALID, 1)},
      {"+1", syntaxError(KOSTYLE_PARSE_VALUE_INVALID, 1)},
      {".5", syntaxError(KOSTYLE_PARSE_VALUE_INVALID, 1)},
      {"NaN", syntaxError(KOSTYLE_PARSE_VALUE_INVALID, 1)},
      {"Infinity", syntaxError(KOSTYLE_PARSE_VALUE_INVALID, 1)},
      {"-Infinity", syntaxError(KOSTYLE_PARSE_VALUE_INVALID, 2)},
      {"'a'", syntaxError(KOSTYLE_PARSE_VALUE_INVALID, 1)},
      {"// comment\n{}", syntaxError(KOSTYLE_PARSE_VALUE_INVALID, 1)},
      {"/* comment */{}", syntaxError(KOSTYLE_PARSE_VALUE_INVALID, 1)},
      {"{}// comment", syntaxError(KOSTYLE_PARSE_ROOT_NOT_SINGULAR, 3)},
      {"[1,]", syntaxError(KOSTYLE_PARSE_VALUE_INVALID, 4)},
      {"{1:2}", syntaxError(KOSTYLE_PARSE_OBJECT_NAME_MISSING, 2)},
      {"{", syntaxError(KOSTYLE_PARSE_OBJECT_NAME_MISSING, 1)},
      {"{\"a\":1,}", syntaxError(KOSTYLE_PARSE_OBJECT_NAME_MISSING, 8)},
      {"{'a':1}", syntaxError(KOSTYLE_PARSE_OBJECT_NAME_MISSING, 2)},
      {"{a:1}", syntaxError(KOSTYLE_PARSE_OBJECT_NAME_MISSING, 2)},
      {"{\"a\" 1}", syntaxError(KOSTYLE_PARSE_OBJECT_COLON_MISSING, 6)},
      {"{\"a\"}", syntaxError(KOSTYLE_PARSE_OBJECT_COLON_MISSING, 5)},
      {"{\"a\":1 \"b\":2}", syntaxError(KOSTYLE_PARSE_OBJECT_END_MISSING, 8)},
      {"{\"a\":1", syntaxError(KOSTYLE_PARSE_OBJECT_END_MISSING, 6)},
      {"{\"a\":1]", syntaxError(KOSTYLE_PARSE_OBJECT_END_MISSING, 7)},
      {"[1 2]", syntaxError(KOSTYLE_PARSE_ARRAY_END_MISSING, 4)},
      {"[1", syntaxError(KOSTYLE_PARSE_ARRAY_END_MISSING, 2)},
      {"[01]", syntaxError(KOSTYLE_PARSE_ARRAY_END_MISSING, 3)},
      {"[0x1]", syntaxError(KOSTYLE_PARSE_ARRAY_END_MISSING, 3)},
      {"\"\\u00g0\"", syntaxError(KOSTYLE_PARSE_ESCAPE_NOT_HEXADECIMAL, 2)},
      {"\"\\ud800\"", syntaxError(KOSTYLE_PARSE_SURROGATE_INVALID, 2)},
      {"\"\\x\"", syntaxError(KOSTYLE_PARSE_ESCAPE_INVALID, 2)},
      {"\"a\nb\"", syntaxError(KOSTYLE_PARSE_ESCAPE_INVALID, 3)},
      {"\"abc", syntaxError(KOSTYLE_PARSE_QUOTATION_MARK_MISSING, 4)},
      {"\"\xFF\xFE\xFD\"", syntaxError(KOSTYLE_PARSE_ENCODING_INVALID, 2)},
      {"1e309", syntaxError(KOSTYLE_PARSE_NUMBER_TOO_BIG, 1)},
      {"0e309", syntaxError(KOSTYLE_PARSE_NUMBER_TOO_BIG, 1)},
      {"1e400", syntaxError(KOSTYLE_PARSE_NUMBER_TOO_BIG, 1)},
      {"-1e309", syntaxError(KOSTYLE_PARSE_NUMBER_TOO_BIG, 1)},
      {"1.", syntaxError(KOSTYLE_PARSE_FRACTION_MISSING, 2)},
      {"1.e5", syntaxError(KOSTYLE_PARSE_FRACTION_MISSING, 3)},
      {"1e", syntaxError(KOSTYLE_PARSE_EXPONENT_MISSING, 2)},
      {"1e+", syntaxError(KOSTYLE_PARSE_EXPONENT_MISSING, 3)},
      {"1ex", syntaxError(KOSTYLE_PARSE_EXPONENT_MISSING, 3)},
  };
  for (const Broken& broken : all) EXPECT_EQ(outcomeOf(broken.text), broken.outcome) << broken.text;
}

TEST(SyntaxErrors, AnIntegerBeyondDoublePrecisionIsTooBig) {
  EXPECT_EQ(outcomeOf(std::string(400, '9')), syntaxError(KOSTYLE_PARSE_NUMBER_TOO_BIG, 1));
  EXPECT_EQ(outcomeOf("1" + std::string(308, '0')), refused(KOSTYLE_ERROR_WRONG_TYPE, "/"));
  EXPECT_EQ(outcomeOf("1" + std::string(309, '0')), syntaxError(KOSTYLE_PARSE_NUMBER_TOO_BIG, 1));
}

TEST(SyntaxErrors, CountBytesInEveryEncoding) {
  // The third character ends the parse, having been taken from the file.
  for (const Encoding encoding : test::allEncodings()) {
    const std::size_t size = unitSize(encoding);
    EXPECT_EQ(outcomeOf(encoded("{} x    ", encoding)),
              syntaxError(KOSTYLE_PARSE_ROOT_NOT_SINGULAR, 4 * size))
        << nameOf(encoding);
    const std::size_t mark = encoding == Encoding::utf8 ? 3 : size;
    EXPECT_EQ(outcomeOf(encoded("{} x    ", encoding, true)),
              syntaxError(KOSTYLE_PARSE_ROOT_NOT_SINGULAR, mark + 4 * size))
        << nameOf(encoding);
  }
}

TEST(SyntaxErrors, CountBytesPastTheReadersBuffer) {
  for (const std::size_t spaces : {250u, 254u, 255u, 256u, 257u, 511u, 512u, 513u, 100000u})
    EXPECT_EQ(outcomeOf(std::string(spaces, ' ') + "x"),
              syntaxError(KOSTYLE_PARSE_VALUE_INVALID, spaces + 1));
}

TEST(SyntaxErrors, LeaveThePathEmptyAndGiveNoStyle) {
  const std::string document = test::documentWith("") + "}";
  const test::FileReader reader;
  EXPECT_EQ(reader.read(document).outcome,
            syntaxError(KOSTYLE_PARSE_ROOT_NOT_SINGULAR, document.size()));
  EXPECT_EQ(reader.style(), nullptr);
}

}  // namespace
