#include "tool/tool.h"

namespace test {
namespace {

class List : public testing::Test {
 protected:
  const TemporaryDirectory directory_;
  const fs::path system_ = directory_.folder("system");
  const fs::path user_ = directory_.folder("user");
};

TEST_F(List, AlignsColumnsByDisplay) {
  writeFile(system_ / "a.kostyle",
            R"({"id":"night","name":"港の夜","filter":{"languages":[4,1],"singerGroups":["Duo","Choir"],
                "singerIDs":["0123456789abcdef"],"genres":["演歌"],"subGenres":["Bálade"],"colors":["red"]},
                "audioEffect":{"A":{"parameter":{}}},"midiEffect":{"M":{"parameter":{}}}})");
  writeFile(user_ / "b.kostyle", document("p", "Plain"));
  const Outcome outcome = runTool({"list", "--system", argument(system_), "--user", argument(user_)});
  expectSuccess(outcome);
  EXPECT_EQ(
      outcome.out,
      "KIND    NAME    ID     LANGUAGES  SINGER GROUPS  GENRES  SUB-GENRES  COLORS  EFFECTS  PATH\n"
      "system  港の夜  night  1, 4       Choir, Duo     演歌    Bálade      red     2        " +
          printed(system_ / "a.kostyle") +
          "\n"
          "user    Plain   p                                                            1        " +
          printed(user_ / "b.kostyle") + "\n");
}

TEST_F(List, KeepsControlCharactersFromTheTerminal) {
  writeFile(system_ / "a.kostyle", document("a\\u001b[2J", "two\\nlines"));
  const Outcome outcome = runTool({"list", "--system", argument(system_)});
  EXPECT_THAT(outcome.out, HasSubstr("system  two\\u000alines  a\\u001b[2J"));
}

TEST_F(List, SaysWhatWasRefusedAndWhy) {
  writeFile(system_ / "good.kostyle", document("s", "Good"));
  writeFile(user_ / "comma.kostyle", R"({"id":"x",})");
  writeFile(user_ / "nameless.kostyle", R"({"id":"x"})");
  writeFile(user_ / "same.kostyle", document("s", "Same"));
  const Outcome outcome = runTool({"list", "--system", argument(system_), "--user", argument(user_)});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_EQ(outcome.err, "");
  EXPECT_THAT(outcome.out, HasSubstr("\n\nRefused:\n"));
  const auto line = [&](const char* file, const std::string& reason) {
    return HasSubstr('\n' + printed(user_ / file) + reason + '\n');
  };
  EXPECT_THAT(outcome.out,
              line("comma.kostyle", ":1:11: not valid JSON: an object member has no name"));
  EXPECT_THAT(outcome.out, line("nameless.kostyle", ": required member is missing at /name"));
  EXPECT_THAT(outcome.out, line("same.kostyle", ": another style has the same identifier: s, in " +
                                                    printed(system_ / "good.kostyle")));
}

TEST_F(List, PrintsEverythingAsJson) {
  writeFile(system_ / "a.kostyle",
            R"({"id":"n","name":"N\"","vendor":"V","filter":{"languages":[4,1],"singerGroups":["g"],
                "singerIDs":["0123456789abcdef"],"genres":["b","a"],"subGenres":["s"],"colors":["c"]},
                "audioEffect":{"EQ":{"parameter":{"gain":1.5,"band":3,"mode":"warm"}}},
                "midiEffect":{"M":{"parameter":{}}}})");
  const Outcome outcome = runTool({"list", "--system", argument(system_), "--json"});
  expectSuccess(outcome);
  const auto document = parseJson(outcome.out);
  ASSERT_EQ(document["styles"].Size(), 1u);
  const auto& style = document["styles"][0];
  EXPECT_STREQ(style["kind"].GetString(), "system");
  EXPECT_STREQ(style["id"].GetString(), "n");
  EXPECT_STREQ(style["name"].GetString(), "N\"");
  EXPECT_EQ(style["path"].GetString(), printed(system_ / "a.kostyle"));
  EXPECT_STREQ(style["vendor"].GetString(), "V");
  ASSERT_EQ(style["languages"].Size(), 2u);
  EXPECT_EQ(style["languages"][0].GetInt(), 1);
  EXPECT_EQ(style["languages"][1].GetInt(), 4);
  EXPECT_THAT(texts(style["singerGroups"]), ElementsAre("g"));
  EXPECT_THAT(texts(style["singerIDs"]), ElementsAre("0123456789abcdef"));
  EXPECT_THAT(texts(style["genres"]), ElementsAre("a", "b"));
  EXPECT_THAT(texts(style["subGenres"]), ElementsAre("s"));
  EXPECT_THAT(texts(style["colors"]), ElementsAre("c"));
  EXPECT_THAT(effects(style["audioEffects"]), ElementsAre("EQ(band int,gain float,mode text)"));
  EXPECT_THAT(effects(style["midiEffects"]), ElementsAre("M()"));
  EXPECT_EQ(document["refused"].Size(), 0u);
  EXPECT_EQ(document["unopened"].Size(), 0u);
}

