#include "tool/held_file.h"
#include "tool/tool.h"

namespace test {
namespace {

class Remove : public testing::Test {
 protected:
  const TemporaryDirectory directory_;
  const fs::path user_ = directory_.folder("user");
};

TEST_F(Remove, DeletesTheFileOfTheStyle) {
  writeFile(user_ / "a.kostyle", document("A", "A"));
  writeFile(user_ / "b.kostyle", document("B", "B"));
  const Outcome outcome = runTool({"remove", "A", "--user", argument(user_)});
  expectSuccess(outcome);
  EXPECT_EQ(outcome.out, "");
  EXPECT_THAT(entryNames(user_), ElementsAre("b.kostyle"));
}

TEST_F(Remove, FindsStylesOfFurtherDirectories) {
  writeFile(directory_.folder("more") / "a.kostyle", document("A", "A"));
  expectSuccess(runTool(
      {"remove", "A", "--user", argument(user_), "--user-extra", argument(directory_ / "more")}));
  EXPECT_TRUE(fs::is_empty(directory_ / "more"));
}

TEST_F(Remove, RefusesWhatIsNoUserStyle) {
  const auto system = directory_.folder("system");
  writeFile(system / "s.kostyle", document("S", "S"));
  writeFile(user_ / "a.kostyle", document("A", "A"));
  const auto before = contents(directory_.path());
  expectFailure(runTool({"remove", "S", "--user", argument(user_), "--system", argument(system)}), 1,
                "S: a system style is never changed");
  expectFailure(runTool({"remove", "S", "--user", argument(user_)}), 1,
                "S: no style has this identifier");
  expectFailure(runTool({"remove", "a", "--user", argument(user_)}), 1,
                "a: no style has this identifier");
  EXPECT_EQ(contents(directory_.path()), before);
}

TEST_F(Remove, LeavesAFileThatMayNotBeWritten) {
  const fs::path file = user_ / "a.kostyle";
  writeFile(file, document("A", "A"));
  fs::permissions(file, fs::perms::owner_read);
  expectFailure(runUnprivileged({"remove", "A", "--user", argument(user_), "--yes"}), 1,
                "a.kostyle: cannot be written");
  EXPECT_EQ(readFile(file), document("A", "A"));
  fs::permissions(file, fs::perms::owner_all);
}

TEST_F(Remove, TakesSeveralOrNone) {
  for (const char* id : {"a", "b", "c"})
    writeFile(user_ / (std::string(id) + ".kostyle"), document(id, id));
  const auto before = contents(user_);
  expectFailure(runTool({"remove", "a", "b", "d", "--user", argument(user_)}), 1,
                "d: no style has this identifier");
  EXPECT_EQ(contents(user_), before);
  expectSuccess(runTool({"remove", "a", "c", "a", "--user", argument(user_), "--yes"}));
  EXPECT_THAT(entryNames(user_), ElementsAre("b.kostyle"));
}

// Only one of them is a style; without it the other would be.
TEST_F(Remove, LeavesAnIdentifierThatSeveralFilesHave) {
  writeFile(user_ / "a.kostyle", document("A", "A"));
  writeFile(user_ / "b.kostyle", document("A", "B"));
  writeFile(user_ / "c.kostyle", document("C", "C"));
  const auto before = contents(user_);
  const Outcome outcome = runTool({"remove", "C", "A", "--user", argument(user_), "--yes"});
  expectFailure(outcome, 1, "is left as it is: its identifier is also that of ");
  EXPECT_THAT(outcome.err, HasSubstr(printed(user_ / "a.kostyle")));
  EXPECT_THAT(outcome.err, HasSubstr(printed(user_ / "b.kostyle")));
  EXPECT_EQ(contents(user_), before);
  fs::remove(user_ / "b.kostyle");
  expectSuccess(runTool({"remove", "A", "--user", argument(user_), "--yes"}));
  EXPECT_THAT(entryNames(user_), ElementsAre("c.kostyle"));
}

TEST_F(Remove, NamesTheUserFileWhoseIdentifierASystemStyleHas) {
  const auto system = directory_.folder("system");
  for (const fs::path& folder : {system, user_}) writeFile(folder / "a.kostyle", document("A", "A"));
  expectFailure(runTool({"remove", "A", "--user", argument(user_), "--system", argument(system)}), 1,
                "A: a system style is never changed; a file that holds it is refused: " +
                    printed(user_ / "a.kostyle") + ": another style has the same identifier");
}

TEST_F(Remove, WaitsForAnotherThatChangesTheFolder) {
  writeFile(user_ / "a.kostyle", document("A", "A"));
  const HeldLock held(user_ / "kostyle.lock");
  ASSERT_TRUE(held.isOpen());
  expectFailure(runTool({"remove", "A", "--user", argument(user_), "--wait", "0"}), 1,
                "another kostyle is changing files of this folder");
  EXPECT_TRUE(fs::exists(user_ / "a.kostyle"));
}

TEST_F(Remove, RefusesWrongUse) {
  expectFailure(runTool({"remove", "--user", argument(user_)}), 2, "ID is required");
  expectFailure(runTool({"remove", "A"}), 2, "--user is required");
  expectFailure(runTool({"remove", "A", "--user", argument(directory_ / "no")}), 2,
                "no such directory");
  EXPECT_FALSE(fs::exists(directory_ / "no"));
}

}  // namespace
}  // namespace test
