#include <kostyle/version.h>

#include "tool/tool.h"

namespace test {
namespace {

TEST(CommandLine, PrintsVersion) {
  const Outcome outcome = runTool({"--version"});
  expectSuccess(outcome);
  EXPECT_EQ(outcome.out, "kostyle " KOSTYLE_VERSION_STRING "\n");
}

TEST(CommandLine, HelpShowsEveryCommandWithExamples) {
  const Outcome outcome = runTool({"--help"});
  expectSuccess(outcome);
  EXPECT_THAT(outcome.out, HasSubstr("Examples:\n  kostyle list "));
  for (const std::string command : {"check", "list", "show", "new", "set", "remove", "catalog"}) {
    EXPECT_THAT(outcome.out, HasSubstr("\n  " + command + " "));
    const Outcome help = runTool({command, "--help"});
    expectSuccess(help);
    EXPECT_THAT(help.out, HasSubstr("Usage: kostyle " + command));
    EXPECT_THAT(help.out, HasSubstr(":\n  kostyle " + command + " "));
  }
}

TEST(CommandLine, RefusesWrongUse) {
  expectFailure(runTool({}), 2, "a command is required");
  expectFailure(runTool({"frob"}), 2, "frob");
  expectFailure(runTool({"--frob"}), 2, "--frob");
  expectFailure(runTool({"two\nlines"}), 2, "two\\u000alines");
  expectFailure(runTool({"list", "--system", "a", "--json=5"}), 2, "json was given a disallowed");
}

#if !defined(_WIN32)
TEST(CommandLine, ReportsHelpThatCannotBeWritten) {
  const TemporaryDirectory directory;
  EXPECT_EQ(runToolWithoutOutput(directory / "err", {"--help"}), 1);
  EXPECT_THAT(readFile(directory / "err"), HasSubstr("the output cannot be written"));
}
#endif

}  // namespace
}  // namespace test
