// The reference of the format by itself: it must be able to tell right from wrong.
#include "format/reference_style.h"

#include <gmock/gmock.h>

#include "support/file_reader.h"

namespace {

using test::ParameterValue;
using test::refused;
using test::text;
using test::reference::Expectation;
using test::reference::expectationOf;
using namespace std::string_literals;

const test::Outcome noObject = refused(KOSTYLE_ERROR_WRONG_TYPE, "/");
const test::Outcome noJson{KOSTYLE_ERROR_JSON_SYNTAX, "", KOSTYLE_PARSE_OK, 0};

test::Outcome verdict(std::string_view bytes) {
  const Expectation expectation = expectationOf(bytes);
  return refused(expectation.error, expectation.jsonPath);
}

const std::string sample = test::documentWith("");

TEST(Reference, ReadsAWholeDocument) {
  test::StoredValue style;
  style.id = text("I");
  style.name = text("N\xC3\xA4\xF0\x9F\x98\x80");
  style.vendor = text("V");
  style.languages = {0, 4};
  style.lists[test::singerGroups] = {text("g")};
  style.lists[test::singerIDs] = {text("1234567890123456")};
  style.lists[test::genres] = {text("a"), text("b")};
  style.lists[test::subGenres] = {text("s")};
  style.lists[test::colors] = {text("c")};
  style.chains[KOSTYLE_EFFECT_AUDIO] = {
      {text("E"),
       {ParameterValue::ofInt(text("Tarn630"), 1), ParameterValue::ofFloat(text("f"), 2.5f),
        ParameterValue::ofString(text("s"), text("x"))}},
      {text("A"), {}}};
  style.chains[KOSTYLE_EFFECT_MIDI] = {{text("E"), {}}};
  const Expectation expectation = expectationOf(
      R"({"id":"I","name":"N\u00e4\uD83D\uDE00","vendor":"V","x":null,"filter":{"languages":[4,5,-1,4,"1",0],
          "singerGroups":["g",""],"singerIDs":["1","1234567890123456"],"genres":["b","a","b"],
          "subGenres":["s",1],"colors":["c"]},"audioEffect":{"E":{"parameter":{"s":"x","Tarn":1,"Tarn630":2,
          "f":2.5,"b":true,"l":4294967296,"":1}},"A":{"parameter":[]},"A":{"parameter":{"p":1}},"B":{}},
          "midiEffect":{"":{"parameter":{}},"E":5,"E":{"script":"s","parameter":{}}}})");
  EXPECT_EQ(expectation.error, KOSTYLE_OK);
  EXPECT_EQ(expectation.style, style);
}

TEST(Reference, TellsWhyADocumentIsRefused) {
  EXPECT_EQ(verdict(sample), test::taken());
  EXPECT_EQ(verdict("[]"), noObject);
  EXPECT_EQ(verdict("{}"), refused(KOSTYLE_ERROR_MEMBER_MISSING, "/id"));
  EXPECT_EQ(verdict(R"({"id":1})"), refused(KOSTYLE_ERROR_WRONG_TYPE, "/id"));
  EXPECT_EQ(verdict(R"({"id":""})"), refused(KOSTYLE_ERROR_EMPTY_STRING, "/id"));
  EXPECT_EQ(verdict(R"({"id":"I"})"), refused(KOSTYLE_ERROR_MEMBER_MISSING, "/name"));
  EXPECT_EQ(verdict(R"({"id":"I","name":5})"), refused(KOSTYLE_ERROR_WRONG_TYPE, "/name"));
  EXPECT_EQ(verdict(R"({"id":"I","name":""})"), refused(KOSTYLE_ERROR_EMPTY_STRING, "/name"));
  EXPECT_EQ(verdict(R"({"id":"I","name":"N"})"), refused(KOSTYLE_ERROR_NO_EFFECT, "/"));
}

