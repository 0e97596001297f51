// kostyle diff. The outputs for diff/before and diff/after stand whole in golden/.
#include "support/encodings.h"
#include "tool/samples.h"

#if !defined(_WIN32)
#include <sys/stat.h>
#endif

namespace test {
namespace {

class Diff : public testing::Test {
 protected:
  std::string put(const std::string& name, const std::string& bytes) const {
    writeFile(directory_ / name, bytes);
    return argument(directory_ / name);
  }
  Outcome diff(const std::string& before, const std::string& after) const {
    return runTool({"diff", put("a.kostyle", before), put("b.kostyle", after)});
  }
  std::string lines(const Outcome& outcome) const {
    const std::string header = "--- " + printed(directory_ / "a.kostyle") + "\n+++ " +
                               printed(directory_ / "b.kostyle") + "\n";
    EXPECT_THAT(outcome.out, StartsWith(header));
    EXPECT_EQ(outcome.exitCode, 1);
    return outcome.out.substr(std::min(header.size(), outcome.out.size()));
  }

  const TemporaryDirectory directory_;
};

std::string chain(const std::string& names) {
  std::string effects;
  for (const char name : names)
    effects += std::string(effects.empty() ? "" : ",") + '"' + name + R"(":{"parameter":{}})";
  return R"({"id":"S","name":"N","midiEffect":{)" + effects + "}}";
}

TEST(DiffSamples, PrintsWhatDiffers) {
  const Outcome outcome = runInSamples({"diff", "diff/before", "diff/after"});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_EQ(outcome.err, "");
  EXPECT_EQ(outcome.out, golden("diff.txt"));
}

TEST(DiffSamples, PrintsJson) {
  const Outcome outcome = runInSamples({"diff", "--json", "diff/before", "diff/after/"});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_EQ(outcome.err, "");
  EXPECT_EQ(outcome.out, golden("diff.json"));
  EXPECT_EQ(parseJson(outcome.out)["styles"].Size(), 3u);
}

TEST(DiffSamples, SaysNothingOfTheSameDirectory) {
  const Outcome outcome = runInSamples({"diff", "diff/before", "diff/before"});
  expectSuccess(outcome);
  EXPECT_EQ(outcome.out, "");
}

TEST_F(Diff, FindsNoDifferenceInTheForm) {
  const std::string compact =
      document("S", "N", R"("a":1,"b":0.5)", R"("filter":{"genres":["x","y"]})");
  const std::string other =
      "{\n \"filter\": {\"genres\": [\"y\", \"x\", \"x\"]}, \"name\": \"N\", \"more\": 1,"
      "\"audioEffect\": {\"E\": {\"parameter\": {\"b\": 5e-1, \"a\": 1}}}, \"id\": \"S\"}\r\n";
  for (const Encoding encoding : allEncodings()) {
    const Outcome outcome = diff(compact, encoded(other, encoding));
    expectSuccess(outcome);
    EXPECT_EQ(outcome.out, "");
  }
}

TEST_F(Diff, TellsTheTypesOfParameters) {
  EXPECT_EQ(lines(diff(documentWithParameters(R"("p":1,"q":-0.0)"),
                       documentWithParameters(R"("p":"1","q":0.0)"))),
            "- audio:E.p: int 1\n+ audio:E.p: text \"1\"\n"
            "- audio:E.q: float -0.0\n+ audio:E.q: float 0.0\n");
}

TEST_F(Diff, TellsTheFewestEffectsThatMoved) {
  EXPECT_EQ(lines(diff(chain("abcdef"), chain("bcdefa"))), "- midi:a: place 1\n+ midi:a: place 6\n");
  EXPECT_EQ(lines(diff(chain("abcdef"), chain("xfabcd"))),
            "- midi:e: place 5\n+ midi:x: place 1\n- midi:f: place 6\n+ midi:f: place 2\n");
  EXPECT_EQ(lines(diff(chain("ab"), chain("ba"))), "- midi:b: place 2\n+ midi:b: place 1\n");
}

TEST_F(Diff, TellsMembersApartThatLookAlike) {
  EXPECT_EQ(lines(diff(documentWithParameters(R"("p\u0000a":1,"p\u0000b":2)"),
                       documentWithParameters(R"("p\u0000a":1,"p\u0000b":3)"))),
            "- audio:E.p: int 2\n+ audio:E.p: int 3\n");
}

TEST_F(Diff, ComparesIdentifiers) {
  const fs::path user = directory_.folder("user");
  writeFile(user / "1.kostyle", document("one", "N"));
  writeFile(user / "2.kostyle", document("two", "N"));
  const Outcome outcome = runTool({"diff", "one", "two", "--user", argument(user)});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_THAT(outcome.out, testing::EndsWith("\n- id: \"one\"\n+ id: \"two\"\n"));
  expectSuccess(runTool({"diff", "one", argument(user / "1.kostyle"), "--user", argument(user)}));
}

TEST_F(Diff, KeepsTheTerminalAsItIs) {
  const std::string shown = lines(diff(documentWithParameters(R"("\u001b[2J":1)"),
                                       documentWithParameters(R"("\u202ep":"\u0007")")));
  EXPECT_EQ(shown,
            "- audio:E.\\u001b[2J: int 1\n"
            "+ audio:E.\\u202ep: text \"\\u0007\"\n");
}

TEST_F(Diff, TellsTroubleFromADifference) {
  const std::string good = put("good.kostyle", document("S", "N"));
  expectFailure(runTool({"diff", good, put("bad.kostyle", "{")}), 2, "bad.kostyle:1:2: not valid JSON");
  expectFailure(runTool({"diff", good, argument(directory_ / "none")}), 2, "no such file");
  expectFailure(runTool({"diff", good, argument(directory_.path())}), 2,
                argument(directory_.path()) + " is a directory, " + good + " is none");
  expectFailure(runTool({"diff", argument(directory_.path()), "none"}), 2,
                " is a directory, none is none");
  expectFailure(runTool({"diff", good, "S", "--user", argument(directory_.folder("user"))}), 2,
                "no style has this identifier");
  expectFailure(runTool({"diff", good}), 2, "B is required");
}

TEST_F(Diff, NamesTheFilesOfADirectoryThatAreRefused) {
  const fs::path before = directory_.folder("before");
  const fs::path after = directory_.folder("after");
  writeFile(before / "good.kostyle", document("S", "N"));
  writeFile(before / "bad.kostyle", "{");
  writeFile(after / "good.kostyle", document("S", "N"));
  const Outcome outcome = runTool({"diff", argument(before), argument(after)});
  EXPECT_EQ(outcome.exitCode, 2);
  EXPECT_EQ(outcome.out, "");
  EXPECT_THAT(outcome.err,
              StartsWith("kostyle: " + argument(before) + "/bad.kostyle:1:2: not valid JSON"));
}

#if !defined(_WIN32)
TEST_F(Diff, WaitsForNoPipe) {
  const fs::path pipe = directory_ / "pipe.kostyle";
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  const std::string good = put("good.kostyle", document("S", "N"));
  expectFailure(runTool({"diff", argument(pipe), good}), 2, "pipe.kostyle: not a regular file");
}

TEST_F(Diff, OutputThatCannotBeWrittenIsTrouble) {
  const fs::path err = directory_ / "err";
  EXPECT_EQ(runToolWithoutOutput(err, {"diff", put("a.kostyle", document("S", "N")),
                                       put("b.kostyle", document("S", "M"))}),
            2);
  EXPECT_EQ(readFile(err), "kostyle: the output cannot be written: No space left on device\n");
}
#endif

}  // namespace
}  // namespace test
