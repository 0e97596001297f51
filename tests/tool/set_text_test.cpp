// What `set` does to the text of a file: the change that is asked for, and not one byte more.
#include "support/encodings.h"
#include "tool/tool.h"

namespace test {
namespace {

class SetText : public testing::Test {
 protected:
  // The text that a change makes of another.
  std::string changed(const std::string& before, const Arguments& arguments) const {
    writeFile(file_, before);
    expectSuccess(change(arguments));
    EXPECT_THAT(entryNames(user_), ElementsAre("mine.kostyle"));
    return readFile(file_);
  }
  Outcome change(const Arguments& arguments) const {
    return runTool(Arguments{"set", "S", "--user", argument(user_)} + arguments);
  }

  const TemporaryDirectory directory_;
  const fs::path user_ = directory_.folder("user");
  const fs::path file_ = user_ / "mine.kostyle";
};

std::string replaced(std::string text, const std::string& from, const std::string& to) {
  const std::size_t at = text.find(from);
  if (at == text.npos) throw std::runtime_error("not in the text: " + from);
  return text.replace(at, from.size(), to);
}

constexpr const char* authored = R"({
  "id": "S",
  "name": "Whole",
  "vendor": "Ours",
  "//": "an author's remark",
  "filter": {
    "languages": [0, 2],
    "genres": ["Pop", "Folk", "Pop"],
    "mood": [ 1,2 , 3 ]
  },
  "audioEffect": {
    "EQ": {
      "parameter": {
        "gain": 0.40,
        "band": -3,
        "mode": "warm"
      },
      "comment": "keep"
    },
    "Reverb": { "parameter": { "mix": 5e-1 } }
  }
}
)";

TEST_F(SetText, ChangesOneNumber) {
  EXPECT_EQ(changed(authored, {"--param", "EQ.gain=0.7"}), replaced(authored, "0.40", "0.7"));
}

TEST_F(SetText, LeavesANumberThatIsTheSame) {
  EXPECT_EQ(
      changed(authored, {"--param", "EQ.gain=0.4", "--param", "Reverb.mix=0.5", "--name", "Whole"}),
      authored);
}

TEST_F(SetText, TellsTheZerosApart) {
  const std::string before = replaced(authored, "0.40", "0.0");
  EXPECT_EQ(changed(before, {"--param", "EQ.gain=-0.0"}), replaced(before, "0.0,", "-0.0,"));
}

TEST_F(SetText, KeepsTheTypeOfAParameter) {
  EXPECT_EQ(changed(authored, {"--param", "EQ.gain=1"}), replaced(authored, "0.40", "1.0"));
  EXPECT_EQ(changed(authored, {"--param", "EQ.mode=7"}), replaced(authored, "\"warm\"", "\"7\""));
  EXPECT_EQ(changed(authored, {"--param", "EQ.band=7"}), replaced(authored, "-3", "7"));
}

TEST_F(SetText, ChangesTheTypeThatIsNamed) {
  EXPECT_EQ(changed(authored, {"--param", "EQ.gain:int=1"}), replaced(authored, "0.40", "1"));
  EXPECT_EQ(changed(authored, {"--param", "EQ.band:float=1"}), replaced(authored, "-3", "1.0"));
  EXPECT_EQ(changed(authored, {"--param", "EQ.band:text=1"}), replaced(authored, "-3", "\"1\""));
}

TEST_F(SetText, WritesTheShortestFloat) {
  const auto gain = [&](const std::string& given, const std::string& written) {
    EXPECT_EQ(changed(authored, {"--param", "EQ.gain=" + given}), replaced(authored, "0.40", written));
  };
  gain("0.1", "0.1");
  gain("0.100000001", "0.1");
  gain("16777216", "16777216.0");
  gain("1e20", "1e+20");
  gain("-0.000001", "-1e-06");
  gain("3.4028235e38", "3.4028235e+38");
  gain("1e-45", "1e-45");
  gain("-0", "-0.0");
}

TEST_F(SetText, ChangesTheName) {
  EXPECT_EQ(changed(authored, {"--name", "a\"b\\c\x01\n\xC3\xA9"}),
            replaced(authored, "\"Whole\"", "\"a\\\"b\\\\c\\u0001\\n\xC3\xA9\""));
}

TEST_F(SetText, AddsValuesAsTheirNeighboursAre) {
  EXPECT_EQ(changed(authored, {"--add-genre", "Rock", "--add-language", "4"}),
            replaced(replaced(authored, "\"Pop\"]", "\"Pop\", \"Rock\"]"), "[0, 2]", "[0, 2, 4]"));
  EXPECT_EQ(changed(authored, {"--add-color", "red"}),
            replaced(authored, "2 , 3 ]\n", "2 , 3 ],\n    \"colors\": [ \"red\" ]\n"));
}

