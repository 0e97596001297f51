// The five encodings of a style file, with and without a byte-order mark.
#include "support/encodings.h"

#include <gmock/gmock.h>

#include "support/file_reader.h"

namespace {

using test::allEncodings;
using test::encoded;
using test::Encoding;
using test::outcomeOf;
using test::parseErrorOf;
using test::refused;
using test::styleOf;
using test::syntaxError;
using namespace std::string_literals;

const std::string rich =
    "{\"id\":\"I\",\"name\":\"N \xC3\xA4 \xE2\x82\xAC \xF0\x9F\x98\x80\",\"vendor\":\"\xE6\x97\xA5\","
    "\"filter\":{\"genres\":[\"\xEF\xBF\xBF\",\"\xF4\x8F\xBF\xBF\",\"\x7F\"]},"
    "\"audioEffect\":{\"E\xC3\x9F\":{\"parameter\":{\"p\xD0\x96\":\"v\xF0\x90\x80\x80\",\"q\":1.5}}}}";

TEST(Encodings, AllReadTheSame) {
  const auto expected = styleOf(rich);
  EXPECT_EQ(expected.name, test::text("N \xC3\xA4 \xE2\x82\xAC \xF0\x9F\x98\x80"));
  for (const Encoding encoding : allEncodings()) {
    EXPECT_EQ(styleOf(encoded(rich, encoding)), expected) << nameOf(encoding);
    EXPECT_EQ(styleOf(encoded(rich, encoding, true)), expected) << nameOf(encoding) << " with mark";
  }
}

TEST(Encodings, WhiteSpaceMayStandBeforeTheRoot) {
  for (const Encoding encoding : allEncodings())
    EXPECT_EQ(styleOf(encoded(" \t\r\n" + rich + " \t\r\n", encoding)), styleOf(rich))
        << nameOf(encoding);
}

TEST(Encodings, AMarkAloneIsAnEmptyFile) {
  EXPECT_EQ(outcomeOf("\xFF\xFE\0\0"s), syntaxError(KOSTYLE_PARSE_EMPTY, 4)) << "UTF-32LE";
  EXPECT_EQ(outcomeOf("\0\0\xFE\xFF"s), syntaxError(KOSTYLE_PARSE_EMPTY, 4)) << "UTF-32BE";
  EXPECT_EQ(outcomeOf("\xFE\xFF\0 "s), syntaxError(KOSTYLE_PARSE_EMPTY, 4)) << "UTF-16BE and a space";
  EXPECT_EQ(outcomeOf("\xFF\xFE \0"s), syntaxError(KOSTYLE_PARSE_EMPTY, 4)) << "UTF-16LE and a space";
  EXPECT_EQ(outcomeOf("\xEF\xBB\xBF "s), syntaxError(KOSTYLE_PARSE_EMPTY, 4)) << "UTF-8 and a space";
}

TEST(Encodings, FilesOfLessThanFourBytesAreUtf8WithoutMark) {
  EXPECT_EQ(outcomeOf(""), syntaxError(KOSTYLE_PARSE_EMPTY, 0));
  EXPECT_EQ(outcomeOf("{}"), refused(KOSTYLE_ERROR_MEMBER_MISSING, "/id"));
  EXPECT_EQ(outcomeOf("1"), refused(KOSTYLE_ERROR_WRONG_TYPE, "/"));
  EXPECT_EQ(outcomeOf("123"), refused(KOSTYLE_ERROR_WRONG_TYPE, "/"));
  EXPECT_EQ(outcomeOf(" "), syntaxError(KOSTYLE_PARSE_EMPTY, 1));
  for (const std::string& marks :
       {"\xEF\xBB\xBF"s, "\xEF\xBB"s, "\xFE\xFF"s, "\xFF\xFE"s, "\xFF\xFE{"s})
    EXPECT_EQ(parseErrorOf(marks), KOSTYLE_PARSE_VALUE_INVALID) << marks.size();
  EXPECT_EQ(outcomeOf("{\0}"s), syntaxError(KOSTYLE_PARSE_OBJECT_NAME_MISSING, 2))
      << "neither UTF-16 nor a name";
  EXPECT_EQ(outcomeOf("1\0"s), refused(KOSTYLE_ERROR_WRONG_TYPE, "/"))
      << "the zero byte ends the input";
}

TEST(Encodings, FourBytesAreEnoughToTell) {
  EXPECT_EQ(outcomeOf(encoded("{}", Encoding::utf16le)), refused(KOSTYLE_ERROR_MEMBER_MISSING, "/id"));
  EXPECT_EQ(outcomeOf(encoded("{}", Encoding::utf16be)), refused(KOSTYLE_ERROR_MEMBER_MISSING, "/id"));
  EXPECT_EQ(outcomeOf(encoded("1", Encoding::utf32le)), refused(KOSTYLE_ERROR_WRONG_TYPE, "/"));
  EXPECT_EQ(outcomeOf(encoded("1", Encoding::utf32be)), refused(KOSTYLE_ERROR_WRONG_TYPE, "/"));
  EXPECT_EQ(outcomeOf("\xEF\xBB\xBF\x31"s), refused(KOSTYLE_ERROR_WRONG_TYPE, "/"));
}

TEST(Encodings, OtherPatternsOfZeroBytesAreUtf8) {
  // Every pattern of four bytes that is not one of the five; the first zero byte then ends the input.
  EXPECT_EQ(outcomeOf("12\0\0"s), refused(KOSTYLE_ERROR_WRONG_TYPE, "/"));
  EXPECT_EQ(outcomeOf("123\0"s), refused(KOSTYLE_ERROR_WRONG_TYPE, "/"));
  EXPECT_EQ(outcomeOf("1\0\0"
                      "2"s),
            refused(KOSTYLE_ERROR_WRONG_TYPE, "/"));
  EXPECT_EQ(outcomeOf("12\0"
                      "3"s),
            refused(KOSTYLE_ERROR_WRONG_TYPE, "/"));
  EXPECT_EQ(outcomeOf("1\0"
                      "23"s),
            refused(KOSTYLE_ERROR_WRONG_TYPE, "/"));
  for (const std::string& zeroFirst : {"\0\0\0\0"s,
                                       "\0"
                                       "123"s,
                                       "\0"
                                       "12\0"s,
                                       "\0\0"
                                       "12"s,
                                       "\0\0"
                                       "1\0"s,
                                       "\0"
                                       "1\0\0"s})
    EXPECT_EQ(parseErrorOf(zeroFirst), KOSTYLE_PARSE_EMPTY);
}

TEST(Encodings, AMarkOutweighsThePatternOfZeroBytes) {
  // Units of UTF-16LE whose bytes look like UTF-8 to one who counts zeros.
  const auto style = styleOf(encoded(rich, Encoding::utf16le, true));
  EXPECT_EQ(style.id, test::text("I"));
  // A UTF-8 mark before text whose third character is a zero byte stays UTF-8.
  EXPECT_EQ(outcomeOf("\xEF\xBB\xBF"
                      "1\0"s),
            refused(KOSTYLE_ERROR_WRONG_TYPE, "/"));
}

TEST(Encodings, ASecondMarkIsNoWhiteSpace) {
  for (const Encoding encoding : allEncodings()) {
    const std::string twice = encoded(U"\uFEFF", encoding, true) + encoded(rich, encoding);
    EXPECT_EQ(parseErrorOf(twice), KOSTYLE_PARSE_VALUE_INVALID) << nameOf(encoding);
  }
}

TEST(Encodings, AnIncompleteLastUnitIsFilledUpWithZeros) {
  // What is left of a unit counts as one: a space here, and nothing there.
  EXPECT_EQ(styleOf(encoded(rich, Encoding::utf16le) + " "), styleOf(rich));
  EXPECT_EQ(styleOf(encoded(rich, Encoding::utf16be) + "\0"s), styleOf(rich));
  EXPECT_EQ(styleOf(encoded(rich, Encoding::utf32le) + " \0\0"s), styleOf(rich));
  EXPECT_EQ(styleOf(encoded(rich, Encoding::utf32be) + "\0\0\0"s), styleOf(rich));
  EXPECT_EQ(parseErrorOf(encoded(rich, Encoding::utf16le) + "x"), KOSTYLE_PARSE_ROOT_NOT_SINGULAR);
  EXPECT_EQ(parseErrorOf(encoded(rich, Encoding::utf16be) + " "), KOSTYLE_PARSE_ROOT_NOT_SINGULAR);
}

TEST(Encodings, AZeroUnitEndsTheInput) {
  for (const Encoding encoding : allEncodings()) {
    const std::u32string ended = test::codePointsOf(rich) + U'\0';
    EXPECT_EQ(styleOf(encoded(ended + U"}{ garbage", encoding, true)), styleOf(rich));
    EXPECT_EQ(parseErrorOf(encoded(U"{\"id\":\"a\0b\",\"name\":\"N\"}"s, encoding, true)),
              KOSTYLE_PARSE_QUOTATION_MARK_MISSING)
        << nameOf(encoding);
    EXPECT_EQ(parseErrorOf(encoded(U"{\0}"s, encoding, true)), KOSTYLE_PARSE_OBJECT_NAME_MISSING)
        << nameOf(encoding);
  }
}

TEST(Encodings, FilesAcrossTheBufferBoundaryReadTheSame) {
  // The reader's buffer holds 256 bytes; the document ends at, before and after its edges.
  const test::FileReader reader;
  const auto expected = styleOf(rich);
  for (std::size_t i = 0; i < 600; ++i) {
    const std::string spaces(i, ' ');
    for (const std::string& document : {rich + spaces, spaces + rich}) {
      const test::Reading reading = reader.read(document);
      ASSERT_EQ(reading.outcome, test::taken()) << i;
      ASSERT_EQ(*reading.style, expected) << i;
    }
  }
}

}  // namespace
