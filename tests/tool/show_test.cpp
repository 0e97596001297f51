#include "tool/tool.h"

#include <cstdlib>

namespace test {
namespace {

class Show : public testing::Test {
 protected:
  const TemporaryDirectory directory_;
  const fs::path system_ = directory_.folder("system");
  const fs::path user_ = directory_.folder("user");
};

constexpr const char* shownStyle = R"({"id":"S1","name":"Whole","vendor":"Ours",
  "filter":{"languages":[0,2],"singerGroups":["Choir","Duo"],"singerIDs":["0123456789abcdef"],
            "genres":["Pop"],"colors":["red"]},
  "audioEffect":{"EQ":{"parameter":{"gain":0.1,"band":-3,"mode":"say \"hi\"\n"}},"Dry":{"parameter":{}}},
  "midiEffect":{"Arp":{"parameter":{"rate":2.0}}}})";

TEST_F(Show, PrintsStyleAsTree) {
  writeFile(system_ / "one.kostyle", shownStyle);
  const Outcome outcome = runTool({"show", "S1", "--system", argument(system_)});
  expectSuccess(outcome);
  EXPECT_EQ(outcome.out,
            "Whole\n"
            "├─ id: S1\n"
            "├─ kind: system\n"
            "├─ path: " +
                printed(system_ / "one.kostyle") +
                "\n"
                "├─ vendor: Ours\n"
                "├─ languages: 0, 2\n"
                "├─ singer groups: Choir, Duo\n"
                "├─ singer ids: 0123456789abcdef\n"
                "├─ genres: Pop\n"
                "├─ sub-genres: none\n"
                "├─ colors: red\n"
                "├─ audio effects: 2\n"
                "│  ├─ EQ\n"
                "│  │  ├─ band: int -3\n"
                "│  │  ├─ gain: float 0.1\n"
                "│  │  └─ mode: text \"say \\\"hi\\\"\\u000a\"\n"
                "│  └─ Dry\n"
                "└─ MIDI effects: 1\n"
                "   └─ Arp\n"
                "      └─ rate: float 2.0\n");
}

TEST_F(Show, PrintsAStyleAsItsFileHoldsIt) {
  writeFile(user_ / "one.kostyle", shownStyle);
  const Outcome outcome = runTool({"show", "S1", "--user", argument(user_), "--json"});
  expectSuccess(outcome);
  EXPECT_EQ(outcome.out, R"({
    "id": "S1",
    "name": "Whole",
    "vendor": "Ours",
    "filter": {
        "languages": [
            0,
            2
        ],
        "singerGroups": [
            "Choir",
            "Duo"
        ],
        "singerIDs": [
            "0123456789abcdef"
        ],
        "genres": [
            "Pop"
        ],
        "colors": [
            "red"
        ]
    },
    "audioEffect": {
        "EQ": {
            "parameter": {
                "band": -3,
                "gain": 0.1,
                "mode": "say \"hi\"\n"
            }
        },
        "Dry": {
            "parameter": {}
        }
    },
    "midiEffect": {
        "Arp": {
            "parameter": {
                "rate": 2.0
            }
        }
    }
}
)");
}

// What is printed is the same style again, whatever is in it.
TEST_F(Show, PrintsWhatCanBeReadAgain) {
  std::vector<fs::path> files;
  for (const char* folder : {"system", "user"})
    for (const auto& entry : fs::directory_iterator(exampleStyles() / folder))
      files.push_back(entry.path());
  writeFile(user_ / "whole.kostyle", shownStyle);
  files.push_back(user_ / "whole.kostyle");
  writeFile(
      user_ / "odd.kostyle",
      R"({"id":"\u202e\u0007","name":"\"\\/\u009b","audioEffect":{"Tarn":{"parameter":{"Tarn":1e300,
                "a":-1e300,"":1,"b":-0.0,"c":1e-45,"d":2147483647,"\u2028":"\ufeff"}}}})");
  files.push_back(user_ / "odd.kostyle");
  for (const fs::path& file : files) {
    const Outcome shown = runTool({"show", argument(file), "--json"});
    expectSuccess(shown);
    writeFile(directory_ / "again.kostyle", shown.out);
    EXPECT_EQ(styleIn(file), styleIn(directory_ / "again.kostyle")) << argument(file);
    EXPECT_EQ(runTool({"show", argument(directory_ / "again.kostyle"), "--json"}).out, shown.out);
  }
}

TEST_F(Show, TakesSeveralStyles) {
  writeFile(system_ / "a.kostyle", document("a", "A"));
  writeFile(system_ / "b.kostyle", document("b", "B"));
  const Outcome outcome =
      runTool({"show", "b", argument(system_ / "a.kostyle"), "--system", argument(system_)});
  expectSuccess(outcome);
  EXPECT_THAT(outcome.out, StartsWith("B\n"));
  EXPECT_THAT(outcome.out, HasSubstr("\n\nA\n"));
  expectFailure(runTool({"show", "b", "c", "--system", argument(system_)}), 1,
                "c: no such file, and no style has this identifier");
}

