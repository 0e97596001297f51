// The five encodings of a style file, with and without a byte-order mark.
#include "format/encodings.h"

#include <gmock/gmock.h>

#include "format/sample_documents.h"

namespace {

using test::allEncodings;
using test::encoded;
using test::Encoding;
using test::outcomeOf;
using test::styleOf;
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

TEST(Encodings, WhiteSpaceMayPrecedeTheRoot) {
  for (const Encoding encoding : allEncodings())
    EXPECT_EQ(styleOf(encoded(" \t\r\n" + rich + " \t\r\n", encoding)), styleOf(rich))
        << nameOf(encoding);
}

TEST(Encodings, AMarkAloneIsAnEmptyFile) {
  EXPECT_EQ(outcomeOf("\xFF\xFE\0\0"s), "17  1@4") << "UTF-32LE";
  EXPECT_EQ(outcomeOf("\0\0\xFE\xFF"s), "17  1@4") << "UTF-32BE";
  EXPECT_EQ(outcomeOf("\xFE\xFF\0 "s), "17  1@4") << "UTF-16BE and a space";
  EXPECT_EQ(outcomeOf("\xFF\xFE \0"s), "17  1@4") << "UTF-16LE and a space";
  EXPECT_EQ(outcomeOf("\xEF\xBB\xBF "s), "17  1@4") << "UTF-8 and a space";
}

TEST(Encodings, FilesOfLessThanFourBytesAreUtf8WithoutMark) {
  EXPECT_EQ(outcomeOf(""), "17  1@0");
  EXPECT_EQ(outcomeOf("{}"), "19 /id 0@0");
  EXPECT_EQ(outcomeOf("1"), "20 / 0@0");
  EXPECT_EQ(outcomeOf("123"), "20 / 0@0");
  EXPECT_EQ(outcomeOf(" "), "17  1@1");
  for (const std::string& marks :
       {"\xEF\xBB\xBF"s, "\xEF\xBB"s, "\xFE\xFF"s, "\xFF\xFE"s, "\xFF\xFE{"s})
    EXPECT_EQ(outcomeOf(marks).substr(0, 5), "17  3") << marks.size();
  EXPECT_EQ(outcomeOf("{\0}"s), "17  4@2") << "neither UTF-16 nor a name";
  EXPECT_EQ(outcomeOf("1\0"s), "20 / 0@0") << "the zero byte ends the input";
}

TEST(Encodings, FourBytesAreEnoughToTell) {
  EXPECT_EQ(outcomeOf(encoded("{}", Encoding::utf16le)), "19 /id 0@0");
  EXPECT_EQ(outcomeOf(encoded("{}", Encoding::utf16be)), "19 /id 0@0");
  EXPECT_EQ(outcomeOf(encoded("1", Encoding::utf32le)), "20 / 0@0");
  EXPECT_EQ(outcomeOf(encoded("1", Encoding::utf32be)), "20 / 0@0");
  EXPECT_EQ(outcomeOf("\xEF\xBB\xBF\x31"s), "20 / 0@0");
}

TEST(Encodings, OtherPatternsOfZeroBytesAreUtf8) {
  // Every pattern of four bytes that is not one of the five; the first zero byte then ends the input.
  EXPECT_EQ(outcomeOf("12\0\0"s), "20 / 0@0");
  EXPECT_EQ(outcomeOf("123\0"s), "20 / 0@0");
  EXPECT_EQ(outcomeOf("1\0\0"
                      "2"s),
            "20 / 0@0");
  EXPECT_EQ(outcomeOf("12\0"
                      "3"s),
            "20 / 0@0");
  EXPECT_EQ(outcomeOf("1\0"
                      "23"s),
            "20 / 0@0");
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
    EXPECT_EQ(outcomeOf(zeroFirst).substr(0, 5), "17  1");
}

TEST(Encodings, AMarkOutweighsThePatternOfZeroBytes) {
  // Units of UTF-16LE whose bytes look like UTF-8 to one who counts zeros.
  const auto style = styleOf(encoded(rich, Encoding::utf16le, true));
  EXPECT_EQ(style.id, test::text("I"));
  // A UTF-8 mark before text whose third character is a zero byte stays UTF-8.
  EXPECT_EQ(outcomeOf("\xEF\xBB\xBF"
                      "1\0"s),
            "20 / 0@0");
}

TEST(Encodings, ASecondMarkIsNoWhiteSpace) {
  for (const Encoding encoding : allEncodings()) {
    const std::string twice = encoded(U"\uFEFF", encoding, true) + encoded(rich, encoding);
    EXPECT_EQ(outcomeOf(twice).substr(0, 5), "17  3") << nameOf(encoding);
  }
}

TEST(Encodings, AnIncompleteLastUnitIsFilledUpWithZeros) {
  // What is left of a unit counts as one: a space here, and nothing there.
  EXPECT_EQ(styleOf(encoded(rich, Encoding::utf16le) + " "), styleOf(rich));
  EXPECT_EQ(styleOf(encoded(rich, Encoding::utf16be) + "\0"s), styleOf(rich));
  EXPECT_EQ(styleOf(encoded(rich, Encoding::utf32le) + " \0\0"s), styleOf(rich));
  EXPECT_EQ(styleOf(encoded(rich, Encoding::utf32be) + "\0\0\0"s), styleOf(rich));
  EXPECT_EQ(outcomeOf(encoded(rich, Encoding::utf16le) + "x").substr(0, 5), "17  2");
  EXPECT_EQ(outcomeOf(encoded(rich, Encoding::utf16be) + " ").substr(0, 5), "17  2");
}

TEST(Encodings, AZeroUnitEndsTheInput) {
  for (const Encoding encoding : allEncodings()) {
    const std::u32string ended = test::codePointsOf(rich) + U'\0';
    EXPECT_EQ(styleOf(encoded(ended + U"}{ garbage", encoding, true)), styleOf(rich));
    EXPECT_EQ(outcomeOf(encoded(U"{\"id\":\"a\0b\",\"name\":\"N\"}"s, encoding, true)).substr(0, 6),
              "17  11")
        << nameOf(encoding);
    EXPECT_EQ(outcomeOf(encoded(U"{\0}"s, encoding, true)).substr(0, 5), "17  4") << nameOf(encoding);
  }
}

TEST(Encodings, FilesAcrossTheBufferBoundaryReadTheSame) {
  // The reader's buffer holds 256 bytes; the document ends at, before and after its edges.
  const test::StyleFile file;
  const auto expected = styleOf(rich);
  for (std::size_t spaces = 0; spaces < 600; ++spaces) {
    for (const std::string& bytes :
         {rich + std::string(spaces, ' '), std::string(spaces, ' ') + rich}) {
      const test::Reading reading = file.read(bytes);
      ASSERT_NE(reading.style, nullptr) << spaces;
      ASSERT_EQ(test::snapshot(*reading.style), expected) << spaces;
    }
  }
}

}  // namespace