TEST(Reference, RefusesWhatIsNoJson) {
  for (const char* wrong : {"",
                            " ",
                            "{",
                            "{}{}",
                            "{,}",
                            "{\"a\":1,}",
                            "[1,]",
                            "[1 2]",
                            "01",
                            "1.",
                            ".5",
                            "+1",
                            "-",
                            "1e",
                            "nul",
                            "'a'",
                            "\"a",
                            "\"\\x\"",
                            "\"\\u12g4\"",
                            "\"\\uD800\"",
                            "\"\\uD800\\u0041\"",
                            "\"\n\"",
                            "1e309",
                            "0e309",
                            "0.1e310",
                            "\"\xC0\x80\"",
                            "\"\xED\xA0\x80\"",
                            "\"\xF4\x90\x80\x80\"",
                            "\"\xE2\x82\""})
    EXPECT_EQ(verdict(wrong), noJson) << wrong;
  for (const char* right : {" 1 ", "-0", "1e308", "0.1e309", "[]", "\"\\uDC00\"", "\"\x7F\"", "1E+5",
                            "null", "\"\\\"\\\\\\/\\b\\f\\n\\r\\t\"", "1e-99999999999"})
    EXPECT_EQ(verdict(right), noObject) << right;
}

TEST(Reference, LimitsNesting) {
  EXPECT_EQ(verdict(std::string(512, '[') + std::string(512, ']')), noObject);
  EXPECT_EQ(verdict(std::string(513, '[') + std::string(513, ']')), noJson);
}

TEST(Reference, KnowsTheEncodings) {
  for (const test::Encoding encoding : test::allEncodings()) {
    for (const bool mark : {false, true}) {
      const std::string bytes = encoded(sample, encoding, mark);
      EXPECT_EQ(expectationOf(bytes).style, expectationOf(sample).style) << nameOf(encoding);
      EXPECT_EQ(verdict(bytes + encoded(U"\0}"s, encoding)), test::taken()) << nameOf(encoding);
      EXPECT_EQ(verdict(bytes + encoded(U"}"s, encoding)), noJson) << nameOf(encoding);
    }
  }
  EXPECT_EQ(verdict("\xEF\xBB\xBF"), noJson);
  EXPECT_EQ(verdict("\xEF\xBB\xBF\x31"), noObject);
  EXPECT_EQ(verdict(encoded(U"\"\xD800\"", test::Encoding::utf32le)), noObject);
  EXPECT_EQ(verdict(encoded(U"\"\xD800\"", test::Encoding::utf16le)), noJson);
}

TEST(Reference, ComputesNumbers) {
  const auto parameterOf = [](const std::string& number) {
    return expectationOf(test::documentWithParameters("\"p\":" + number))
        .style.chains[KOSTYLE_EFFECT_AUDIO]
        .at(0)
        .parameters;
  };
  const auto name = text("p");
  using testing::ElementsAre;
  EXPECT_THAT(parameterOf("-2147483648"), ElementsAre(ParameterValue::ofInt(name, INT32_MIN)));
  EXPECT_THAT(parameterOf("2147483648"), testing::IsEmpty());
  EXPECT_THAT(parameterOf("18446744073709551615"), testing::IsEmpty());
  EXPECT_THAT(parameterOf("18446744073709551616"),
              ElementsAre(ParameterValue::ofFloat(name, 18446744073709551616.f)));
  EXPECT_THAT(parameterOf("0.1"), ElementsAre(ParameterValue::ofFloat(name, 0.1f)));
  EXPECT_THAT(parameterOf("-0.0"), ElementsAre(ParameterValue::ofFloat(name, -0.0f)));
  EXPECT_THAT(parameterOf("-25e-1"), ElementsAre(ParameterValue::ofFloat(name, -2.5f)));
  EXPECT_TRUE(parameterOf("123456789012345e7").at(0).exact);
  EXPECT_FALSE(parameterOf("1234567890123456e7").at(0).exact);
  EXPECT_FALSE(parameterOf("1e23").at(0).exact);
}

TEST(Reference, ValuesThatDifferAreUnequal) {
  const auto one = ParameterValue::ofFloat(text("p"), 1.0f);
  const auto neighbour = ParameterValue::ofFloat(text("p"), 1.00000012f);
  auto rough = one;
  rough.exact = false;
  EXPECT_FALSE(one == neighbour);
  EXPECT_TRUE(rough == neighbour);
  EXPECT_FALSE(rough == ParameterValue::ofFloat(text("p"), 1.0000003f));
  EXPECT_FALSE(one == ParameterValue::ofInt(text("p"), 1));
  EXPECT_FALSE(ParameterValue::ofFloat(text("p"), 0.0f) == ParameterValue::ofFloat(text("p"), -0.0f));
}

}  // namespace