TEST_F(Show, ReadsTheStandardInput) {
  writeFile(directory_ / "in", document("piped", "Piped"));
  const Outcome outcome = run(KOSTYLE_TOOL, {"show", "-"}, directory_ / "in");
  expectSuccess(outcome);
  EXPECT_THAT(outcome.out, StartsWith("Piped\n├─ id: piped\n├─ kind: file\n├─ path: stdin\n"));
  writeFile(directory_ / "in", "{");
  expectFailure(run(KOSTYLE_TOOL, {"show", "-"}, directory_ / "in"), 1, "stdin:1:2: not valid JSON");
  writeFile(directory_ / "in", document("large", std::string(3000, 'n')));
  expectFailure(run(KOSTYLE_TOOL, {"show", "-", "--max-size", "2k"}, directory_ / "in"), 1,
                "stdin: the file is larger than 2048 bytes");
  expectFailure(run(KOSTYLE_TOOL, {"show", "-", "-"}, directory_ / "in"), 2, "named twice");
}

// Escapes are the same text in JSON.
TEST_F(Show, KeepsHostileTextFromTheTerminal) {
  writeFile(system_ / "a.kostyle", document("a", "\\u001b[2J\\u202e\\u2066\\u009b"));
  for (const Arguments& more : {Arguments{}, Arguments{"--json"}}) {
    const Outcome outcome = runTool(Arguments{"show", argument(system_ / "a.kostyle")} + more);
    EXPECT_THAT(outcome.out, HasSubstr("\\u001b[2J\\u202e\\u2066\\u009b"));
  }
}

TEST_F(Show, PrintsFloatsThatReadBackAsTheSame) {
  const std::vector<std::string> numbers{
      "0.1",          "3.0", "-2.5e-3", "16777217.0", "1e20", "1e-40", "0.30000001192092896",
      "3.4028235e38", "-0.0"};
  std::string members;
  for (std::size_t i = 0; i < numbers.size(); ++i)
    members += (i ? "," : "") + ("\"p" + std::to_string(i)) + "\":" + numbers[i];
  const auto path = directory_ / "floats.kostyle";
  writeFile(path, R"({"id":"f","name":"F","audioEffect":{"E":{"parameter":{)" + members + "}}}}");
  const auto style = styleIn(path);
  const std::string tree = runTool({"show", argument(path)}).out;
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    const std::string name = "p" + std::to_string(i);
    const float expected = static_cast<float>(std::strtod(numbers[i].c_str(), nullptr));
    EXPECT_EQ(static_cast<float>(parameter(style, name)["value"].GetDouble()), expected);
    const std::string label = "─ " + name + ": float ";
    const std::size_t at = tree.find(label);
    ASSERT_NE(at, tree.npos);
    EXPECT_EQ(std::strtof(tree.c_str() + at + label.size(), nullptr), expected);
  }
  EXPECT_THAT(tree, HasSubstr("p0: float 0.1\n"));
  EXPECT_THAT(tree, HasSubstr("p1: float 3.0\n"));
  EXPECT_THAT(tree, HasSubstr("p6: float 0.3\n"));
}

TEST_F(Show, PrintsInfiniteFloats) {
  writeFile(directory_ / "inf",
            R"({"id":"i","name":"I","audioEffect":{"E":{"parameter":{"p":-1e300}}}})");
  EXPECT_THAT(runTool({"show", argument(directory_ / "inf")}).out, HasSubstr("p: float -inf\n"));
  EXPECT_THAT(runTool({"show", argument(directory_ / "inf"), "--json"}).out,
              HasSubstr("\"p\": -1e39\n"));
  EXPECT_STREQ(parameter(styleIn(directory_ / "inf"), "p")["value"].GetString(), "-inf");
}

TEST_F(Show, ReadsAFileByItself) {
  writeFile(system_ / "one.kostyle", document("same", "One"));
  writeFile(system_ / "two.kostyle", document("same", "Two"));
  for (const auto& [file, name] : {std::pair{"one.kostyle", "One"}, std::pair{"two.kostyle", "Two"}}) {
    const Outcome outcome = runTool({"show", argument(system_ / file), "--system", argument(system_)});
    expectSuccess(outcome);
    EXPECT_THAT(outcome.out, StartsWith(std::string(name) + "\n├─ id: same\n├─ kind: file\n├─ path: " +
                                        argument(system_ / file) + "\n"));
  }
  EXPECT_EQ(entryNames(system_), (std::vector<std::string>{"one.kostyle", "two.kostyle"}));
}

TEST_F(Show, ReadsAFileOfAnyName) {
  const auto path = directory_ / fs::u8path("夜.json");
  writeFile(path, document("n", "Night"));
  EXPECT_THAT(runTool({"show", argument(path)}).out,
              StartsWith("Night\n├─ id: n\n├─ kind: file\n├─ path: " + argument(path) + "\n"));
}

