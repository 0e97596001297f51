// UTF-8 to the library's text and back.
#include <gtest/gtest.h>
#include <kostyle/helpers.h>

#include <string>
#include <vector>

namespace {

using Text = std::basic_string<KoStyleChar>;

Text units(std::initializer_list<unsigned> values) {
  Text text;
  for (const unsigned value : values) text += static_cast<KoStyleChar>(value);
  return text;
}

Text widened(const std::string& utf8, size_t (*convert)(const char*, KoStyleChar*, size_t)) {
  std::vector<KoStyleChar> buffer(convert(utf8.c_str(), nullptr, 0) + 1, KoStyleChar('?'));
  EXPECT_EQ(convert(utf8.c_str(), buffer.data(), buffer.size()), buffer.size() - 1);
  EXPECT_EQ(buffer.back(), 0);
  return Text(buffer.data());
}

std::string narrowed(const Text& text, size_t (*convert)(const KoStyleChar*, char*, size_t)) {
  std::vector<char> buffer(convert(text.c_str(), nullptr, 0) + 1, '?');
  EXPECT_EQ(convert(text.c_str(), buffer.data(), buffer.size()), buffer.size() - 1);
  EXPECT_EQ(buffer.back(), 0);
  return buffer.data();
}

struct Pair {
  const char* utf8;
  Text text;
};

const std::vector<Pair>& valid() {
  static const std::vector<Pair> pairs = {
      {"", {}},
      {"abc", units({'a', 'b', 'c'})},
      {"\x7F\xC2\x80", units({0x7F, 0x80})},
      {"\xDF\xBF\xE0\xA0\x80", units({0x7FF, 0x800})},
      {"\xED\x9F\xBF\xEE\x80\x80", units({0xD7FF, 0xE000})},
      {"\xEF\xBF\xBF\xF0\x90\x80\x80", units({0xFFFF, 0xD800, 0xDC00})},
      {"\xF4\x8F\xBF\xBF!", units({0xDBFF, 0xDFFF, '!'})}};
  return pairs;
}

TEST(HelperText, ConvertsValidTextBothWays) {
  for (const Pair& pair : valid()) {
    EXPECT_EQ(widened(pair.utf8, KoStyle_textFromUtf8), pair.text);
    EXPECT_EQ(widened(pair.utf8, KoStyle_textFromPath), pair.text);
    EXPECT_EQ(narrowed(pair.text, KoStyle_utf8FromText), pair.utf8);
    EXPECT_EQ(narrowed(pair.text, KoStyle_pathFromText), pair.utf8);
  }
}

TEST(HelperText, TakesNullAsEmpty) {
  KoStyleChar unit = 'x';
  char byte = 'x';
  EXPECT_EQ(KoStyle_textFromUtf8(nullptr, &unit, 1), 0u);
  EXPECT_EQ(KoStyle_utf8FromText(nullptr, &byte, 1), 0u);
  EXPECT_EQ(unit, 0);
  EXPECT_EQ(byte, 0);
}

// Overlong, a surrogate, beyond the last code point, cut off, and bytes that start nothing.
TEST(HelperText, EachByteThatIsNotUtf8BecomesAReplacement) {
  for (const std::string bytes :
       {"\xC0\xAF", "\xE0\x80\xAF", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\xF0\x8F\xBF\xBF", "\xC3",
        "\xE2\x82", "\xF0\x9F\x98", "\x80", "\xFF\xFE", "\xF8\x88\x80\x80\x80"}) {
    EXPECT_EQ(widened('a' + bytes + 'b', KoStyle_textFromUtf8),
              KoStyleChar('a') + Text(bytes.size(), KoStyleChar(0xFFFD)) + KoStyleChar('b'));
  }
}

TEST(HelperText, ALoneSurrogateBecomesAReplacement) {
  for (const Text& text : {units({0xD800}), units({0xDC00}), units({0xDC80}), units({0xDBFF, 'x'}),
                           units({0xDFFF, 0xD800}), units({0xD800, 0xD800})}) {
    std::string expected;
    for (const KoStyleChar unit : text) expected += unit == 'x' ? "x" : "\xEF\xBF\xBD";
    EXPECT_EQ(narrowed(text, KoStyle_utf8FromText), expected);
  }
}

TEST(HelperText, WithALoneSurrogateThatStandsForNoByteIsNoPath) {
  for (const Text& text : {units({0xD800}), units({0xDC00}), units({'a', 0xDC7F}), units({0xDD00, 'b'}),
                           units({0xDFFF, 'c', 0xD800})}) {
    char buffer[] = {'?', '?'};
    EXPECT_EQ(KoStyle_pathFromText(text.c_str(), buffer, sizeof buffer), SIZE_MAX);
    EXPECT_EQ(buffer[0], 0);
    EXPECT_EQ(KoStyle_pathFromText(text.c_str(), nullptr, 0), SIZE_MAX);
  }
  EXPECT_EQ(narrowed(units({0xDC80, 0xDCFF}), KoStyle_pathFromText), "\x80\xFF");
}

TEST(HelperText, PathsKeepEveryByte) {
  std::string all;
  for (int byte = 1; byte < 256; ++byte) all += static_cast<char>(byte);
  EXPECT_EQ(narrowed(widened(all, KoStyle_textFromPath), KoStyle_pathFromText), all);
  EXPECT_EQ(widened("a\xFF", KoStyle_textFromPath), units({'a', 0xDCFF}));
}

TEST(HelperText, CutsBetweenCodePoints) {
  const std::string utf8 = "a\xC3\xA9\xF0\x9F\x98\x80z";
  const Text text = units({'a', 0xE9, 0xD83D, 0xDE00, 'z'});
  const size_t unitsThatFit[] = {0, 0, 1, 2, 2, 4, 5};
  for (size_t capacity = 0; capacity <= 6; ++capacity) {
    std::vector<KoStyleChar> buffer(8, KoStyleChar('?'));
    EXPECT_EQ(KoStyle_textFromUtf8(utf8.c_str(), buffer.data(), capacity), text.size());
    if (capacity > 0) {
      EXPECT_EQ(Text(buffer.data()), text.substr(0, unitsThatFit[capacity])) << capacity;
    }
    EXPECT_EQ(buffer[capacity], '?') << "nothing is written beyond the capacity";
  }
  const size_t bytesThatFit[] = {0, 0, 1, 1, 3, 3, 3, 3, 7, 8};
  for (size_t capacity = 0; capacity <= 9; ++capacity) {
    std::vector<char> buffer(12, '?');
    EXPECT_EQ(KoStyle_utf8FromText(text.c_str(), buffer.data(), capacity), utf8.size());
    if (capacity > 0) {
      EXPECT_EQ(std::string(buffer.data()), utf8.substr(0, bytesThatFit[capacity])) << capacity;
    }
    EXPECT_EQ(buffer[capacity], '?');
  }
}

}  // namespace
