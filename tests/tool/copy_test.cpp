// kostyle copy.
#include "support/encodings.h"
#include "tool/tool.h"

#if !defined(_WIN32)
#include <sys/stat.h>
#endif

namespace test {
namespace {

class Copy : public testing::Test {
 protected:
  Copy() { writeFile(source_, document("S", "N")); }

  Outcome copy(const Arguments& options = {}) const {
    return runTool(Arguments{"copy", argument(source_), "--user", argument(user_)} + options);
  }

  /// What was copied, which has to be the one file of the user directory; its identifier becomes ID.
  std::string copied(const Outcome& outcome) const {
    EXPECT_EQ(outcome.exitCode, 0) << outcome.err;
    constexpr std::size_t idSize = 36;
    const std::string id = outcome.out.substr(0, idSize);
    EXPECT_EQ(id.find_first_not_of("0123456789abcdef-"), std::string::npos);
    EXPECT_EQ(outcome.out, id + '\t' + printed(user_ / (id + ".kostyle")) + '\n');
    EXPECT_THAT(entryNames(user_), ElementsAre(id + ".kostyle"));
    std::string bytes = readFile(user_ / (id + ".kostyle"));
    const std::size_t at = bytes.find(id);
    return at == bytes.npos ? bytes : bytes.replace(at, id.size(), "ID");
  }