TEST_F(Show, FindsIdentifiersInFurtherDirectories) {
  writeFile(directory_.folder("s1") / "a.kostyle", document("Ж 1", "A"));
  writeFile(directory_.folder("u1") / "b.kostyle", document("u/1", "B"));
  const Arguments directories{
      "--system", argument(system_), "--system-extra", argument(directory_ / "s1"),
      "--user",   argument(user_),   "--user-extra",   argument(directory_ / "u1")};
  EXPECT_THAT(runTool(Arguments{"show", "Ж 1"} + directories).out, HasSubstr("kind: system"));
  EXPECT_THAT(runTool(Arguments{"show", "u/1"} + directories).out, HasSubstr("kind: user"));
}

TEST_F(Show, SaysWhyAFileIsRefused) {
  const auto path = directory_ / "bad.kostyle";
  writeFile(path, R"({"id":"x","name":""})");
  const std::string why = argument(path) + ": required string is empty at /name";
  expectFailure(runTool({"show", argument(path)}), 1, why);
  expectFailure(runTool({"show", argument(path), "--json"}), 1, why);
  writeFile(path, "");
  expectFailure(runTool({"show", argument(path)}), 1,
                argument(path) + ":1:1: not valid JSON: the file holds no value");
}

TEST_F(Show, RefusesUnknownStyles) {
  writeFile(system_ / "a.kostyle", document("a", "A"));
  expectFailure(runTool({"show", "A", "--system", argument(system_)}), 1,
                "A: no such file, and no style has this identifier");
  expectFailure(runTool({"show", "", "--system", argument(system_)}), 2,
                "the path or identifier of a style is empty");
  expectFailure(runTool({"show", argument(system_), "--user", argument(user_)}), 1,
                "no style has this identifier");
}

TEST_F(Show, SaysWhatStandsBehindAnUnknownIdentifier) {
  writeFile(system_ / "a.kostyle", document("night-drive", "A"));
  writeFile(system_ / "empty.kostyle", R"({"id":"lost","name":"L"})");
  writeFile(system_ / "half.kostyle", R"({"id":"torn","na)");
  const auto why = [&](const char* id) {
    return runTool({"show", id, "--system", argument(system_)}).err;
  };
  EXPECT_THAT(why("nigth-drive"), HasSubstr("did you mean \"night-drive\"?\n"));
  EXPECT_THAT(why("lost"), HasSubstr("; a file that holds it is refused: " +
                                     printed(system_ / "empty.kostyle") + ": the style has no effect"));
  EXPECT_THAT(why("torn"), HasSubstr("; a file that holds it is refused: " +
                                     printed(system_ / "half.kostyle") + ":1:17: not valid JSON"));
}

TEST_F(Show, RefusesFilesBeyondTheLimit) {
  writeFile(system_ / "a.kostyle",
            document("a", std::string(90, 'n'), R"("p":")" + std::string(2000, 'x') + '"', ""));
  const std::string why =
      printed(system_ / "a.kostyle") + ": the file is larger than 2048 bytes; --max-size allows more";
  expectFailure(runTool({"show", argument(system_ / "a.kostyle"), "--max-size", "2k"}), 1,
                "larger than 2048 bytes");
  expectFailure(runTool({"show", "a", "--system", argument(system_), "--max-size", "2k"}), 1, why);
  expectSuccess(runTool({"show", "a", "--system", argument(system_), "--max-size", "4k"}));
}

TEST_F(Show, RefusesWrongUse) {
  expectFailure(runTool({"show"}), 2, "STYLE is required");
  expectFailure(runTool({"show", "a"}), 2, "a: no such file");
  expectFailure(runTool({"show", argument(system_)}), 1, "a directory, not a file");
  expectFailure(runTool({"show", "a", "--system", argument(directory_ / "no")}), 2,
                "no such directory");
  expectFailure(runTool({"show", "a", "--user", argument(directory_ / "no")}), 2, "no such directory");
  EXPECT_FALSE(fs::exists(directory_ / "no"));
}

#if !defined(_WIN32)
TEST_F(Show, DoesNotWaitForAPipe) {
  ASSERT_EQ(mkfifo((directory_ / "pipe.kostyle").c_str(), 0600), 0);
  expectFailure(runTool({"show", argument(directory_ / "pipe.kostyle")}), 1, "not a regular file");
}

TEST_F(Show, TakesPathsWithStrayBytes) {
  writeFile(directory_ / "\xFF.kostyle", document("s", "Stray"));
  const Outcome outcome = runTool({"show", argument(directory_ / "\xFF.kostyle")});
  expectSuccess(outcome);
  EXPECT_THAT(outcome.out, HasSubstr("/\xFF.kostyle\n"));
}
#endif

}  // namespace
}  // namespace test
