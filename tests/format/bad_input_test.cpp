// Files that are no style documents at all.
#include <gmock/gmock.h>

#include <algorithm>

#include "format/encodings.h"
#include "format/sample_documents.h"
#include "support/random.h"

namespace {

using test::Encoding;
using test::outcomeOf;
using test::Reading;
using test::StyleFile;

// An outcome that a syntax error may have.
testing::AssertionResult isSyntaxError(const Reading& reading, std::size_t fileSize) {
  const auto& outcome = reading.outcome;
  if (!reading.style && outcome.error == KOSTYLE_ERROR_JSON_SYNTAX && outcome.jsonPath.empty() &&
      outcome.parseError >= KOSTYLE_PARSE_EMPTY && outcome.parseError <= KOSTYLE_PARSE_OTHER &&
      outcome.parseErrorOffset <= fileSize)
    return testing::AssertionSuccess();
  return testing::AssertionFailure() << describe(reading);
}

TEST(BadInput, OfOneByteOnlyDigitsAreADocument) {
  const StyleFile file;
  for (int byte = 0; byte < 256; ++byte) {
    const Reading reading = file.read(std::string(1, static_cast<char>(byte)));
    if (byte >= '0' && byte <= '9') {
      EXPECT_EQ(describe(reading), "20 / 0@0") << byte;
    } else {
      EXPECT_TRUE(isSyntaxError(reading, 1)) << byte;
      const bool nothing = byte == 0 || byte == ' ' || byte == '\t' || byte == '\r' || byte == '\n';
      EXPECT_EQ(reading.outcome.parseError == KOSTYLE_PARSE_EMPTY, nothing) << byte;
    }
  }
}

TEST(BadInput, RandomBytesAreASyntaxError) {
  test::Random random(1);
  const StyleFile file;
  for (int i = 0; i < 2000; ++i) {
    std::string bytes(random.between(4, 700), '\0');
    // A first byte that starts no value, so that no document can come about.
    for (char& byte : bytes) byte = static_cast<char>(random.below(256));
    bytes[0] = static_cast<char>(random.between(0x80, 0xBF));
    ASSERT_TRUE(isSyntaxError(file.read(bytes), bytes.size())) << i;
  }
}

TEST(BadInput, BinaryFilesAreASyntaxError) {
  using namespace std::string_literals;
  for (const std::string& bytes : {std::string(4096, '\0'), std::string(4096, '\xFF'),
                                   "\x89PNG\r\n\x1A\n\0\0\0\rIHDR"s, "PK\x03\x04\x14\0\0\0"s,
                                   "\x7F"
                                   "ELF\x02\x01\x01\0"s})
    EXPECT_TRUE(isSyntaxError(test::readBytes(bytes), bytes.size()));
}

TEST(BadInput, ATruncatedDocumentGivesARecordAtEveryByte) {
  const std::string document =
      "{\"id\":\"I\",\"name\":\"N\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80\\u00e4\\uD83D\\uDE00\","
      "\"vendor\":null,"
      "\"filter\":{\"languages\":[0,-1,true],\"colors\":[\"c\"]},\"midiEffect\":{\"M\":{\"script\":"
      "\"s\","
      "\"parameter\":{\"a\":1.5e-3,\"b\":-12,\"c\":\"d\",\"e\":false}}}}";
  const StyleFile file;
  for (const Encoding encoding : test::allEncodings()) {
    for (const bool mark : {false, true}) {
      const std::string whole = encoded(document, encoding, mark);
      ASSERT_NE(file.read(whole).style, nullptr) << nameOf(encoding);
      for (std::size_t size = 0; size < whole.size(); ++size) {
        const Reading reading = file.read(whole.substr(0, size));
        // The zero bytes of the closing brace may be missing: they are taken as read.
        const std::string rest = whole.substr(size);
        if (std::all_of(rest.begin(), rest.end(), [](char byte) { return byte == 0; })) {
          EXPECT_NE(reading.style, nullptr) << nameOf(encoding) << ' ' << size;
        } else {
          ASSERT_TRUE(isSyntaxError(reading, size)) << nameOf(encoding) << ' ' << size;
        }
      }
    }
  }
}

TEST(BadInput, AChangedByteNeverEndsTheReader) {
  const std::string document =
      R"({"id":"I","name":"N","filter":{"languages":[1]},"audioEffect":{"E":{"parameter":{"a":1e3}}}})";
  const StyleFile file;
  test::Random random(2);
  for (const Encoding encoding : test::allEncodings()) {
    const std::string whole = encoded(document, encoding, true);
    for (std::size_t i = 0; i < whole.size(); ++i) {
      std::string changed = whole;
      changed[i] = static_cast<char>(changed[i] ^ static_cast<char>(1 << random.below(8)));
      const Reading reading = file.read(changed);
      if (reading.style) {
        EXPECT_EQ(reading.outcome.error, 0u);
        EXPECT_FALSE(reading.style->wholeId().empty());
      } else if (reading.outcome.error == KOSTYLE_ERROR_JSON_SYNTAX) {
        EXPECT_TRUE(isSyntaxError(reading, changed.size()));
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
  const Reading reading = test::readBytes(document);
  ASSERT_NE(reading.style, nullptr);
  EXPECT_EQ(reading.style->wholeId().size(), size);
}

TEST(BadInput, AnUnknownTextOf100MegabytesIsPassedOver) {
  std::string document = R"({"x":")";
  document.append(100u << 20, 'x').append(R"(","id":5})");
  EXPECT_EQ(outcomeOf(document), "20 /id 0@0");
}

TEST(BadInput, AnUnclosedTextOf100MegabytesIsASyntaxError) {
  EXPECT_EQ(outcomeOf("\"" + std::string(100u << 20, 'x')),
            "17  11@" + std::to_string((100u << 20) + 1));
}

}  // namespace