TEST_F(SetText, TakesValuesOutWhereverTheyStand) {
  EXPECT_EQ(changed(authored, {"--delete-genre", "Pop"}),
            replaced(authored, R"(["Pop", "Folk", "Pop"])", R"(["Folk"])"));
  EXPECT_EQ(changed(authored, {"--delete-genre", "Folk"}), replaced(authored, R"("Folk", )", ""));
  EXPECT_EQ(changed(authored, {"--delete-genre", "Folk", "--delete-genre", "Pop"}),
            replaced(authored, R"(["Pop", "Folk", "Pop"])", "[]"));
  EXPECT_EQ(
      changed(authored, {"--delete-language", "0", "--delete-language", "2", "--add-language", "1"}),
      replaced(authored, "[0, 2]", "[1]"));
}

TEST_F(SetText, AddsParametersAndEffectsAsTheirNeighboursAre) {
  EXPECT_EQ(changed(authored, {"--add", "--param", "EQ.width=2", "--param", "Reverb.size=hall"}),
            replaced(replaced(authored, "\"warm\"\n", "\"warm\",\n        \"width\": 2\n"), "5e-1 }",
                     "5e-1, \"size\": \"hall\" }"));
  EXPECT_EQ(changed(authored, {"--audio-effect", "Delay", "--param", "Delay.time=3"}),
            replaced(authored, "5e-1 } }\n",
                     "5e-1 } },\n    \"Delay\": { \"parameter\": { \"time\": 3 } }\n"));
}

TEST_F(SetText, AddsAChainBehindTheOther) {
  EXPECT_EQ(changed(authored, {"--add", "--param", "midi:Arp.rate=2.5"}),
            replaced(authored, "5e-1 } }\n  }\n",
                     "5e-1 } }\n  },\n  \"midiEffect\": {\n    \"Arp\": {\n      \"parameter\": {\n"
                     "        \"rate\": 2.5\n      }\n    }\n  }\n"));
}

TEST_F(SetText, AddsAFilterBehindTheName) {
  EXPECT_EQ(changed("{\n\t\"id\" : \"S\",\n\t\"name\" : \"N\",\n\t\"audioEffect\" : {\n\t\t\"E\" : {\n"
                    "\t\t\t\"parameter\" : []\n\t\t}\n\t}\n}",
                    {"--add-genre", "Pop", "--add-language", "1"}),
            "{\n\t\"id\" : \"S\",\n\t\"name\" : \"N\",\n\t\"filter\" : {\n\t\t\"languages\" : [1],\n"
            "\t\t\"genres\" : [\"Pop\"]\n\t},\n\t\"audioEffect\" : {\n\t\t\"E\" : {\n"
            "\t\t\t\"parameter\" : []\n\t\t}\n\t}\n}");
}

TEST_F(SetText, KeepsACompactFileCompact) {
  EXPECT_EQ(changed(document("S", "N"), {"--add-genre", "Pop", "--midi-effect", "Arp", "--param",
                                         "Arp.x=1", "--add", "--param", "E.q=0.5"}),
            R"({"id":"S","name":"N","filter":{"genres":["Pop"]},)"
            R"("audioEffect":{"E":{"parameter":{"p":1,"q":0.5}}},)"
            R"("midiEffect":{"Arp":{"parameter":{"x":1}}}})");
}

TEST_F(SetText, KeepsSpacesInOneLine) {
  EXPECT_EQ(changed(R"({"id": "S", "name": "N", "audioEffect": {"E": {"parameter": {"p": 1}}}})",
                    {"--add-genre", "Pop", "--add", "--param", "E.q=x"}),
            R"({"id": "S", "name": "N", "filter": {"genres": ["Pop"]}, )"
            R"("audioEffect": {"E": {"parameter": {"p": 1, "q": "x"}}}})");
}

TEST_F(SetText, KeepsLineEnds) {
  const auto withCrLf = [](std::string text) {
    for (std::size_t at = 0; (at = text.find('\n', at)) != text.npos; at += 2)
      text.replace(at, 1, "\r\n");
    return text;
  };
  const std::string before = withCrLf(authored);
  EXPECT_EQ(changed(before, {"--add", "--param", "EQ.width=2", "--delete-audio-effect", "Reverb"}),
            withCrLf(replaced(replaced(authored, "\"warm\"\n", "\"warm\",\n        \"width\": 2\n"),
                              ",\n    \"Reverb\": { \"parameter\": { \"mix\": 5e-1 } }", "")));
}