TEST_F(List, PrintsRefusalsAsJson) {
  writeFile(user_ / "bad.kostyle", "\xEF\xBB\xBF[1,");
  const Outcome syntax =
      runTool({"list", "--system", argument(system_), "--user", argument(user_), "--json"});
  EXPECT_EQ(syntax.exitCode, 1);
  const auto document = parseJson(syntax.out);
  ASSERT_EQ(document["refused"].Size(), 1u);
  const auto& refused = document["refused"][0];
  EXPECT_STREQ(refused["kind"].GetString(), "user");
  EXPECT_EQ(refused["path"].GetString(), printed(user_ / "bad.kostyle"));
  EXPECT_EQ(refused["code"].GetInt(), 17);
  EXPECT_STREQ(refused["text"].GetString(), "not valid JSON");
  EXPECT_EQ(refused["parseError"]["code"].GetInt(), 3);
  EXPECT_STREQ(refused["parseError"]["text"].GetString(), "not a value");
  EXPECT_EQ(refused["parseError"]["offset"].GetInt(), 6);
  EXPECT_EQ(refused["parseError"]["line"].GetInt(), 1);
  EXPECT_EQ(refused["parseError"]["column"].GetInt(), 4);

  writeFile(user_ / "bad.kostyle", R"({"id":7})");
  const auto wrongType = parseJson(
      runTool({"list", "--system", argument(system_), "--user", argument(user_), "--json"}).out);
  EXPECT_EQ(wrongType["refused"][0]["code"].GetInt(), 20);
  EXPECT_STREQ(wrongType["refused"][0]["jsonPath"].GetString(), "/id");
  EXPECT_FALSE(wrongType["refused"][0].HasMember("parseError"));
}

TEST_F(List, ReadsFurtherDirectories) {
  writeFile(system_ / "a.kostyle", document("a", "A"));
  writeFile(directory_.folder("s1") / "b.kostyle", document("b", "B"));
  writeFile(directory_.folder("s2") / "c.kostyle", document("c", "C"));
  writeFile(user_ / "d.kostyle", document("d", "D"));
  writeFile(directory_.folder("u1") / "e.kostyle", document("e", "E"));
  const Outcome outcome =
      runTool({"list", "--json", "--system", argument(system_), "--system-extra",
               argument(directory_ / "s1"), "--system-extra", argument(directory_ / "s2"), "--user",
               argument(user_), "--user-extra", argument(directory_ / "u1")});
  expectSuccess(outcome);
  const auto document = parseJson(outcome.out);
  std::vector<std::string> ids;
  for (const auto& style : document["styles"].GetArray())
    ids.push_back(std::string(style["kind"].GetString()) + ' ' + style["id"].GetString());
  EXPECT_THAT(ids, ElementsAre("system a", "system b", "system c", "user d", "user e"));
}

TEST_F(List, TakesRelativePathsWithForwardSlashes) {
  const auto relative = fs::relative(exampleStyles() / "system").generic_u8string();
  ASSERT_FALSE(fs::u8path(relative).is_absolute());
  const Outcome outcome = runTool({"list", "--system", relative + "/../system/"});
  expectSuccess(outcome);
  EXPECT_THAT(outcome.out, HasSubstr("morning-light"));
}

TEST_F(List, LeavesDirectoriesAsTheyAre) {
  writeFile(system_ / "a.kostyle", document("a", "A"));
  const auto before = contents(directory_.path());
  expectSuccess(runTool({"list", "--system", argument(system_)}));
  expectSuccess(runTool({"list", "--system", argument(system_), "--user", argument(user_)}));
  EXPECT_EQ(contents(directory_.path()), before);
}

TEST_F(List, AcceptsAnEmptyDirectory) {
  const Outcome outcome = runTool({"list", "--system", argument(system_)});
  expectSuccess(outcome);
  EXPECT_THAT(outcome.out, StartsWith("KIND"));
}

TEST_F(List, RefusesWrongUse) {
  const std::string system = argument(system_);
  const std::string missing = argument(directory_ / "missing");
  expectFailure(runTool({"list"}), 2, "--system or --user is required");
  expectFailure(runTool({"list", "--system"}), 2, "--system");
  expectFailure(runTool({"list", "--system", system, "--frob"}), 2, "--frob");
  expectFailure(runTool({"list", "--system", system, "more"}), 2, "more");
  expectFailure(runTool({"list", "--system", ""}), 2, "empty");
  expectFailure(runTool({"list", "--system", missing}), 2, "missing: no such directory");
  expectFailure(runTool({"list", "--system", system, "--user", missing}), 2, "no such directory");
  expectFailure(runTool({"list", "--system", system, "--system-extra", missing}), 2,
                "no such directory");
  expectFailure(
      runTool({"list", "--system", system, "--user", argument(user_), "--user-extra", missing}), 2,
      "no such directory");
  expectFailure(runTool({"list", "--system", system, "--user-extra", argument(user_)}), 2, "--user");
  EXPECT_FALSE(fs::exists(directory_ / "missing"));
  writeFile(directory_ / "file", "");
  expectFailure(runTool({"list", "--user", argument(directory_ / "file")}), 2, "file: not a directory");
}