  const TemporaryDirectory directory_;
  const fs::path system_ = directory_.folder("system");
  const fs::path source_ = system_ / "factory.kostyle";
  const fs::path user_ = directory_ / "user";
};

TEST_F(Copy, ChangesTheIdentifierAlone) {
  const std::string text =
      "{ \"more\" : [1.50, {}],\r\n\t\"name\":\"N\", \"id\"  : \"S\" , \"vendor\":\"Ours\",\r\n"
      "  \"audioEffect\": {\"E\":{\"parameter\":{\"p\":0.40,\"Tarn\":1}}, \"E\": 7}, \"id\": "
      "\"S\"}\r\n";
  writeFile(source_, text);
  const Outcome outcome = copy();
  EXPECT_EQ(outcome.err, "");
  std::string expected = text;
  EXPECT_EQ(copied(outcome), expected.replace(expected.find("\"S\""), 3, "\"ID\""));
  EXPECT_EQ(readFile(source_), text);
}

TEST_F(Copy, KeepsEncodingAndMark) {
  for (const Encoding encoding : allEncodings())
    for (const bool mark : {false, true}) {
      const std::string text = document("S", u8"Nachtfähre 港");
      writeFile(source_, encoded(text, encoding, mark));
      const Outcome outcome = copy();
      expectSuccess(outcome);
      const std::string id = outcome.out.substr(0, 36);
      const fs::path file = user_ / (id + ".kostyle");
      EXPECT_EQ(readFile(file), encoded(document(id, u8"Nachtfähre 港"), encoding, mark));
      fs::remove(file);
    }
}

TEST_F(Copy, TakesTheOptionsOfSet) {
  EXPECT_EQ(copied(copy({"--name", "M", "--add", "--param", "E.q=0.5", "--param", "E.p=2"})),
            document("ID", "M", R"("p":2,"q":0.5)", ""));
}

TEST_F(Copy, CanBeInTheOwnForm) {
  writeFile(source_, documentWith(R"("vendor":"Ours")"));
  const Outcome outcome = copy({"--reformat"});
  EXPECT_EQ(copied(outcome), document("ID", "N"));
  EXPECT_EQ(outcome.err, "kostyle: notice: /vendor is lost: \"Ours\"\n");
}

TEST_F(Copy, TakesAnIdentifier) {
  const Outcome outcome =
      runTool({"copy", "S", "--system", argument(system_), "--user", argument(user_)});
  expectSuccess(outcome);
  EXPECT_EQ(copied(outcome), document("ID", "N"));
  const std::string id = outcome.out.substr(0, 36);
  expectSuccess(runTool({"copy", id, "--user", argument(user_)}));
  const auto listed = parseJson(
      runTool({"list", "--json", "--system", argument(system_), "--user", argument(user_)}).out);
  EXPECT_EQ(listed["styles"].Size(), 3u);
  EXPECT_EQ(listed["refused"].Size(), 0u);
}

TEST_F(Copy, MakesTheDirectoryOnlyWithAFileInIt) {
  const fs::path deep = user_ / "a" / "b";
  const Arguments arguments{"copy", argument(source_), "--user", argument(deep)};
  expectFailure(runTool(arguments + Arguments{"--param", "E.x=1"}), 1,
                "the effect has no such parameter");
  EXPECT_FALSE(fs::exists(user_));
  expectSuccess(runTool(arguments));
  EXPECT_EQ(entryNames(deep).size(), 1u);
}

TEST_F(Copy, RefusesWhatIsNoStyle) {
  writeFile(source_, "{");
  expectFailure(copy(), 1, "factory.kostyle:1:2: not valid JSON");
  fs::remove(source_);
  expectFailure(copy(), 2, "factory.kostyle: no such file; an identifier needs --system or --user");
  fs::create_directory(source_);
  expectFailure(copy(), 1,
                "factory.kostyle: a directory, not a file; \"kostyle list\" lists its styles");
  expectFailure(runTool({"copy", "X", "--system", argument(system_), "--user", argument(user_)}), 1,
                "X: no such file, and no style has this identifier");
  expectFailure(runTool({"copy", argument(source_)}), 2, "--user is required");
  EXPECT_FALSE(fs::exists(user_));
}

TEST_F(Copy, RefusesAFileAsTheDirectory) {
  writeFile(user_, "mine");
  expectFailure(copy(), 2, "user: not a directory");
  EXPECT_EQ(readFile(user_), "mine");
}

TEST_F(Copy, ManyAtOnceAreAllThere) {
  constexpr int count = 8;
  runManyTools(count, [&](int) {
    return Arguments{"copy", argument(source_), "--user", argument(user_), "--wait", "300"};
  });
  EXPECT_EQ(entryNames(user_).size(), static_cast<std::size_t>(count));
}

#if !defined(_WIN32)
TEST_F(Copy, IsAFileOfTheUser) {
  ASSERT_EQ(chmod(source_.c_str(), 0444), 0);
  const mode_t mask = umask(022);
  const Outcome outcome = copy();
  umask(mask);
  expectSuccess(outcome);
  struct stat status {};
  ASSERT_EQ(stat((user_ / (outcome.out.substr(0, 36) + ".kostyle")).c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 07777, 0644u);
}

TEST_F(Copy, LeavesNothingOnAFullDisk) {
  writeFile(source_, document("S", "N", R"("p":1)", "\"more\":\"" + std::string(850, 'm') + "\""));
  const Outcome outcome = runToolOnFullDisk(
      1, {"copy", argument(source_), "--user", argument(user_), "--add-genre", std::string(150, 'g')});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_THAT(outcome.out, HasSubstr(".kostyle: its new content cannot be written: File too large"));
  EXPECT_FALSE(fs::exists(user_));
}

TEST_F(Copy, LeavesNothingWhenNothingCanBePrinted) {
  const fs::path err = directory_ / "err";
  EXPECT_EQ(runToolWithoutOutput(err, {"copy", argument(source_), "--user", argument(user_)}), 1);
  EXPECT_EQ(readFile(err), "kostyle: the output cannot be written: No space left on device\n");
  EXPECT_FALSE(fs::exists(user_));
}

TEST_F(Copy, WaitsForNoPipe) {
  fs::remove(source_);
  ASSERT_EQ(mkfifo(source_.c_str(), 0600), 0);
  expectFailure(copy(), 1, "factory.kostyle: not a regular file");
}
#endif

}  // namespace
}  // namespace test
