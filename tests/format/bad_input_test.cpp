// Files that are no style documents at all.
#include <gmock/gmock.h>

#include <algorithm>

#include "support/encodings.h"
#include "support/file_reader.h"
#include "support/random.h"

namespace {

using test::Encoding;
using test::FileReader;
using test::Outcome;
using test::outcomeOf;
using test::Reading;
using test::refused;
using test::syntaxError;

// An outcome that a syntax error may have.
testing::AssertionResult isSyntaxError(const Outcome& outcome, std::size_t fileSize) {
  if (outcome.error == KOSTYLE_ERROR_JSON_SYNTAX && outcome.jsonPath.empty() &&
      outcome.parseError >= KOSTYLE_PARSE_EMPTY && outcome.parseError <= KOSTYLE_PARSE_OTHER &&
      outcome.offset <= fileSize)
    return testing::AssertionSuccess();
  return testing::AssertionFailure() << testing::PrintToString(outcome);
}

TEST(BadInput, OfOneByteOnlyDigitsAreADocument) {
  const FileReader reader;
  for (int byte = 0; byte < 256; ++byte) {
    const Outcome outcome = reader.read(std::string(1, static_cast<char>(byte))).outcome;
    if (byte >= '0' && byte <= '9') {
      EXPECT_EQ(outcome, refused(KOSTYLE_ERROR_WRONG_TYPE, "/")) << byte;
    } else {
      EXPECT_TRUE(isSyntaxError(outcome, 1)) << byte;
      const bool nothing = byte == 0 || byte == ' ' || byte == '\t' || byte == '\r' || byte == '\n';
      EXPECT_EQ(outcome.parseError == KOSTYLE_PARSE_EMPTY, nothing) << byte;
    }
  }
}

TEST(BadInput, RandomBytesAreASyntaxError) {
  test::Random random(1);
  const FileReader reader;
  for (int i = 0; i < 2000; ++i) {
    std::string bytes(random.between(4, 700), '\0');
    // A first byte that starts no value, so that no document can come about.
    for (char& byte : bytes) byte = static_cast<char>(random.below(256));
    bytes[0] = static_cast<char>(random.between(0x80, 0xBF));
    ASSERT_TRUE(isSyntaxError(reader.read(bytes).outcome, bytes.size())) << i;
  }
}

TEST(BadInput, BinaryFilesAreASyntaxError) {
  using namespace std::string_literals;
  for (const std::string& bytes : {std::string(4096, '\0'), std::string(4096, '\xFF'),
                                   "\x89PNG\r\n\x1A\n\0\0\0\rIHDR"s, "PK\x03\x04\x14\0\0\0"s,
                                   "\x7F"
                                   "ELF\x02\x01\x01\0"s})
    EXPECT_TRUE(isSyntaxError(outcomeOf(bytes), bytes.size()));
}

TEST(BadInput, ATruncatedDocumentGivesARecordAtEveryByte) {
  const std::string document =
      "{\"id\":\"I\",\"name\":\"N\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80\\u00e4\\uD83D\\uDE00\","
      "\"vendor\":null,"
      "\"filter\":{\"languages\":[0,-1,true],\"colors\":[\"c\"]},\"midiEffect\":{\"M\":{\"script\":"
      "\"s\","
      "\"parameter\":{\"a\":1.5e-3,\"b\":-12,\"c\":\"d\",\"e\":false}}}}";
  const FileReader reader;
  for (const Encoding encoding : test::allEncodings()) {
    for (const bool mark : {false, true}) {
      const std::string whole = encoded(document, encoding, mark);
      for (std::size_t size = 0; size <= whole.size(); ++size) {
        const Outcome outcome = reader.read(whole.substr(0, size)).outcome;
        // The zero bytes of the closing brace may be missing: they are taken as read.
        const std::string rest = whole.substr(size);
        if (std::all_of(rest.begin(), rest.end(), [](char byte) { return byte == 0; })) {
          EXPECT_EQ(outcome, test::taken()) << nameOf(encoding) << ' ' << size;
        } else {
          ASSERT_TRUE(isSyntaxError(outcome, size)) << nameOf(encoding) << ' ' << size;
        }
      }
    }
  }
}

TEST(BadInput, AChangedByteNeverEndsTheReader) {
  const std::string document =
      R"({"id":"I","name":"N","filter":{"languages":[1]},"audioEffect":{"E":{"parameter":{"a":1e3}}}})";
  const FileReader reader;
  test::Random random(2);
  for (const Encoding encoding : test::allEncodings()) {
    const std::string whole = encoded(document, encoding, true);
    for (std::size_t i = 0; i < whole.size(); ++i) {
      std::string changed = whole;
      changed[i] = static_cast<char>(changed[i] ^ static_cast<char>(1 << random.below(8)));
      const Reading reading = reader.read(changed);
      if (reading.style) {
        EXPECT_FALSE(reading.style->id.empty());
      } else if (reading.outcome.error == KOSTYLE_ERROR_JSON_SYNTAX) {
        EXPECT_TRUE(isSyntaxError(reading.outcome, changed.size()));
      } else {
        EXPECT_THAT(reading.outcome.error,
                    testing::AnyOf(KOSTYLE_ERROR_MEMBER_MISSING, KOSTYLE_ERROR_WRONG_TYPE,
                                   KOSTYLE_ERROR_EMPTY_STRING, KOSTYLE_ERROR_NO_EFFECT));
      }
    }
  }
}

TEST(BadInput, ATextOf100MegabytesIsRead) {
  const std::size_t size = 100u << 20;
  std::string document = R"({"name":"N","audioEffect":{"E":{"parameter":1}},"id":")";
  document.append(size, 'x').append("\"}");
  const FileReader reader;
  EXPECT_EQ(reader.read(document).outcome, test::taken());
  ASSERT_NE(reader.style(), nullptr);
  EXPECT_EQ(std::char_traits<KoStyleChar>::length(Style_id(reader.style())), size);
}

TEST(BadInput, AnUnknownTextOf100MegabytesIsPassedOver) {
  std::string document = R"({"x":")";
  document.append(100u << 20, 'x').append(R"(","id":5})");
  EXPECT_EQ(outcomeOf(document), refused(KOSTYLE_ERROR_WRONG_TYPE, "/id"));
}

TEST(BadInput, AnUnclosedTextOf100MegabytesIsASyntaxError) {
  EXPECT_EQ(outcomeOf("\"" + std::string(100u << 20, 'x')),
            syntaxError(KOSTYLE_PARSE_QUOTATION_MARK_MISSING, (100u << 20) + 1));
}

}  // namespace
