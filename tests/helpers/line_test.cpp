// Lines and columns of places in files.
#include <gtest/gtest.h>
#include <kostyle/helpers.h>

#include <string>

#include "support/encodings.h"

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
  EXPECT_EQ(placeOf("{}", 1), (Place{1, 2}));
  EXPECT_EQ(placeOf("{}", 1000), (Place{1, 3}));
}

TEST(HelperLine, EndsLinesWithEveryLineEnd) {
  const std::string content = "{\n\"a\"\r\n:\r1\n\n}";
  EXPECT_EQ(placeOf(content, content.find('"')), (Place{2, 1}));
  EXPECT_EQ(placeOf(content, content.find(':')), (Place{3, 1}));
  EXPECT_EQ(placeOf(content, content.find('1')), (Place{4, 1}));
  EXPECT_EQ(placeOf(content, content.find('}')), (Place{6, 1}));
}

TEST(HelperLine, CountsCodePointsInEveryEncoding) {
  const std::string before = "{\r\n  \"\xC3\xA9\xF0\x9F\x98\x80\": ";
  for (const test::Encoding encoding : test::allEncodings()) {
    for (const bool mark : {false, true}) {
      const std::string content = test::encoded(before + "x}", encoding, mark);
      const std::size_t offset = test::encoded(before, encoding, mark).size();
      EXPECT_EQ(placeOf(content, offset), (Place{2, 9})) << test::nameOf(encoding) << mark;
      EXPECT_EQ(placeOf(content, mark ? test::unitSize(encoding) : 0), (Place{1, 1}));
    }
  }
}

}  // namespace