TEST_F(SetText, KeepsCommasInFront) {
  const std::string before =
      "{ \"id\": \"S\"\n, \"name\": \"N\"\n, \"audioEffect\": { \"E\": { \"parameter\":\n"
      "  { \"p\": 1\n  , \"q\": 2\n  }\n} }\n}";
  EXPECT_EQ(changed(before, {"--add", "--param", "E.r=3"}),
            replaced(before, "\"q\": 2\n", "\"q\": 2\n  , \"r\": 3\n"));
  EXPECT_EQ(changed(before, {"--delete-param", "E.q"}), replaced(before, "\n  , \"q\": 2", ""));
}

TEST_F(SetText, LeavesNoEmptyLine) {
  const std::string before =
      "{\n  \"id\": \"S\",\n  \"name\": \"N\",\n  \"audioEffect\": {\n    \"E\": {\"parameter\": "
      "{}},\n\n"
      "    \"F\": {\"parameter\": {}},\n\n    \"G\": {\"parameter\": {}}\n  }\n}";
  EXPECT_EQ(changed(before, {"--delete-audio-effect", "F"}),
            replaced(before, "    \"F\": {\"parameter\": {}},\n\n", ""));
  EXPECT_EQ(changed(before, {"--delete-audio-effect", "E"}),
            replaced(before, "    \"E\": {\"parameter\": {}},\n\n", ""));
  EXPECT_EQ(changed(before, {"--delete-audio-effect", "G"}),
            replaced(before, ",\n\n    \"G\": {\"parameter\": {}}", ""));
  EXPECT_EQ(changed(before, {"--audio-effect", "H"}),
            replaced(before, "\"G\": {\"parameter\": {}}",
                     "\"G\": {\"parameter\": {}},\n    \"H\": {\"parameter\": {}}"));
}

TEST_F(SetText, KeepsWrappedLines) {
  const std::string before = replaced(document("S", "N"), "\"audio",
                                      "\"filter\":{\"genres\":[\"a\", \"b\",\n \"c\", \"d\"]},\"audio");
  EXPECT_EQ(changed(before, {"--delete-genre", "c"}), replaced(before, "\"c\", ", ""));
  EXPECT_EQ(changed(before, {"--delete-genre", "b"}), replaced(before, ", \"b\"", ""));
  EXPECT_EQ(changed(before, {"--add-genre", "e"}), replaced(before, "\"d\"", "\"d\", \"e\""));
}

TEST_F(SetText, KeepsEveryEncoding) {
  const std::string before = replaced(authored, "Whole", "caf\xC3\xA9 \xF0\x9D\x84\x9E");
  const std::string after = replaced(before, "0.40", "0.7");
  for (const Encoding encoding : allEncodings())
    for (const bool mark : {false, true}) {
      SCOPED_TRACE(nameOf(encoding));
      EXPECT_EQ(changed(encoded(before, encoding, mark),
                        {"--param", "EQ.gain=0.7", "--add-genre", "\xF0\x9D\x84\x9E\xC3\xA9"}),
                encoded(replaced(after, "\"Pop\"]", "\"Pop\", \"\xF0\x9D\x84\x9E\xC3\xA9\"]"), encoding,
                        mark));
    }
}

TEST_F(SetText, WritesEscapesWhereTheFileDoes) {
  const std::string before =
      R"({"id":"S","name":"caf\u00e9","audioEffect":{"E":{"parameter":{"p":"a"}}}})";
  EXPECT_EQ(changed(before, {"--param", "E.p=\xC3\xA9\xF0\x9D\x84\x9E"}),
            replaced(before, "\"a\"", R"("\u00e9\ud834\udd1e")"));
}

TEST_F(SetText, FindsWhatIsWrittenWithEscapes) {
  const std::string before =
      R"({"\u0069d":"S","n\u0061me":"N","audioEffect":{"\ud834\udd1e":{"par\u0061meter":{"\u0070":1}}}})";
  EXPECT_EQ(changed(before, {"--name", "M", "--param", "\xF0\x9D\x84\x9E.p=2"}),
            replaced(replaced(before, "\"N\"", "\"M\""), ":1}", ":2}"));
}

