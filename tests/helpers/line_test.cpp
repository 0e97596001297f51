// Lines and columns of places in files.
#include <gtest/gtest.h>
#include <kostyle/helpers.h>
#include <kostyle/kostyle.h>

#include <string>

#include "support/encodings.h"
#include "support/host.h"

namespace {

struct Place {
  size_t line = 0;
  size_t column = 0;
  friend bool operator==(const Place& a, const Place& b) {
    return a.line == b.line && a.column == b.column;
  }
  friend std::ostream& operator<<(std::ostream& out, const Place& place) {
    return out << place.line << ':' << place.column;
  }
};

Place placeOf(const std::string& content, uint64_t offset) {
  Place place;
  KoStyle_findLine(content.data(), content.size(), offset, &place.line, &place.column);
  return place;
}

TEST(HelperLine, CountsFromOne) {
  EXPECT_EQ(placeOf("", 0), (Place{1, 1}));
  EXPECT_EQ(placeOf("{}", 0), (Place{1, 1}));
  EXPECT_EQ(placeOf("{}", 1), (Place{1, 1}));
  EXPECT_EQ(placeOf("{}", 2), (Place{1, 2}));
  EXPECT_EQ(placeOf("{}", 1000), (Place{1, 2}));
}

TEST(HelperLine, EndsLinesWithEveryLineEnd) {
  const std::string content = "{\n\"a\"\r\n:\r1\n\n}";
  const auto placeOfCharacter = [&](char character) {
    return placeOf(content, content.find(character) + 1);
  };
  EXPECT_EQ(placeOfCharacter('\n'), (Place{1, 2})) << "a line's end belongs to it";
  EXPECT_EQ(placeOfCharacter('a'), (Place{2, 2}));
  EXPECT_EQ(placeOfCharacter('\r'), (Place{2, 4}));
  EXPECT_EQ(placeOf(content, content.find("\r\n") + 2), (Place{2, 4})) << "CR LF is one";
  EXPECT_EQ(placeOfCharacter(':'), (Place{3, 1}));
  EXPECT_EQ(placeOfCharacter('1'), (Place{4, 1}));
  EXPECT_EQ(placeOfCharacter('}'), (Place{6, 1}));
}

struct Fault {
  const char* content;
  Place place;
};

// The library tells the offset, in every encoding, with and without a mark.
TEST(HelperLine, IsThatOfTheLibrarysSyntaxErrors) {
  const Fault faults[] = {
      {"x   ", {1, 1}},
      {"{\n  \"id\" x", {2, 8}},
      {"{\r\n\r\n  x", {3, 3}},
      {"{\n  \"id\": \"a\nb\"}", {2, 11}},
      {"{\"\xC3\xA9\xF0\x9F\x98\x80\": \xC3\xA9}", {1, 8}},
      {"{\"\xC3\xA9\xF0\x9F\x98\x80\": 1 \xF0\x9F\x98\x80}", {1, 10}},
      {"{\n\"id\": \"a\"", {2, 9}},
      {"{\"id\": 1}\n {", {2, 2}},
  };
  for (const Fault& fault : faults) {
    for (const test::Encoding encoding : test::allEncodings()) {
      for (const bool mark : {false, true}) {
        const std::string content = test::encoded(fault.content, encoding, mark);
        const test::Host host;
        test::writeFile(host.system / "faulty.kostyle", content);
        ASSERT_EQ(StyleManager_readSystemStyles(host.manager), KOSTYLE_OK);
        KoStyleCreationResult* const result = StyleManager_systemStyleCreationResult(host.manager, 0);
        ASSERT_EQ(StyleCreationResult_error(result), KOSTYLE_ERROR_JSON_SYNTAX);
        EXPECT_EQ(placeOf(content, StyleCreationResult_parseErrorOffset(result)), fault.place)
            << fault.content << ", " << test::nameOf(encoding) << (mark ? " with a mark" : "");
      }
    }
  }
}

}  // namespace
