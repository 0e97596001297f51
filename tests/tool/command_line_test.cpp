#include <kostyle/version.h>

#include <sstream>

#include "tool/environment.h"
#include "tool/tool.h"

namespace test {
namespace {

TEST(CommandLine, PrintsVersion) {
  for (const char* option : {"--version", "-V"}) {
    const Outcome outcome = runTool({option});
    expectSuccess(outcome);
    EXPECT_EQ(outcome.out, "kostyle " KOSTYLE_VERSION_STRING "\n");
  }
}

// The commands that the help lists.
Arguments commands() {
  const std::string help = runTool({"--help"}).out;
  const std::size_t begin = help.find("Commands:\n");
  std::istringstream lines(help.substr(begin, help.find("\n\n", begin) - begin));
  Arguments names;
  for (std::string line; std::getline(lines, line);)
    if (line.size() > 3 && line.substr(0, 2) == "  " && line[2] != ' ')
      names.push_back(line.substr(2, line.find(' ', 2) - 2));
  return names;
}

TEST(CommandLine, HelpShowsEveryCommandWithExamples) {
  const Outcome outcome = runTool({"--help"});
  expectSuccess(outcome);
  EXPECT_THAT(outcome.out, HasSubstr("Examples:\n  kostyle list "));
  const Arguments all = commands();
  EXPECT_THAT(all, testing::IsSupersetOf({"check", "list", "show", "new", "set", "remove", "catalog",
                                          "completion", "manual"}));
  for (const std::string& command : all) {
    const Outcome help = runTool({command, "--help"});
    expectSuccess(help);
    EXPECT_THAT(help.out, StartsWith("Usage: kostyle " + command));
    EXPECT_THAT(help.out, HasSubstr("Examples:\n  kostyle " + command + " "));
  }
}

TEST(CommandLine, HelpKeepsNamesAndTextsApart) {
  EXPECT_THAT(runTool({"set", "--help"}).out, HasSubstr("\n  --delete-language NUMBER\n"));
}

TEST(CommandLine, RefusesWrongUse) {
  expectFailure(runTool({}), 2, "a command is required");
  expectFailure(runTool({"frob"}), 2, "there is no command \"frob\"; there are list, ");
  expectFailure(runTool({"lsit"}), 2, "there is no command \"lsit\"; did you mean \"list\"?");
  expectFailure(runTool({"--frob"}), 2, "kostyle has no option --frob; \"kostyle --help\" lists them");
  expectFailure(runTool({"list", "--sytem", "a"}), 2,
                "kostyle list has no option --sytem; did you mean \"--system\"?");
  expectFailure(runTool({"set", "A", "--user=a", "--add-gerne=x"}), 2, "did you mean \"--add-genre\"?");
  expectFailure(runTool({"set", "A", "B", "--user", "a"}), 2,
                "\"B\" is one argument too many: kostyle set ");
  expectFailure(runTool({"two\nlines"}), 2, "two\\u000alines");
  expectFailure(runTool({"list", "--system", "a", "--json=5"}), 2, "--json takes no value");
  expectFailure(runTool({"list", "--system"}), 2, "--system DIR: the value is missing");
  expectFailure(runTool({"list", "--sort", "name", "--sort", "id"}), 2,
                "--sort NAME is given more than once");
  expectFailure(runTool({"check", "a", "--format", "jsno"}), 2,
                "--format: \"jsno\" is none of text, json, sarif, github; did you mean \"json\"?");
  expectFailure(runTool({"check", "a", "--jobs", "0"}), 2,
                "--jobs: \"0\" is not taken; a number from 1 to 256 is");
  expectFailure(runTool({"check", "a", "--jobs", "few"}), 2,
                "--jobs: \"few\" is not taken; a number from 1 to 256 is");
  expectFailure(runTool({"check", "a", "--max-size", "5x"}), 2,
                "--max-size: \"5x\" is no size such as 500k");
  expectFailure(runTool({"list", "--user-extra", "a"}), 2, "--user-extra needs --user beside it");
  expectFailure(runTool({"set", "A", "--user", "a", "--pretty"}), 2,
                "--pretty needs --reformat beside it");
  expectFailure(runTool({"--max-size", "1k", "--max-size", "2k", "list"}), 2,
                "--max-size SIZE is given more than once");
  expectFailure(runTool({"list", "--max-size", "1k", "--max-size", "2k"}), 2,
                "--max-size SIZE is given more than once");
  expectFailure(runTool({"--max-size", "1k", "list", "--max-size"}), 2,
                "--max-size SIZE: the value is missing");
  expectFailure(runTool({"--quite", "list"}), 2,
                "kostyle has no option --quite; did you mean \"--quiet\"?");
  expectFailure(runTool({"help", "list"}), 2,
                "there is no command \"help\"; \"kostyle --help\" helps, and so does");
  expectFailure(runTool({"completion", "tcsh"}), 2, "SHELL: \"tcsh\" is none of bash, zsh, fish");
}

TEST(CommandLine, ManualPageHasEveryCommandAndOption) {
  const Outcome manual = runTool({"manual"});
  expectSuccess(manual);
  EXPECT_THAT(manual.out, StartsWith(".TH KOSTYLE 1 \"\" \"KoStyle " KOSTYLE_VERSION_STRING "\""));
  for (const std::string& command : commands())
    EXPECT_THAT(manual.out, HasSubstr("\n.SS kostyle " + command + ' '));
  for (const char* part :
       {".B \\-\\-singer\\-group TEXT\n", ".SH EXIT CODES\n", "NO_COLOR", ".SH ENVIRONMENT\n"})
    EXPECT_THAT(manual.out, HasSubstr(part));
}

TEST(CommandLine, IsQuietWhenAsked) {
  const TemporaryDirectory directory;
  const Arguments create{
      "new",     "--user", argument(directory / "u"), "--name", "N", "--audio-effect", "E",
      "--param", "E.x=1",  "--audio-effect",          "Bare"};
  EXPECT_THAT(runTool(create).err, HasSubstr("kostyle: notice: effects without parameters"));
  expectSuccess(runTool(create + Arguments{"--quiet"}));
  expectSuccess(runTool(Arguments{"-q"} + create));
}

#if defined(_WIN32)
TEST(CommandLine, ProgramTellsItsVersion) {
  const fs::path tool = fs::absolute(fs::u8path(KOSTYLE_TOOL)).make_preferred();
  const HMODULE module = LoadLibraryExW(tool.c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE);
  ASSERT_NE(module, nullptr);
  const HRSRC found = FindResourceW(module, MAKEINTRESOURCEW(1), MAKEINTRESOURCEW(16));
  ASSERT_NE(found, nullptr);
  const auto* const units = static_cast<const wchar_t*>(LockResource(LoadResource(module, found)));
  const std::wstring resource(units, SizeofResource(module, found) / sizeof(wchar_t));
  const std::string version = KOSTYLE_VERSION_STRING;
  for (const std::wstring& text :
       {std::wstring(L"kostyle.exe"), std::wstring(version.begin(), version.end())})
    EXPECT_NE(resource.find(text), resource.npos);
  FreeLibrary(module);
}
#endif

#if !defined(_WIN32)
TEST(CommandLine, ReportsHelpThatCannotBeWritten) {
  const TemporaryDirectory directory;
  EXPECT_EQ(runToolWithoutOutput(directory / "err", {"--help"}), 1);
  EXPECT_THAT(readFile(directory / "err"),
              HasSubstr("the output cannot be written: No space left on device\n"));
}

// Nor does what is printed get into a file that is opened later.
TEST(CommandLine, NoticesThatCannotBePrintedChangeNoExitCode) {
  for (const char* script :
       {R"("$0" "$@" 2>&-)", R"("$0" "$@" 2>/dev/full)",
        R"(mkfifo "$HOME/p"; : <"$HOME/p" & exec 9>"$HOME/p"; wait; "$0" "$@" 2>&9)"}) {
    const TemporaryDirectory directory;
    const OtherVariable home("HOME", argument(directory.path()));
    const Outcome outcome =
        runToolInScript(script, {"new", "--user", argument(directory / "u"), "--name", "N",
                                 "--audio-effect", "E", "--param", "E.x=1", "--audio-effect", "Bare"});
    EXPECT_EQ(outcome.exitCode, 0) << script << outcome.err;
    ASSERT_EQ(entryNames(directory / "u").size(), 1u);
    const std::string id = outcome.out.substr(0, outcome.out.find('\t'));
    EXPECT_STREQ(styleIn(directory / "u" / (id + ".kostyle"))["name"].GetString(), "N");
  }
}

TEST(CommandLine, OutputThatIsClosedIsAFailure) {
  const Outcome outcome = runToolInScript(R"("$0" "$@" >&-)", {"--help"});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_EQ(outcome.err, "kostyle: the output cannot be written: Bad file descriptor\n");
}

#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
TEST(CommandLine, NamesTheFileForWhichMemoryIsMissing) {
  const TemporaryDirectory directory;
  std::string parameters;
  for (int i = 0; i < 600000; ++i)
    parameters += (i ? ",\"p" : "\"p") + std::to_string(i) + "\":" + std::to_string(i);
  writeFile(directory / "large.kostyle", document("L", "Large", parameters, ""));
  const std::string limited = R"(ulimit -v 60000; exec "$0" "$@")";
  expectFailure(runToolInScript(limited, {"show", argument(directory / "large.kostyle")}), 1,
                "large.kostyle: there is not enough memory for the file");
  expectFailure(runToolInScript(limited, {"list", "--user", argument(directory.path())}), 1,
                "there is not enough memory for the styles; the largest file is " +
                    printed(directory / "large.kostyle"));
}
#endif
#endif

}  // namespace
}  // namespace test
