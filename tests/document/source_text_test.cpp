// The bytes of a file as characters, lines and columns.
#include "document/source_text.h"

#include <gmock/gmock.h>

#include "support/encodings.h"

namespace {

using test::encoded;
using test::Encoding;
using tool::SourceText;

// "line:column" of the offset.
std::string placeOf(const SourceText& source, std::size_t offset) {
  const tool::Position position = source.position(offset);
  return std::to_string(position.line) + ':' + std::to_string(position.column);
}

TEST(SourceText, KnowsItsEncodingByTheMarkOrTheZeroBytes) {
  for (const Encoding encoding : test::allEncodings()) {
    for (const bool mark : {false, true}) {
      const SourceText source(encoded(U"{ }", encoding, mark));
      EXPECT_STREQ(source.encodingName(), test::nameOf(encoding)) << mark;
      EXPECT_EQ(source.begin(), mark ? encoded(U"", encoding, true).size() : 0);
    }
  }
}

TEST(SourceText, CountsColumnsInCharacters) {
  for (const Encoding encoding : test::allEncodings()) {
    SCOPED_TRACE(test::nameOf(encoding));
    const SourceText source(encoded(U"[\"\U0001F3B5\u00E9\", 1]", encoding, true));
    std::size_t offset = source.begin();
    for (const char* const place : {"1:1", "1:2", "1:3", "1:4", "1:5", "1:6"}) {
      EXPECT_EQ(placeOf(source, offset), place);
      offset += source.at(offset).size;
    }
    EXPECT_EQ(placeOf(source, source.end()), "1:10");
  }
}

TEST(SourceText, AnOffsetInsideACharacterIsItsStart) {
  const SourceText source("[\"\xF0\x9F\x8E\xB5\"]");
  for (const std::size_t offset : {2, 3, 4, 5}) EXPECT_EQ(placeOf(source, offset), "1:3");
  EXPECT_EQ(placeOf(source, 6), "1:4");
}

TEST(SourceText, EndsLinesAsEditorsDo) {
  for (const Encoding encoding : test::allEncodings()) {
    SCOPED_TRACE(test::nameOf(encoding));
    const SourceText source(encoded(U"{\n\r\n\r}\r", encoding, false));
    const std::size_t unit = test::unitSize(encoding);
    const char* const places[] = {"1:1", "1:2", "2:1", "2:2", "3:1", "4:1", "4:2", "5:1"};
    for (std::size_t i = 0; i < 8; ++i) EXPECT_EQ(placeOf(source, i * unit), places[i]) << i;
  }
}

TEST(SourceText, FindsPositionsFarIntoAFile) {
  std::u32string text;
  for (int i = 0; i < 3000; ++i) text += U"[\u00E9]\n";
  for (const Encoding encoding : test::allEncodings()) {
    SCOPED_TRACE(test::nameOf(encoding));
    const SourceText source(encoded(text, encoding, true));
    const std::size_t line = (source.end() - source.begin()) / 3000;
    EXPECT_EQ(placeOf(source, source.begin() + 2000 * line), "2001:1");
    EXPECT_EQ(placeOf(source, source.end() - test::unitSize(encoding)), "3000:4");
    EXPECT_EQ(placeOf(source, source.end()), "3001:1");
  }
}

TEST(SourceText, StepsBackByCharacters) {
  const std::u32string text = U"a\u00E9\u20AC\U0001F3B5b";
  for (const Encoding encoding : test::allEncodings()) {
    SCOPED_TRACE(test::nameOf(encoding));
    const SourceText source(encoded(text, encoding, true));
    std::size_t offset = source.end();
    for (auto character = text.rbegin(); character != text.rend(); ++character) {
      offset = source.before(offset);
      EXPECT_EQ(source.at(offset).codePoint, *character);
    }
    EXPECT_EQ(offset, source.begin());
  }
}

TEST(SourceText, GivesUtf8AndTakesIt) {
  const std::u32string text = U"[\"\U0001F3B5\u00E9\"]";
  const std::string utf8 = encoded(text, Encoding::utf8, false);
  for (const Encoding encoding : test::allEncodings()) {
    SCOPED_TRACE(test::nameOf(encoding));
    const std::string bytes = encoded(text, encoding, false);
    const SourceText source(bytes);
    EXPECT_EQ(source.utf8({0, static_cast<std::uint32_t>(bytes.size())}), utf8);
    EXPECT_EQ(source.encoded(utf8), bytes);
  }
}

TEST(SourceText, TakesBytesThatAreNoCharacters) {
  const SourceText utf8("[\"\xC3\"]");
  EXPECT_EQ(utf8.at(2).codePoint, 0xDCC3u);
  EXPECT_EQ(utf8.at(2).size, 1u);
  const SourceText cutOff(std::string("[\0]\0\x20", 5));
  EXPECT_EQ(cutOff.at(4).codePoint, U' ');
  EXPECT_EQ(cutOff.at(4).size, 1u);
  const SourceText tooLarge(std::string("[\0\0\0\0\0\x11\0", 8));
  EXPECT_EQ(tooLarge.at(4).size, 4u);
  EXPECT_EQ(placeOf(SourceText(""), 0), "1:1");
}

}  // namespace
