// The model of the format by itself: it must be able to tell right from wrong.
#include "format/model_style.h"

#include <gmock/gmock.h>

namespace {

using test::ParameterSnapshot;
using test::text;
using test::model::Expectation;
using test::model::expectationOf;
using namespace std::string_literals;

std::string verdict(std::string_view bytes) {
  const Expectation expectation = expectationOf(bytes);
  return std::to_string(expectation.error) + expectation.jsonPath;
}

const std::string sample = R"({"id":"I","name":"N","audioEffect":{"E":{"parameter":{}}}})";

TEST(Model, ReadsAWholeDocument) {
  test::StyleSnapshot style;
  style.id = text("I");
  style.name = text("N\xC3\xA4\xF0\x9F\x98\x80");
  style.vendor = text("V");
  style.languages = {0, 4};
  style.singerGroups = {text("g")};
  style.singerIDs = {text("1234567890123456")};
  style.genres = {text("a"), text("b")};
  style.subGenres = {text("s")};
  style.colors = {text("c")};
  style.audio = {
      {text("E"),
       {ParameterSnapshot::ofInt(text("Tarn630"), 1), ParameterSnapshot::ofFloat(text("f"), 2.5f),
        ParameterSnapshot::ofString(text("s"), text("x"))}},
      {text("A"), {}}};
  style.midi = {{text("E"), {}}};
  const Expectation expectation = expectationOf(
      R"({"id":"I","name":"N\u00e4\uD83D\uDE00","vendor":"V","x":null,"filter":{"languages":[4,5,-1,4,"1",0],
          "singerGroups":["g",""],"singerIDs":["1","1234567890123456"],"genres":["b","a","b"],
          "subGenres":["s",1],"colors":["c"]},"audioEffect":{"E":{"parameter":{"s":"x","Tarn":1,"Tarn630":2,
          "f":2.5,"b":true,"l":4294967296,"":1}},"A":{"parameter":[]},"A":{"parameter":{"p":1}},"B":{}},
          "midiEffect":{"":{"parameter":{}},"E":5,"E":{"script":"s","parameter":{}}}})");
  EXPECT_EQ(expectation.error, 0u);
  EXPECT_EQ(expectation.style, style);
}

TEST(Model, TellsWhyADocumentIsRefused) {
  EXPECT_EQ(verdict(sample), "0");
  EXPECT_EQ(verdict("[]"), "20/");
  EXPECT_EQ(verdict("{}"), "19/id");
  EXPECT_EQ(verdict(R"({"id":1})"), "20/id");
  EXPECT_EQ(verdict(R"({"id":""})"), "21/id");
  EXPECT_EQ(verdict(R"({"id":"I"})"), "19/name");
  EXPECT_EQ(verdict(R"({"id":"I","name":5})"), "20/name");
  EXPECT_EQ(verdict(R"({"id":"I","name":""})"), "21/name");
  EXPECT_EQ(verdict(R"({"id":"I","name":"N"})"), "23/");
}

TEST(Model, RefusesWhatIsNoJson) {
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
    EXPECT_EQ(verdict(wrong), "17") << wrong;
  for (const char* right : {" 1 ", "-0", "1e308", "0.1e309", "[]", "\"\\uDC00\"", "\"\x7F\"", "1E+5",
                            "null", "\"\\\"\\\\\\/\\b\\f\\n\\r\\t\"", "1e-99999999999"})
    EXPECT_EQ(verdict(right), "20/") << right;
}

TEST(Model, LimitsNesting) {
  EXPECT_EQ(verdict(std::string(512, '[') + std::string(512, ']')), "20/");
  EXPECT_EQ(verdict(std::string(513, '[') + std::string(513, ']')), "17");
}

TEST(Model, KnowsTheEncodings) {
  for (const test::Encoding encoding : test::allEncodings()) {
    for (const bool mark : {false, true}) {
      const std::string bytes = encoded(sample, encoding, mark);
      EXPECT_EQ(expectationOf(bytes).style, expectationOf(sample).style) << nameOf(encoding);
      EXPECT_EQ(verdict(bytes + encoded(U"\0}"s, encoding)), "0") << nameOf(encoding);
      EXPECT_EQ(verdict(bytes + encoded(U"}"s, encoding)), "17") << nameOf(encoding);
    }
  }
  EXPECT_EQ(verdict("\xEF\xBB\xBF"), "17");
  EXPECT_EQ(verdict("\xEF\xBB\xBF\x31"), "20/");
  EXPECT_EQ(verdict(encoded(U"\"\xD800\"", test::Encoding::utf32le)), "20/");
  EXPECT_EQ(verdict(encoded(U"\"\xD800\"", test::Encoding::utf16le)), "17");
}

TEST(Model, ComputesNumbers) {
  const auto parameterOf = [](const std::string& number) {
    return expectationOf(R"({"id":"I","name":"N","midiEffect":{"E":{"parameter":{"p":)" + number +
                         "}}}}")
        .style.midi.at(0)
        .parameters;
  };
  const auto p = text("p");
  using testing::ElementsAre;
  EXPECT_THAT(parameterOf("-2147483648"), ElementsAre(ParameterSnapshot::ofInt(p, INT32_MIN)));
  EXPECT_THAT(parameterOf("2147483648"), testing::IsEmpty());
  EXPECT_THAT(parameterOf("18446744073709551615"), testing::IsEmpty());
  EXPECT_THAT(parameterOf("18446744073709551616"),
              ElementsAre(ParameterSnapshot::ofFloat(p, 18446744073709551616.f)));
  EXPECT_THAT(parameterOf("0.1"), ElementsAre(ParameterSnapshot::ofFloat(p, 0.1f)));
  EXPECT_THAT(parameterOf("-0.0"), ElementsAre(ParameterSnapshot::ofFloat(p, -0.0f)));
  EXPECT_THAT(parameterOf("-25e-1"), ElementsAre(ParameterSnapshot::ofFloat(p, -2.5f)));
  EXPECT_TRUE(parameterOf("123456789012345e7").at(0).exact);
  EXPECT_FALSE(parameterOf("1234567890123456e7").at(0).exact);
  EXPECT_FALSE(parameterOf("1e23").at(0).exact);
}

TEST(Model, SnapshotsThatDifferAreUnequal) {
  const auto one = ParameterSnapshot::ofFloat(text("p"), 1.0f);
  const auto neighbour = ParameterSnapshot::ofFloat(text("p"), 1.00000012f);
  auto rough = one;
  rough.exact = false;
  EXPECT_FALSE(one == neighbour);
  EXPECT_TRUE(rough == neighbour);
  EXPECT_FALSE(rough == ParameterSnapshot::ofFloat(text("p"), 1.0000003f));
  EXPECT_FALSE(one == ParameterSnapshot::ofInt(text("p"), 1));
  EXPECT_FALSE(ParameterSnapshot::ofFloat(text("p"), 0.0f) ==
               ParameterSnapshot::ofFloat(text("p"), -0.0f));
}

}  // namespace