TEST_F(List, TakesAUserDirectoryAlone) {
  writeFile(user_ / "a.kostyle", document("a", "A"));
  const Outcome outcome = runTool({"list", "--user", argument(user_), "--columns", "kind,id"});
  expectSuccess(outcome);
  EXPECT_EQ(outcome.out, "KIND  ID\nuser  a\n");
}

#if defined(_WIN32)
TEST_F(List, ReportsFilesThatCannotBeOpened) {
  const auto path = system_ / "locked.kostyle";
  const HANDLE lock = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, 0, nullptr);
  ASSERT_NE(lock, INVALID_HANDLE_VALUE);
  const Outcome outcome = runTool({"list", "--system", argument(system_)});
  CloseHandle(lock);
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_THAT(outcome.out, HasSubstr(printed(path) + ": cannot be opened: "));
}
#else
TEST_F(List, ReportsFilesThatCannotBeOpened) {
  const fs::path lost = system_ / "lost.kostyle";
  const fs::path pipe = system_ / "pipe.kostyle";
  fs::create_symlink("nowhere", lost);
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  fs::create_directory(system_ / "folder.kostyle");
  const Outcome outcome = runTool({"list", "--system", argument(system_)});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_THAT(outcome.out, HasSubstr("\nRefused:\n" + printed(lost) + ": a link that leads nowhere\n" +
                                     printed(pipe) + ": not a regular file\n"));
  const auto document = parseJson(runTool({"list", "--system", argument(system_), "--json"}).out);
  EXPECT_THAT(texts(document["unopened"]), ElementsAre(printed(lost), printed(pipe)));
  const auto stats = parseJson(runTool({"stats", argument(system_), "--json"}).out);
  EXPECT_EQ(stats["refused"].GetInt(), 2);
  const Outcome checked = runTool({"check", argument(system_)});
  EXPECT_THAT(checked.out, HasSubstr("lost.kostyle: error: a link that leads nowhere"));
  EXPECT_THAT(checked.out, HasSubstr("pipe.kostyle: error: not a regular file"));
}

// Without the privileges by which root reads everything.
constexpr const char* unprivileged = R"(unreadable="${@: -1}"
chmod 0 "$unreadable"
if test $(id -u) = 0; then
  setpriv --bounding-set=-dac_override,-dac_read_search "$0" "$@"
else
  "$0" "$@"
fi
code=$?
chmod 700 "$unreadable"
exit $code)";

TEST_F(List, ReportsDirectoriesThatCannotBeRead) {
  if (std::system("command -v setpriv > /dev/null") != 0) GTEST_SKIP() << "setpriv is missing";
  writeFile(user_ / "a.kostyle", document("a", "A"));
  const Outcome outcome =
      runToolInScript(unprivileged, {"list", "--system", argument(system_), "--user", argument(user_)});
  EXPECT_EQ(outcome.exitCode, 1) << outcome.err;
  EXPECT_THAT(outcome.out,
              HasSubstr("\n\nRefused:\n" + printed(user_) + ": cannot be opened: Permission denied\n"));
}

TEST_F(List, WritesStrayBytesOfPathsAsTheyAre) {
  const auto folder = directory_.folder("ca\xE9");
  writeFile(folder / "\xFF.kostyle", "{");
  const Outcome outcome = runTool({"list", "--system", argument(folder)});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_THAT(outcome.out, HasSubstr("/ca\xE9/\xFF.kostyle:1:2: not valid JSON"));
  const auto document = parseJson(runTool({"list", "--system", argument(folder), "--json"}).out);
  EXPECT_THAT(document["refused"][0]["path"].GetString(), HasSubstr("/ca\uFFFD/\uFFFD.kostyle"));
}

// Some terminals take it for the start of a command.
TEST_F(List, EscapesStrayControlBytesOfPaths) {
  writeFile(system_ / "\x9b\x33\x31m.kostyle", "{");
  const Outcome outcome = runTool({"list", "--system", argument(system_)});
  EXPECT_THAT(outcome.out, HasSubstr("/\\x9b31m.kostyle:1:2: not valid JSON"));
}

TEST_F(List, ReportsOutputThatCannotBeWritten) {
  writeFile(system_ / "a.kostyle", document("a", "A"));
  EXPECT_EQ(runToolWithoutOutput(directory_ / "err", {"list", "--system", argument(system_)}), 1);
  EXPECT_THAT(readFile(directory_ / "err"), HasSubstr("cannot be written"));
}
#endif

}  // namespace
}  // namespace test
