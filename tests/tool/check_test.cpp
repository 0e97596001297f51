// kostyle check. The outputs for check/styles and check/more stand whole in golden/.
#include "tool/samples.h"

#if !defined(_WIN32)
#include <sys/stat.h>
#endif

namespace test {
namespace {

using testing::Not;

Outcome runCheck(const Arguments& arguments, const fs::path& in = {}) {
  return run(fs::absolute(fs::u8path(KOSTYLE_TOOL)).u8string(), Arguments{"check"} + arguments, in);
}

Outcome checkSamples(const Arguments& arguments) {
  return runInSamples(Arguments{"check"} + arguments);
}

class CheckTest : public testing::Test {
 protected:
  fs::path put(const std::string& name, const std::string& content) const {
    writeFile(directory / name, content);
    return directory / name;
  }

  TemporaryDirectory directory;
};

TEST(Check, PrintsAsCompilersDo) {
  const Outcome outcome = checkSamples({"check/styles", "check/more"});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_EQ(outcome.err, "");
  EXPECT_EQ(outcome.out, golden("check.txt"));
}

TEST(Check, PrintsJson) {
  const Outcome outcome = checkSamples({"check/styles", "check/more", "--format", "json"});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_EQ(outcome.out, golden("check.json"));
  parseJson(outcome.out);
}

TEST(Check, PrintsSarif) {
  const Outcome outcome = checkSamples({"check/styles", "check/more", "--format", "sarif"});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_EQ(outcome.out, golden("check.sarif"));
  const auto log = parseJson(outcome.out);
  const auto& run = log["runs"][0];
  const auto& rules = run["tool"]["driver"]["rules"];
  for (const auto& result : run["results"].GetArray())
    EXPECT_STREQ(result["ruleId"].GetString(), rules[result["ruleIndex"].GetUint()]["id"].GetString());
}

TEST(Check, PrintsAnnotations) {
  const Outcome outcome = checkSamples({"check/styles", "check/more", "--format", "github"});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_EQ(outcome.out, golden("check.github"));
}

TEST(Check, TheNumberOfJobsDoesNotShow) {
  for (const char* const jobs : {"1", "2", "7"}) {
    const Outcome outcome = checkSamples({"--jobs", jobs, "check/styles", "check/more"});
    EXPECT_EQ(outcome.out, golden("check.txt")) << jobs;
  }
}

TEST(Check, SaysNothingOfACleanFile) {
  const Outcome outcome = checkSamples({"--strict", "check/styles/clean.kostyle"});
  expectSuccess(outcome);
  EXPECT_EQ(outcome.out, "");
}

TEST(Check, TheFileThatIsReadFirstHasTheIdentifier) {
  const Outcome outcome =
      checkSamples({"--severity", "error", "check/more", "check/styles/clean.kostyle"});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_THAT(outcome.out,
              StartsWith("check/styles/clean.kostyle:1:8: error: the identifier \"clean\""));
  EXPECT_THAT(outcome.out,
              HasSubstr("= check/more/same_identifier.kostyle:1:8: this file is read first"));
}

TEST_F(CheckTest, WarningsCountWhenStrict) {
  const std::string file = argument(put("a.kostyle", documentWith(R"("x":1)")));
  EXPECT_EQ(runCheck({file}).exitCode, 0);
  EXPECT_EQ(runCheck({file, "--strict"}).exitCode, 1);
  const Outcome strict = runCheck({file, "--strict", "--severity", "error"});
  EXPECT_EQ(strict.exitCode, 1);
  EXPECT_THAT(strict.out, HasSubstr("0 errors, 1 warning, 0 notes in 1 file\n"));
  const std::string noted = argument(put("b.kostyle", documentWith(R"("vendor":"v")")));
  EXPECT_EQ(runCheck({noted, "--strict"}).exitCode, 0);
}

TEST_F(CheckTest, NamesWhatWasMeantInAnEffectThatIsLeftOut) {
  const fs::path file = put(
      "a.kostyle",
      R"({"id":"S","name":"N","audioEffect":{"R":{"parameters":{"m":1}},"E":{"parameter":{"p":1}}}})");
  const std::string out = runCheck({argument(file)}).out;
  EXPECT_THAT(out,
              HasSubstr("the effect \"R\" has no member \"parameter\" [effect-without-parameter]"));
  EXPECT_THAT(out, HasSubstr("the member \"parameters\" is unknown; did you mean \"parameter\"?"));
}

TEST_F(CheckTest, KeepsSoManyFindingsOfAFileAndCountsTheOthers) {
  std::string members;
  for (int i = 0; i < 12000; ++i) members += "\"x" + std::to_string(i) + "\":1,";
  const std::string file = argument(put("a.kostyle", documentWith(members + R"("y":1)")));
  const std::string out = runCheck({file}).out;
  EXPECT_THAT(out, HasSubstr("\"x9999\" is unknown"));
  EXPECT_THAT(out, Not(HasSubstr("\"x10000\" is unknown")));
  EXPECT_THAT(
      out, HasSubstr("a.kostyle: 2001 more findings\n0 errors, 12001 warnings, 0 notes in 1 file\n"));
  const auto json = parseJson(runCheck({file, "--format", "json"}).out);
  EXPECT_EQ(json["files"][0]["more"].GetInt(), 2001);
  EXPECT_EQ(json["warnings"].GetInt(), 12001);
  const auto sarif = parseJson(runCheck({file, "--format", "sarif"}).out);
  EXPECT_EQ(sarif["runs"][0]["properties"]["more"].GetInt(), 2001);
  EXPECT_THAT(runCheck({file, "--format", "github"}).out, HasSubstr("::2001 more findings\n"));
  EXPECT_THAT(runCheck({file, "--severity", "error"}).out, "");
}

TEST_F(CheckTest, SarifTakesNoTextForLinksAndArguments) {
  const fs::path file = put("a.kostyle", documentWith(R"-("{0} [click](https://example.org)":1)-"));
  const auto log = parseJson(runCheck({argument(file), "--format", "sarif"}).out);
  EXPECT_THAT(log["runs"][0]["results"][0]["message"]["text"].GetString(),
              StartsWith(R"-(the member "{{0}} [click\](https://example.org)" is unknown)-"));
}

TEST_F(CheckTest, AFileIsItselfHoweverItIsSpelt) {
  const fs::path file = put("a.kostyle", document("S", "N"));
  const Outcome outcome =
      runCheck({argument(directory.path()), argument(directory.path() / "." / "a.kostyle"),
                argument(directory.path() / "x" / ".." / "a.kostyle")});
  expectSuccess(outcome);
  EXPECT_EQ(outcome.out, "");
}

TEST_F(CheckTest, TellsWhatIsSevereEnough) {
  const std::string file = argument(put("a.kostyle", documentWith(R"("x":1,"vendor":"v")")));
  EXPECT_THAT(runCheck({file}).out, HasSubstr("0 errors, 1 warning, 1 note in 1 file\n"));
  const Outcome warnings = runCheck({file, "--severity", "warning"});
  EXPECT_THAT(warnings.out, HasSubstr("[unknown-member]"));
  EXPECT_THAT(warnings.out, Not(HasSubstr("[vendor-lost]")));
  EXPECT_EQ(runCheck({file, "--severity", "error"}).out, "");
}

TEST_F(CheckTest, ReadsAStyleFromTheStandardInput) {
  const Outcome outcome = runCheck({"-"}, put("input", "{\"id\":\r\n1}"));
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_THAT(outcome.out, HasSubstr("stdin:2:1: error: \"id\" is 1 [member-type]"));
}

TEST_F(CheckTest, ReadsAListOfFiles) {
  const std::string good = argument(put("good.kostyle", document("good", "N")));
  const std::string bad = argument(put("bad one.kostyle", "{"));
  const fs::path list = put("list", good + "\r\n\n" + bad + "\n");
  const Outcome outcome = runCheck({"--files-from", argument(list)});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_THAT(outcome.out, HasSubstr("bad one.kostyle:1:2: error: "));
  EXPECT_EQ(runCheck({"--files-from", "-"}, list).out, outcome.out);
  expectSuccess(runCheck({"--files-from", argument(put("empty", ""))}));
}

TEST_F(CheckTest, SaysWhyAFileIsNotRead) {
  const Outcome missing = runCheck({argument(directory / "none.kostyle")});
  EXPECT_EQ(missing.exitCode, 1);
  EXPECT_THAT(missing.out, HasSubstr("none.kostyle: error: "));
  EXPECT_THAT(missing.out, HasSubstr("[unreadable-file]"));
  const std::string large = argument(put("large.kostyle", document("I", std::string(3000, ' '))));
  const Outcome tooLarge = runCheck({large, "--max-size", "2k"});
  EXPECT_EQ(tooLarge.exitCode, 1);
  EXPECT_THAT(
      tooLarge.out,
      HasSubstr("the file is larger than 2048 bytes; --max-size allows more [unreadable-file]"));
  EXPECT_EQ(runCheck({large, "--max-size", "1MB"}).exitCode, 0);
}

TEST_F(CheckTest, SaysWhenNoApplicationReadsAFile) {
  const Outcome outcome = runCheck({argument(put("style.json", document("I", "N")))});
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_THAT(outcome.out,
              HasSubstr("style.json: warning: the name of the file does not end in .kostyle"));
}

TEST_F(CheckTest, ReadsTheStyleFilesOfADirectoryAlone) {
  put("b.kostyle", "{");
  put("a.kostyle", "[");
  put("c.KOSTYLE", "{");
  put(".kostyle", "(");
  writeFile(directory.folder("deeper.kostyle") / "d.kostyle", "{");
  const auto files = parseJson(runCheck({argument(directory.path()), "--format", "json"}).out);
  std::vector<std::string> names;
  for (const auto& file : files["files"].GetArray())
    names.push_back(fs::u8path(file["file"].GetString()).filename().u8string());
  EXPECT_THAT(names, ElementsAre(".kostyle", "a.kostyle", "b.kostyle"));
}

TEST_F(CheckTest, RefusesWrongUse) {
  expectFailure(runCheck({}), 2, "a file, a directory or --files-from is required");
  expectFailure(runCheck({""}), 2, "the path of a file is empty");
  expectFailure(runCheck({"-", "-"}), 2, "the standard input is named twice");
  expectFailure(runCheck({"a", "--format", "xml"}), 2, "xml");
  expectFailure(runCheck({"a", "--severity", "fatal"}), 2, "fatal");
  expectFailure(runCheck({"a", "--jobs", "0"}), 2, "jobs");
  expectFailure(runCheck({"--files-from", argument(TemporaryDirectory().path().parent_path())}), 1,
                "a directory, not a list of paths");
  expectFailure(runCheck({"a", "--max-size", "much"}), 2, "max-size");
  expectFailure(runCheck({"--files-from", argument(directory / "none")}), 1,
                "the list cannot be opened");
}

TEST_F(CheckTest, EscapesAnnotations) {
  const OtherWorkingDirectory working(directory.path());
  put("100%,a.kostyle", R"({"id":"\n::error::%","name":"n","id":1})");
  const Outcome outcome = runCheck({"100%,a.kostyle", "--format", "github"});
  EXPECT_THAT(outcome.out,
              StartsWith("::error file=100%25%2Ca.kostyle,line=1,endLine=1,col=1,endColumn=2,"
                         "title=no-effect::no effect is left in either chain: "));
  for (std::size_t at = 0; (at = outcome.out.find('\n', at)) != std::string::npos; ++at)
    EXPECT_TRUE(at + 1 == outcome.out.size() || outcome.out.compare(at + 1, 2, "::") == 0);
}

TEST_F(CheckTest, NoColorsWhereNoTerminalIs) {
  const Outcome outcome = runCheck({argument(put("a.kostyle", "{"))});
  EXPECT_THAT(outcome.out, Not(HasSubstr("\x1b")));
}

TEST_F(CheckTest, ReadsAFileOnceThatIsNamedTwice) {
  const std::string file = argument(put("a.kostyle", document("A", "A")));
  const Outcome outcome = runCheck({file, argument(directory.path()), file});
  expectSuccess(outcome);
  EXPECT_EQ(outcome.out, "");
}

#if !defined(_WIN32)
TEST_F(CheckTest, PrintsNoControlCharactersOfNamesForGitHub) {
  const std::string file = argument(put("a\x1b[31m.kostyle", "{"));
  EXPECT_THAT(runCheck({"--format", "github", file}).out,
              testing::AllOf(Not(HasSubstr("\x1b")), HasSubstr("a\\u001b[31m.kostyle")));
}

TEST_F(CheckTest, SaysThatAPipeIsNoFile) {
  const fs::path pipe = directory / "pipe.kostyle";
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  for (const fs::path& path : {pipe, directory.path()}) {
    const Outcome outcome = runCheck({argument(path)});
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_THAT(outcome.out, HasSubstr("pipe.kostyle: error: not a regular file [unreadable-file]"));
  }
}

TEST_F(CheckTest, ColorsOnATerminal) {
  const std::string file = argument(put("a.kostyle", "{"));
  const std::string onTerminal = "TERM=xterm script -qec \"'$0' check '$1'\" /dev/null";
  EXPECT_THAT(runToolInScript("unset NO_COLOR; " + onTerminal, {file}).out,
              HasSubstr("\x1b[1;31merror\x1b[0m"));
  EXPECT_THAT(runToolInScript("export NO_COLOR=1; " + onTerminal, {file}).out, Not(HasSubstr("\x1b")));
}

TEST_F(CheckTest, ReportsOutputThatCannotBeWritten) {
  const std::string file = argument(put("a.kostyle", "{"));
  EXPECT_EQ(runToolWithoutOutput(directory / "err", {"check", file}), 1);
  EXPECT_THAT(readFile(directory / "err"), HasSubstr("the output cannot be written"));
}
#endif

}  // namespace
}  // namespace test