TEST_F(SetText, ChangesTheMemberThatCounts) {
  const std::string before =
      R"({"id":"S","name":"N","name":"not I","filter":{"genres":["a"],"genres":["b"]},"filter":{},)"
      R"("audioEffect":{"E":{},"E":5,"E":{"parameter":{"p":true,"p":1,"p":2,"Tarn":1,"Tarn630":2},)"
      R"("parameter":{"p":3}},"E":{"parameter":{"p":4}}},"audioEffect":{"E":{"parameter":{"p":5}}}})";
  EXPECT_EQ(changed(before, {"--name", "M"}), replaced(before, "\"N\"", "\"M\""));
  EXPECT_EQ(changed(before, {"--add-genre", "c"}), replaced(before, "[\"a\"]", "[\"a\",\"c\"]"));
  EXPECT_EQ(changed(before, {"--param", "E.p=7"}), replaced(before, "\"p\":1", "\"p\":7"));
  EXPECT_EQ(changed(before, {"--param", "E.Tarn630=7"}), replaced(before, "\"Tarn\":1", "\"Tarn\":7"));
  EXPECT_EQ(changed(before, {"--delete-param", "E.p"}), replaced(before, R"(,"p":1,"p":2)", ""));
  EXPECT_EQ(changed(before, {"--delete-audio-effect", "E", "--audio-effect", "F"}),
            replaced(replaced(before,
                              R"(,"E":{"parameter":{"p":true,"p":1,"p":2,"Tarn":1,"Tarn630":2},)"
                              R"("parameter":{"p":3}},"E":{"parameter":{"p":4}})",
                              ""),
                     "\"E\":5", R"("E":5,"F":{"parameter":{}})"));
}

TEST_F(SetText, GivesWhatIsLeftOutAValue) {
  const std::string before =
      R"({"id":"S","name":"N","audioEffect":{"E":{"parameter":{"p":true}},"F":{}}})";
  EXPECT_EQ(changed(before, {"--add", "--param", "E.p=1", "--param", "audio:F.q=2"}),
            replaced(replaced(before, "true", "1"), "\"F\":{}", R"("F":{"parameter":{"q":2}})"));
}

TEST_F(SetText, KeepsWhatNoStyleCanHold) {
  const std::string good = R"("audioEffect":{"E":{"parameter":{"p":1}}}})";
  for (const std::string& before :
       {R"({"id":"S","name":"a\udc41","filter":{"genres":["x"],"colors":["a\udc41"]},)" + good,
        R"({"id":"S","name":")" + std::string(101, 'n') + R"(","filter":{"genres":["x"]},)" + good,
        R"({"id":"S","name":"N","filter":{"genres":["Pop\u0000a","Pop\u0000b","x"]},)" + good,
        std::string(
            R"({"id":"S","name":"N","filter":{"genres":["x"]},"audioEffect":{"B":{"parameter":{}},)"
            R"("E\udc41":{"parameter":{"p\udc41":1e39,"t":"\udc41"}}}})")})
    EXPECT_EQ(changed(before, {"--add-genre", "y"}), replaced(before, "\"x\"", "\"x\",\"y\""));
}

TEST_F(SetText, KeepsWhatStandsBehindTheDocument) {
  const std::string before = document("S", "N") + std::string("\n\0\"rest\"", 8);
  EXPECT_EQ(changed(before, {"--name", "M"}), replaced(before, "\"N\"", "\"M\""));
}

TEST_F(SetText, RefusesWhereSomethingElseStands) {
  const auto refused = [&](const std::string& text, const Arguments& arguments, const char* why) {
    writeFile(file_, text);
    expectFailure(change(arguments), 1, why);
    EXPECT_EQ(readFile(file_), text);
  };
  const std::string good = R"("audioEffect":{"E":{"parameter":{"p":1}}}})";
  refused("{\"id\":\"S\",\"name\":\"N\",\n\"filter\":7," + good, {"--add-genre", "Pop"},
          "mine.kostyle:2:10: /filter is not an object");
  refused(R"({"id":"S","name":"N","filter":{"genres":"Pop"},)" + good, {"--add-genre", "Rock"},
          ":1:41: /filter/genres is not a list");
  refused(R"({"id":"S","name":"N","midiEffect":[],)" + good, {"--midi-effect", "A"},
          "/midiEffect is not an object");
  refused(R"({"id":"S","name":"N","audioEffect":{"E":{"parameter":null}}})",
          {"--add", "--param", "E.p=1"}, "/audioEffect/E/parameter is not an object");
}

TEST_F(SetText, RefusesWhatTheLibraryWouldReadOtherwise) {
  writeFile(file_, document("S", "N"));
  expectFailure(
      change({"--add", "--param", "E.Tarn=1"}), 1,
      "the library would read something else from it than was asked for: audio:E.Tarn is not there");
  EXPECT_EQ(readFile(file_), document("S", "N"));
}

}  // namespace
}  // namespace test
