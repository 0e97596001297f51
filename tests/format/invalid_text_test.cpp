// Texts that are not proper Unicode: surrogates by themselves, forms that no encoder makes, U+0000.
#include <gmock/gmock.h>

#include <algorithm>

#include "support/encodings.h"
#include "support/file_reader.h"

namespace {

using test::encoded;
using test::Encoding;
using test::parametersOf;
using test::parseErrorOf;
using test::Text;
using namespace std::string_literals;

/// The value of a text parameter that is written like this.
Text textOf(const std::string& written) {
  return parametersOf("\"p\":\"" + written + "\"").at(0).string;
}

int parseErrorWith(const std::string& written) {
  return parseErrorOf(test::documentWithParameters("\"p\":\"" + written + "\""));
}

Text units(std::initializer_list<unsigned> values) {
  Text text;
  for (const unsigned value : values) text += static_cast<KoStyleChar>(value);
  return text;
}

std::u32string documentWithText(std::u32string_view content) {
  std::u32string document = test::codePointsOf(test::documentWithParameters(R"("p":"*")"));
  return document.replace(document.find(U'*'), 1, content);
}

TEST(SurrogateEscapes, PairsMakeOneCodePoint) {
  EXPECT_EQ(textOf(R"(\uD83D\uDE00)"), test::text("\xF0\x9F\x98\x80"));
  EXPECT_EQ(textOf(R"(\ud800\udc00)"), test::text("\xF0\x90\x80\x80"));
  EXPECT_EQ(textOf(R"(\uDBFF\uDFFF)"), test::text("\xF4\x8F\xBF\xBF"));
}

TEST(SurrogateEscapes, AHighOneAloneIsASyntaxError) {
  for (const char* written : {R"(\uD800)", R"(\uDBFFx)", R"(\uD83D \uDE00)", R"(\uD83D\n)",
                              R"(\uD83D\u0041)", R"(\uD83D\uD83D)", R"(\uD83D\uE000)"})
    EXPECT_EQ(parseErrorWith(written), KOSTYLE_PARSE_SURROGATE_INVALID) << written;
  EXPECT_EQ(parseErrorWith(R"(\uD83D\uDE0)"), KOSTYLE_PARSE_ESCAPE_NOT_HEXADECIMAL) << "too few digits";
}

TEST(SurrogateEscapes, ALowOneAloneIsKept) {
  EXPECT_EQ(textOf(R"(\uDC00)"), units({0xDC00}));
  EXPECT_EQ(textOf(R"(a\uDFFFb)"), units({'a', 0xDFFF, 'b'}));
  EXPECT_EQ(textOf(R"(\uDE00\uD83D\uDE00)"), units({0xDE00, 0xD83D, 0xDE00}));
}

TEST(Utf8, EncodedSurrogatesAreRefused) {
  for (const char* bytes :
       {"\xED\xA0\x80", "\xED\xAF\xBF", "\xED\xB0\x80", "\xED\xBF\xBF", "\xED\xA0\xBD\xED\xB8\x80"})
    EXPECT_EQ(parseErrorWith(bytes), KOSTYLE_PARSE_ENCODING_INVALID);
  EXPECT_EQ(textOf("\xED\x9F\xBF"), units({0xD7FF}));
  EXPECT_EQ(textOf("\xEE\x80\x80"), units({0xE000}));
}

TEST(Utf8, OverlongFormsAreRefused) {
  for (const std::string& bytes :
       {"\xC0\x80"s, "\xC0\xAF"s, "\xC1\xBF"s, "\xE0\x80\x80"s, "\xE0\x9F\xBF"s, "\xF0\x80\x80\x80"s,
        "\xF0\x8F\xBF\xBF"s, "\xE0\x80\xAF"s})
    EXPECT_EQ(parseErrorWith(bytes), KOSTYLE_PARSE_ENCODING_INVALID);
  EXPECT_EQ(textOf("\xC2\x80"), units({0x80}));
  EXPECT_EQ(textOf("\xE0\xA0\x80"), units({0x800}));
  EXPECT_EQ(textOf("\xF0\x90\x80\x80"), units({0xD800, 0xDC00}));
}

TEST(Utf8, CodePointsPast10FFFFAreRefused) {
  for (const char* bytes : {"\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\xF7\xBF\xBF\xBF",
                            "\xF8\x88\x80\x80\x80", "\xFC\x84\x80\x80\x80\x80", "\xFE", "\xFF"})
    EXPECT_EQ(parseErrorWith(bytes), KOSTYLE_PARSE_ENCODING_INVALID);
  EXPECT_EQ(textOf("\xF4\x8F\xBF\xBF"), units({0xDBFF, 0xDFFF}));
}

TEST(Utf8, BrokenSequencesAreRefused) {
  for (const char* bytes : {"\x80", "\xBF", "\xC3", "\xC3\xC3", "\xE2\x82", "\xE2\x28\xA1",
                            "\xF0\x9F\x98", "\xF0\x9F\x98\x28", "\xC3("})
    EXPECT_EQ(parseErrorWith(bytes), KOSTYLE_PARSE_ENCODING_INVALID);
}

TEST(Utf8, EveryCodePointOfTwoAndThreeBytesIsKept) {
  std::u32string all;
  for (char32_t codePoint = 0x80; codePoint < 0x10000; ++codePoint) {
    if (codePoint < 0xD800 || codePoint > 0xDFFF) all += codePoint;
  }
  Text expected;
  for (const char32_t codePoint : all) expected += static_cast<KoStyleChar>(codePoint);
  for (const Encoding encoding : test::allEncodings()) {
    const auto style = test::styleOf(encoded(documentWithText(all), encoding, true));
    EXPECT_TRUE(style.chains[KOSTYLE_EFFECT_AUDIO].at(0).parameters.at(0).string == expected)
        << nameOf(encoding);
  }
}

TEST(Utf16, SurrogatesAloneAreRefused) {
  for (const Encoding encoding : {Encoding::utf16le, Encoding::utf16be}) {
    for (const std::u32string& content : {U"\xD800"s, U"\xDC00"s, U"\xDFFF x"s, U"\xD83D x"s,
                                          U"\xDE00\xD83D"s, U"\xD83D\xD83D\xDE00"s}) {
      EXPECT_EQ(parseErrorOf(encoded(documentWithText(content), encoding)),
                KOSTYLE_PARSE_ENCODING_INVALID)
          << nameOf(encoding);
    }
    const auto style = test::styleOf(encoded(documentWithText(U"\xD83D\xDE00"), encoding));
    EXPECT_EQ(style.chains[KOSTYLE_EFFECT_AUDIO].at(0).parameters.at(0).string,
              test::text("\xF0\x9F\x98\x80"));
  }
}

TEST(Utf32, SurrogatesAreKeptAsTheyAre) {
  for (const Encoding encoding : {Encoding::utf32le, Encoding::utf32be}) {
    const auto valueIn = [&](std::u32string_view content) {
      const auto style = test::styleOf(encoded(documentWithText(content), encoding));
      return style.chains[KOSTYLE_EFFECT_AUDIO].at(0).parameters.at(0).string;
    };
    EXPECT_EQ(valueIn(U"\xD800"), units({0xD800})) << nameOf(encoding);
    EXPECT_EQ(valueIn(U"\xDFFF x"), units({0xDFFF, ' ', 'x'})) << nameOf(encoding);
    EXPECT_EQ(valueIn(U"\xD83D\xDE00"), units({0xD83D, 0xDE00})) << nameOf(encoding);
  }
}

TEST(Utf32, NumbersPast10FFFFAreRefused) {
  for (const Encoding encoding : {Encoding::utf32le, Encoding::utf32be}) {
    for (const char32_t beyond : {0x110000u, 0x7FFFFFFFu, 0x80000000u, 0xFFFFFFFFu, 0x01000022u}) {
      EXPECT_EQ(parseErrorOf(encoded(documentWithText(std::u32string(1, beyond)), encoding)),
                KOSTYLE_PARSE_ENCODING_INVALID)
          << nameOf(encoding);
    }
    EXPECT_NE(parseErrorOf(encoded(std::u32string(1, char32_t{0x100} + U'{') + U"}", encoding)),
              KOSTYLE_PARSE_OK);
  }
}

TEST(Escapes, AreReadInAnyCase) {
  EXPECT_EQ(textOf(R"(\u00E4\u00e4\u20aC)"), test::text("\xC3\xA4\xC3\xA4\xE2\x82\xAC"));
}

TEST(Escapes, OthersAreSyntaxErrors) {
  for (const char* written : {R"(\a)", R"(\x41)", R"(\0)", R"(\')", R"(\U0041)", "\\\n", "\\\xC3\xA4"})
    EXPECT_EQ(parseErrorWith(written), KOSTYLE_PARSE_ESCAPE_INVALID) << written;
  for (const char* written : {R"(\u)", R"(\u004)", R"(\u004g)", R"(\u-041)", R"(\u 041)", R"(\u+041)"})
    EXPECT_EQ(parseErrorWith(written), KOSTYLE_PARSE_ESCAPE_NOT_HEXADECIMAL) << written;
  EXPECT_EQ(parseErrorOf(encoded(documentWithText(U"\\\u0122"), Encoding::utf16le)),
            KOSTYLE_PARSE_ESCAPE_INVALID)
      << "the low byte alone is no escape";
}

TEST(ControlCharacters, InATextAreSyntaxErrors) {
  for (char control = 1; control < 0x20; ++control)
    EXPECT_EQ(parseErrorWith(std::string(1, control)), KOSTYLE_PARSE_ESCAPE_INVALID) << int{control};
  EXPECT_EQ(textOf("\x7F"), units({0x7F}));
}

/// What a host sees of texts with U+0000 in them ends there; they are kept and written whole.
TEST(NullCharacters, EndWhatIsSeenOfATextThatIsKeptWhole) {
  const std::string lists =
      R"("genres":["\u0000","g","g\u0000h"],"singerIDs":["s\u0000aaaaaaaaaaaaaa"])";
  const std::string chain =
      R"("E\u0000e":{"parameter":{"p\u0000q":"v\u0000w"}},"E\u0000f":{"parameter":{"p":1,"p\u0000":2}},)"
      R"("\u0000":{"parameter":{"\u0000":"\u0000"}})";
  const test::Host host;
  KoStyleStyle* const style =
      host.addUserStyle("I", R"({"id":"I\u0000d","name":"N\u0000n","vendor":"V\u0000v","filter":{)" +
                                 lists + R"(},"audioEffect":{)" + chain + "}}");
  ASSERT_NE(style, nullptr);
  using test::ParameterValue;
  using test::text;
  test::StoredValue expected;
  expected.id = text("I");
  expected.name = text("N");
  expected.vendor = text("V");
  expected.lists[test::genres] = {text(""), text("g"), text("g")};
  expected.lists[test::singerIDs] = {text("s")};
  expected.chains[KOSTYLE_EFFECT_AUDIO] = {
      {text("E"), {ParameterValue::ofString(text("p"), text("v"))}},
      {text("E"), {ParameterValue::ofInt(text("p"), 1), ParameterValue::ofInt(text("p"), 2)}},
      {text(""), {ParameterValue::ofString(text(""), text(""))}}};
  EXPECT_EQ(test::storedValueOf(style), expected);

  KoStylePropertyEditor* const editor = UserStyle_createPropertyEditor(style);
  PropertyEditor_setStyleName(editor, KOSTYLE_TEXT("N"));
  ASSERT_TRUE(PropertyEditor_save(editor, false));
  std::string written = test::readFile(test::Host::fileOf(style));
  written.erase(std::remove_if(written.begin(), written.end(),
                               [](char each) { return each == ' ' || each == '\n'; }),
                written.end());
  EXPECT_EQ(written, R"({"id":"I\u0000d","name":"N","filter":{"singerIDs":["s\u0000aaaaaaaaaaaaaa"],)"
                     R"("genres":["\u0000","g","g\u0000h"]},"audioEffect":{"E\u0000e":{"parameter":)"
                     R"({"p\u0000q":"v\u0000w"}},"E\u0000f":{"parameter":{"p":1,"p\u0000":2}},)"
                     R"("\u0000":{"parameter":{"\u0000":"\u0000"}}}})");
}

}  // namespace
