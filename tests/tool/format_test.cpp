// kostyle format. The output for format/ stands whole in golden/.
#include "support/encodings.h"
#include "tool/samples.h"

#if !defined(_WIN32)
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace test {
namespace {

const std::string pretty =
    "{\n    \"id\": \"S\",\n    \"name\": \"N\",\n    \"audioEffect\": {\n        \"E\": {\n"
    "            \"parameter\": {\n                \"p\": 1\n            }\n        }\n    }\n}";
const std::string loose =
    "{ \"name\": \"N\", \"id\": \"S\", \"audioEffect\": {\"E\": {\"parameter\": {\"p\": 1}}} }\n";
const std::string lossy = documentWith(R"("vendor":"Ours")");

class Format : public testing::Test {
 protected:
  Outcome format(const Arguments& options = {}) const {
    return runTool(Arguments{"format", argument(file_)} + options);
  }
  std::string content() const { return readFile(file_); }

  const TemporaryDirectory directory_;
  const fs::path folder_ = directory_.folder("styles");
  const fs::path file_ = folder_ / "mine.kostyle";
};

// What a unified diff makes of a text; throws when the lines that it names are not there.
std::string patched(const std::string& text, const std::string& diff) {
  const auto linesOf = [](const std::string& whole) {
    std::vector<std::string> lines;
    for (std::size_t at = 0; at < whole.size();) {
      const std::size_t end = std::min(whole.find('\n', at), whole.size() - 1) + 1;
      lines.push_back(whole.substr(at, end - at));
      at = end;
    }
    return lines;
  };
  const std::vector<std::string> before = linesOf(text);
  std::vector<std::string> marked = linesOf(diff);
  for (std::size_t i = 0; i + 1 < marked.size(); ++i)
    if (marked[i + 1][0] == '\\') marked[i].pop_back();
  std::string after;
  std::size_t next = 0;
  for (std::size_t i = 2; i < marked.size(); ++i) {
    const std::string line = marked[i].substr(1);
    const char sign = marked[i][0];
    if (sign == '@') {
      const std::size_t count = static_cast<std::size_t>(std::stoul(marked[i].substr(4)));
      const bool isEmpty = marked[i].find(",0 +") != std::string::npos;
      while (next + (isEmpty ? 0 : 1) < count) after += before.at(next++);
    } else if (sign == '+') {
      after += line;
    } else if (sign != '\\') {
      if (before.at(next++) != line) throw std::runtime_error("not the line: " + line);
      if (sign == ' ') after += line;
    }
  }
  while (next < before.size()) after += before[next++];
  return after;
}

TEST(FormatSamples, TellsWhatWouldChange) {
  const Outcome outcome =
      runInSamples({"format", "--check", "--diff", "--lossy", "format/loose.kostyle"});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_EQ(outcome.out, golden("format.diff"));
  EXPECT_EQ(outcome.err, golden("format.err"));
}

TEST(FormatSamples, AreIndentedAsTheLibraryDoes) {
  const Outcome outcome =
      run(KOSTYLE_TOOL, {"format", "-"}, fs::u8path(KOSTYLE_TOOL_TESTS) / "diff/after/slowly.kostyle");
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_EQ(outcome.out, "");
  EXPECT_EQ(outcome.err,
            "kostyle: stdin: /unknown is lost: true\n"
            "kostyle: stdin: not formatted; --lossy formats it all the same\n");
}

TEST(FormatExamples, DiffsLeadToTheOwnForm) {
  for (const char* const folder : {"system", "user"})
    for (const auto& entry : fs::directory_iterator(exampleStyles() / folder)) {
      SCOPED_TRACE(entry.path());
      const std::string file = argument(entry.path());
      for (const char* const form : {"--lossy", "--compact"}) {
        const std::string after = run(KOSTYLE_TOOL, {"format", "-", "--lossy", form}, entry.path()).out;
        const Outcome diff = runTool({"format", file, "--diff", "--lossy", form});
        EXPECT_EQ(diff.exitCode, 0);
        const std::string before = readFile(entry.path());
        // Other encodings have nothing in common with their own form, and marks are shown as escapes.
        if (before[0] == '{' && before.find('\0') == before.npos) {
          EXPECT_EQ(patched(before, diff.out), after);
        }
      }
    }
}

TEST_F(Format, WritesTheOwnFormOfEachEncoding) {
  for (const Encoding encoding : allEncodings())
    for (const bool mark : {false, true}) {
      writeFile(file_, encoded(loose, encoding, mark));
      const Outcome outcome = format();
      expectSuccess(outcome);
      EXPECT_EQ(outcome.out, printed(file_) + "\n");
      EXPECT_EQ(content(), pretty);
    }
  EXPECT_THAT(entryNames(folder_), ElementsAre("mine.kostyle"));
}

TEST_F(Format, WritesTheCompactForm) {
  writeFile(file_, pretty);
  expectSuccess(format({"--compact"}));
  EXPECT_EQ(content(), document("S", "N"));
}

TEST_F(Format, TouchesNothingThatIsFormatted) {
  writeFile(file_, pretty);
  const auto before = fs::last_write_time(file_) - std::chrono::hours(1);
  fs::last_write_time(file_, before);
  const Outcome outcome = format();
  expectSuccess(outcome);
  EXPECT_EQ(outcome.out, "");
  EXPECT_EQ(fs::last_write_time(file_), before);
}

TEST_F(Format, IsDoneOnce) {
  writeFile(file_,
            documentWithParameters(R"("a":0.1,"b":1e-7,"c":16777216.0,"d":-0.0,"e":3.4e38,"f":0.45)"));
  expectSuccess(format());
  const Outcome again = format({"--check"});
  expectSuccess(again);
  EXPECT_EQ(again.out, "");
}

TEST_F(Format, RefusesWhatWouldBeLost) {
  writeFile(file_, lossy);
  for (const Arguments& options : {Arguments{}, {"--check"}, {"--diff"}, {"--compact"}}) {
    const Outcome outcome = format(options);
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(outcome.err, "kostyle: " + printed(file_) + ": /vendor is lost: \"Ours\"\n" +
                               "kostyle: " + printed(file_) +
                               ": not formatted; --lossy formats it all the same\n");
    EXPECT_EQ(content(), lossy);
  }
}

TEST_F(Format, LosesItWhenAskedTo) {
  writeFile(file_, lossy);
  const Outcome outcome = format({"--lossy", "--compact"});
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_EQ(outcome.err, "kostyle: notice: " + printed(file_) + ": /vendor is lost: \"Ours\"\n");
  EXPECT_EQ(content(), document("I", "N"));
}

TEST_F(Format, LosesEffectsThatAreNotReadAgain) {
  writeFile(
      file_,
      R"({"id":"I","name":"N","audioEffect":{"Bare":{"parameter":{}},"E":{"parameter":{"p":1}}}})");
  EXPECT_THAT(format({"--lossy", "--compact"}).err, HasSubstr("/audioEffect/Bare is lost"));
  EXPECT_EQ(content(), document("I", "N"));
  expectSuccess(format({"--check", "--compact"}));
}

TEST_F(Format, TakesManyValues) {
  std::string genres;
  std::string parameters;
  for (int i = 100000; i < 120000; ++i) {
    genres += (genres.empty() ? "\"" : ",\"") + std::to_string(i) + '"';
    parameters += (parameters.empty() ? "\"p" : ",\"p") + std::to_string(i) + "\":1";
  }
  writeFile(file_, R"({"id":"S","name":"N","filter":{"genres":[)" + genres +
                       R"(]},"audioEffect":{"E":{"parameter":{)" + parameters + "}}}}");
  expectSuccess(format({"--compact"}));
  expectSuccess(format({"--compact", "--check"}));
}

TEST_F(Format, ChecksWithoutWriting) {
  writeFile(file_, loose);
  const Outcome outcome = format({"--check"});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_EQ(outcome.out, printed(file_) + "\n");
  EXPECT_EQ(outcome.err, "");
  const Outcome diff = format({"--diff"});
  expectSuccess(diff);
  EXPECT_EQ(patched(loose, diff.out), pretty);
  EXPECT_EQ(content(), loose);
}

TEST_F(Format, PassesTheStandardInputOn) {
  writeFile(file_, encoded(loose, Encoding::utf16le, true));
  const Outcome outcome = run(KOSTYLE_TOOL, {"format", "-"}, file_);
  expectSuccess(outcome);
  EXPECT_EQ(outcome.out, pretty);
  EXPECT_EQ(run(KOSTYLE_TOOL, {"format", "-", "--check"}, file_).out, "stdin\n");
  expectFailure(runTool({"format", "-", "-"}), 2, "named twice");
}

TEST_F(Format, WritesTheGoodAmongTheBad) {
  writeFile(file_, loose);
  writeFile(folder_ / "bad.kostyle", "{");
  const Outcome outcome = runTool({"format", argument(folder_ / "bad.kostyle"),
                                   argument(folder_ / "none"), argument(folder_), argument(file_)});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_EQ(outcome.out, printed(file_) + "\n");
  EXPECT_THAT(outcome.err, HasSubstr("bad.kostyle:1:2: not valid JSON"));
  EXPECT_THAT(outcome.err, HasSubstr("none: "));
  EXPECT_THAT(outcome.err, HasSubstr(printed(folder_) + ": a directory, not a file\n"));
  EXPECT_EQ(content(), pretty);
  EXPECT_EQ(readFile(folder_ / "bad.kostyle"), "{");
}

TEST_F(Format, RefusesWhatTheLibraryCannotWrite) {
  for (const char* const parameters : {R"("p":1e39)", R"("p":"\udc41")", R"("\udc41":1)"}) {
    const std::string text = documentWithParameters(parameters);
    writeFile(file_, text);
    expectFailure(format({"--lossy"}), 1, printed(file_) + ": ");
    EXPECT_EQ(content(), text);
  }
  const std::string bare = documentWithParameters("");
  writeFile(file_, bare);
  expectFailure(format({"--lossy"}), 1, "no effect has a parameter");
  EXPECT_EQ(content(), bare);
}

TEST_F(Format, KeepsALink) {
  const fs::path target = directory_.folder("elsewhere") / "real.txt";
  writeFile(target, loose);
  std::error_code error;
  fs::create_symlink(target, file_, error);
  if (error) GTEST_SKIP() << "links cannot be made here: " << error.message();
  expectSuccess(format());
  EXPECT_TRUE(fs::is_symlink(file_));
  EXPECT_EQ(readFile(target), pretty);
}

TEST_F(Format, LeavesFilesThatHaveTheNamesOfItsOwn) {
  for (const char* const name : {"kostyle.new", "kostyle.lock"}) {
    writeFile(folder_ / name, loose);
    expectFailure(runTool({"format", argument(folder_ / name)}), 1, name);
    EXPECT_EQ(readFile(folder_ / name), loose);
  }
}

TEST_F(Format, OfOneFileAtOnceIsDoneByOne) {
  writeFile(file_, loose);
  std::string all;
  for (const std::string& text : runManyTools(8, [&](int) {
         return Arguments{"format", argument(file_), "--wait", "300"};
       }))
    all += text;
  EXPECT_EQ(all, printed(file_) + "\n");
  EXPECT_EQ(content(), pretty);
  EXPECT_THAT(entryNames(folder_), ElementsAre("mine.kostyle"));
}

#if !defined(_WIN32)
TEST_F(Format, EndsWhenNothingCanBePrinted) {
  writeFile(file_, loose);
  EXPECT_EQ(runToolWithoutOutput(directory_ / "err", {"format", argument(file_), argument(file_)}), 1);
  EXPECT_EQ(readFile(directory_ / "err"),
            "kostyle: the output cannot be written: No space left on device\n");
  EXPECT_EQ(content(), loose);
}

TEST_F(Format, KeepsModeAndOwner) {
  writeFile(file_, loose);
  ASSERT_EQ(chmod(file_.c_str(), 0640), 0);
  const bool isGiven = chown(file_.c_str(), 1234, 5678) == 0;
  expectSuccess(format());
  struct stat status {};
  ASSERT_EQ(stat(file_.c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 07777, 0640u);
  EXPECT_EQ(status.st_uid, isGiven ? 1234u : geteuid());
}

TEST_F(Format, WaitsForNoPipe) {
  ASSERT_EQ(mkfifo(file_.c_str(), 0600), 0);
  expectFailure(format(), 1, "mine.kostyle: not a regular file");
}

TEST_F(Format, KeepsTheFileOnAFullDisk) {
  const std::string large = document("S", "N", "\"p\":\"" + std::string(900, 'm') + '"',
                                     R"("filter":{"languages":[0,1,2,3,4]})");
  writeFile(file_, large);
  const Outcome outcome = runToolOnFullDisk(1, {"format", argument(file_)});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_THAT(outcome.out, StartsWith("kostyle: " + printed(file_) + ": "));
  EXPECT_EQ(content(), large);
  EXPECT_THAT(entryNames(folder_), ElementsAre("mine.kostyle"));
}

TEST_F(Format, TellsThatNothingCanBePrinted) {
  const fs::path err = directory_ / "err";
  writeFile(file_, loose);
  EXPECT_EQ(runToolWithoutOutput(err, {"format", "--check", argument(file_)}), 1);
  EXPECT_EQ(readFile(err), "kostyle: the output cannot be written: No space left on device\n");
  EXPECT_EQ(runToolWithoutOutput(err, {"format", argument(file_)}), 1);
  EXPECT_EQ(content(), loose);
}
#endif

}  // namespace
}  // namespace test
