// kostyle edit, with editors that are commands.
#include "support/encodings.h"
#include "tool/environment.h"
#include "tool/tool.h"

#if !defined(_WIN32)
#include <pty.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace test {
namespace {

const std::string indented =
    "{\n    \"id\": \"S\",\n    \"name\": \"N\",\n    \"audioEffect\": {\n        \"E\": {\n"
    "            \"parameter\": {\n                \"p\": 1\n            }\n        }\n    }\n}\n";

std::string replacedAll(std::string text, const std::string& part, const std::string& by) {
  for (std::size_t at = text.find(part); at != text.npos; at = text.find(part, at + by.size()))
    text.replace(at, part.size(), by);
  return text;
}

class Edit : public testing::Test {
 protected:
  Edit() { writeFile(file_, document("S", "N")); }

  /// The file is edited with a command that is given its name.
  Outcome editWith(const std::string& editor, const Arguments& arguments) const {
    const OtherVariable visual("VISUAL", std::nullopt);
    const OtherVariable other("EDITOR", editor);
    const OtherTemporaryPath temporary(temporary_);
    const int exitCode = runTo(directory_ / "out", directory_ / "err", KOSTYLE_TOOL, arguments);
    return {exitCode, readPrinted(directory_ / "out"), readPrinted(directory_ / "err")};
  }
  Outcome editWith(const std::string& editor) const {
    return editWith(editor, {"edit", argument(file_)});
  }

  /// The editor saves this text, and copies what it was shown to shown().
  Outcome editTo(const std::string& text) const { return editWith(saving(text)); }

  std::string saving(const std::string& text) const {
    writeFile(directory_ / "new.txt", text);
#if defined(_WIN32)
    writeFile(directory_ / "editor.bat", "@copy /y %1 \"" + printed(directory_ / "shown.txt") +
                                             "\" >nul\r\n@copy /y \"" +
                                             printed(directory_ / "new.txt") + "\" %1 >nul\r\n");
    return '"' + printed(directory_ / "editor.bat") + '"';
#else
    writeFile(directory_ / "editor",
              "cp \"$2\" '" + argument(directory_ / "shown.txt") + "'\ncp \"$1\" \"$2\"\n");
    return "sh '" + argument(directory_ / "editor") + "' '" + argument(directory_ / "new.txt") + "'";
#endif
  }
  std::string shown() const { return readFile(directory_ / "shown.txt"); }

  void expectWritten(const Outcome& outcome) const {
    expectSuccess(outcome);
    EXPECT_EQ(outcome.out, "S\t" + printed(file_) + "\n");
    EXPECT_THAT(entryNames(temporary_), ElementsAre());
    EXPECT_THAT(entryNames(folder_), ElementsAre("mine.kostyle"));
  }

  /// The text is in the file that the message names, and the style's file is as it was.
  void expectKept(const Outcome& outcome, const std::string& why, const std::string& text,
                  const std::string& before = document("S", "N")) const {
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_EQ(outcome.out, "");
    EXPECT_THAT(outcome.err, HasSubstr(why));
    const std::string words = "; the edited text is kept in ";
    const std::size_t at = outcome.err.rfind(words);
    ASSERT_NE(at, std::string::npos) << outcome.err;
    const fs::path kept =
        fs::u8path(outcome.err.substr(at + words.size(), outcome.err.size() - at - words.size() - 1));
    EXPECT_EQ(kept.filename(), "mine.kostyle");
    EXPECT_EQ(readFile(kept), text);
    EXPECT_EQ(readFile(file_), before);
    EXPECT_THAT(entryNames(folder_), ElementsAre("mine.kostyle"));
    fs::remove_all(kept.parent_path());
    EXPECT_THAT(entryNames(temporary_), ElementsAre());
  }

  void expectNothingKept(const Outcome& outcome, const std::string& why) const {
    expectFailure(outcome, 1, why);
    EXPECT_THAT(outcome.err, testing::Not(HasSubstr("is kept in")));
    EXPECT_EQ(readFile(file_), document("S", "N"));
    EXPECT_THAT(entryNames(temporary_), ElementsAre());
  }

  const TemporaryDirectory directory_;
  const fs::path temporary_ = directory_.folder("temporary files");
  const fs::path folder_ = directory_.folder("my styles");
  const fs::path file_ = folder_ / "mine.kostyle";
};

TEST_F(Edit, KeepsATextThatIsTooLargeToBeReadBack) {
  const std::string large = indented + std::string(2000, ' ');
  expectKept(editWith(saving(large), {"edit", argument(file_), "--max-size", "1k"}),
             "the file is larger than 1024 bytes", large);
}

TEST_F(Edit, ShowsADocumentInOneLineWithMany) {
  const std::string text = replacedAll(indented, "1", "2");
  expectWritten(editTo(text));
  EXPECT_EQ(shown(), indented);
  EXPECT_EQ(readFile(file_), text.substr(0, text.size() - 1));
}

TEST_F(Edit, ShowsEverythingThatIsInALine) {
  writeFile(
      file_,
      R"( {"id":"S","name":"\u0041\u202e","x":[],"y":{},"n":1.50e1,"audioEffect":{"E":{"parameter":{"p":1}},"E":null}} )");
  expectWritten(editTo(document("S", "M")));
  EXPECT_EQ(
      shown(),
      " {\n    \"id\": \"S\",\n    \"name\": \"\\u0041\\u202e\",\n    \"x\": [],\n    \"y\": {},\n"
      "    \"n\": 1.50e1,\n    \"audioEffect\": {\n        \"E\": {\n            \"parameter\": {\n"
      "                \"p\": 1\n            }\n        },\n        \"E\": null\n    }\n} \n");
}

TEST_F(Edit, LeavesLinesAsTheyAre) {
  const std::string lines =
      "{ \"id\": \"S\",\n\t\"name\":  \"N\", \"audioEffect\": {\"E\": {\"parameter\":\n{\"p\": "
      "0.40}}}}\n\n";
  writeFile(file_, lines);
  expectWritten(editTo(replacedAll(lines, "\"N\"", "\"M\"")));
  EXPECT_EQ(shown(), lines);
  EXPECT_EQ(readFile(file_), replacedAll(lines, "\"N\"", "\"M\""));
}

TEST_F(Edit, KeepsEncodingMarkAndLineEnds) {
  const std::string other = replacedAll(indented, "\"N\"", u8"\"Nachtfähre 港 😀\"");
  const std::vector<std::string> ends{"\n", "\r\n", "\r"};
  std::size_t next = 0;
  for (const Encoding encoding : allEncodings())
    for (const bool mark : {false, true}) {
      const std::string& end = ends[next++ % ends.size()];
      writeFile(file_, encoded(replacedAll(indented, "\n", end), encoding, mark));
      expectWritten(editTo(other));
      EXPECT_EQ(shown(), indented);
      EXPECT_EQ(readFile(file_), encoded(replacedAll(other, "\n", end), encoding, mark));
    }
}

TEST_F(Edit, TakesWhatEditorsDoToTexts) {
  writeFile(file_, indented);
  const std::string other = replacedAll(indented, "1", "2");
  for (const std::string& saved : {replacedAll(other, "\n", "\r\n"), "\xEF\xBB\xBF" + other,
                                   encoded(other, Encoding::utf16le, true)}) {
    writeFile(file_, indented);
    expectWritten(editTo(saved));
    EXPECT_EQ(readFile(file_), other);
  }
}

TEST_F(Edit, MixedLineEndsStay) {
  const std::string mixed = replacedAll(indented, "\"name\": \"N\",\n", "\"name\": \"N\",\r\n");
  writeFile(file_, mixed);
  const std::string other = replacedAll(mixed, "1", "2");
  expectWritten(editTo(other));
  EXPECT_EQ(shown(), mixed);
  EXPECT_EQ(readFile(file_), other);
}

TEST_F(Edit, WritesNothingWhenNothingChanges) {
  const auto before = fs::last_write_time(file_) - std::chrono::hours(1);
  fs::last_write_time(file_, before);
  const Outcome outcome = editTo(indented);
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_EQ(outcome.out, "");
  EXPECT_EQ(outcome.err, "kostyle: notice: " + printed(file_) + ": nothing was changed\n");
  EXPECT_EQ(fs::last_write_time(file_), before);
  EXPECT_THAT(entryNames(temporary_), ElementsAre());
}

TEST_F(Edit, KeepsATextWithErrors) {
  const std::string text = replacedAll(indented, "\"p\": 1", "\"p\": ");
  const Outcome outcome = editTo(text);
  EXPECT_THAT(outcome.err, HasSubstr("mine.kostyle:8:13: error: "));
  EXPECT_THAT(outcome.err, HasSubstr("1 error, 0 warnings, 0 notes in 1 file\n"));
  expectKept(outcome, printed(file_) + ": left as it is: the text has errors", text);
}

TEST_F(Edit, TellsWarningsAndWrites) {
  const std::string text = replacedAll(indented, "\"name\"", "\"nmae\": 1,\n    \"name\"");
  const Outcome outcome = editTo(text);
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_THAT(outcome.err,
              StartsWith(printed(file_) + ":3:5: warning: the member \"nmae\" is unknown"));
  EXPECT_THAT(outcome.err, HasSubstr("did you mean \"name\"?"));
  EXPECT_EQ(readFile(file_) + "\n", text);
}

TEST_F(Edit, MendsAFileThatIsRefused) {
  writeFile(file_, "{\"id\": \"S\",");
  expectWritten(editTo(indented));
  EXPECT_EQ(shown(), "{\"id\": \"S\",\n");
  EXPECT_EQ(readFile(file_) + "\n", indented);
}

TEST_F(Edit, RefusesBytesThatAreNoText) {
  writeFile(file_, "{\"id\": \"\xFF\"}");
  const Outcome outcome = editTo(indented);
  expectFailure(outcome, 1, "mine.kostyle: not valid UTF-8: no editor could keep its bytes");
  EXPECT_FALSE(fs::exists(directory_ / "shown.txt"));
  writeFile(file_, document("S", "N"));
  expectKept(editTo("{\xFF}"), "not valid UTF-8", "{\xFF}");
}

TEST_F(Edit, RefusesWhatAnotherProgramHasChanged) {
  const std::string text = replacedAll(indented, "1", "2");
  const std::string save = saving(text);
#if defined(_WIN32)
  const std::string editor =
      "copy /y \"" + printed(directory_ / "other.txt") + "\" \"" + printed(file_) + "\" >nul & " + save;
#else
  const std::string editor =
      "cp '" + argument(directory_ / "other.txt") + "' '" + argument(file_) + "'; " + save;
#endif
  const std::string other = document("S", "Other");
  writeFile(directory_ / "other.txt", other);
  expectKept(editWith(editor), "another program has changed the file meanwhile", text, other);
}

TEST_F(Edit, RefusesAnIdentifierThatAnotherHas) {
  const fs::path other = folder_ / "other.kostyle";
  writeFile(other, document("T", "Other"));
  const std::string text = replacedAll(indented, "\"S\"", "\"T\"");
  for (const Arguments& directories : {Arguments{}, {"--user", argument(folder_)}}) {
    const Outcome outcome = editWith(saving(text), Arguments{"edit", argument(file_)} + directories);
    EXPECT_THAT(outcome.err, HasSubstr("other.kostyle has the identifier \"T\""));
    fs::rename(other, directory_ / "other");
    expectKept(outcome, "left as it is", text);
    fs::rename(directory_ / "other", other);
  }
  fs::remove(other);
  const Outcome outcome = editTo(text);
  expectSuccess(outcome);
  EXPECT_EQ(outcome.out, "T\t" + printed(file_) + "\n");
}

TEST_F(Edit, TakesAnIdentifier) {
  expectWritten(
      editWith(saving(replacedAll(indented, "1", "2")), {"edit", "S", "--user", argument(folder_)}));
  expectFailure(editWith("false", {"edit", "S", "--system", argument(folder_)}), 1,
                "a system style is never changed");
}

TEST_F(Edit, NeedsAnEditor) {
  expectNothingKept(editWith(""), "no editor is known: VISUAL or EDITOR must name one");
}

TEST_F(Edit, PrefersVisual) {
  const OtherVariable editor("EDITOR", "exit 3");
  const OtherVariable visual("VISUAL", saving(indented));
  const Outcome outcome = runTool({"edit", argument(file_)});
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_EQ(shown(), indented);
}

TEST_F(Edit, RefusesWhenTheEditorFails) {
#if defined(_WIN32)
  expectNothingKept(editWith("exit 1 & rem"), "ended with exit code 1");
  const std::string saving = this->saving("half a te") + " \"%KOSTYLE_EDITED_FILE%\" & exit 1 & rem";
#else
  expectNothingKept(editWith("false"), "the editor false ended with exit code 1");
  const std::string saving = "f() { " + this->saving("half a te") + " \"$1\"; exit 1; }; f";
#endif
  expectKept(editWith(saving), "ended with exit code 1", "half a te");
}

TEST_F(Edit, RefusesWhenThereIsNoSuchEditor) {
  const Outcome outcome = editWith("no-such-editor-here");
  EXPECT_EQ(outcome.exitCode, 1);
  // Behind what the shell says.
  EXPECT_THAT(outcome.err, HasSubstr("kostyle: the editor no-such-editor-here ended with exit code"));
  EXPECT_THAT(entryNames(temporary_), ElementsAre());
}

TEST_F(Edit, RefusesWhenTheEditorTakesTheFileAway) {
#if defined(_WIN32)
  expectNothingKept(editWith("del"), "the file cannot be opened");
#else
  expectNothingKept(editWith("rm"), "the file cannot be opened");
#endif
}

TEST_F(Edit, KeepsALink) {
  const fs::path target = directory_ / "real.txt";
  fs::rename(file_, target);
  std::error_code error;
  fs::create_symlink(target, file_, error);
  if (error) GTEST_SKIP() << "links cannot be made here: " << error.message();
  expectWritten(editTo(replacedAll(indented, "1", "2")));
  EXPECT_TRUE(fs::is_symlink(file_));
  EXPECT_THAT(readFile(target), HasSubstr("\"p\": 2"));
}

TEST_F(Edit, OpensNoDirectory) {
  expectFailure(editWith("false", {"edit", argument(folder_)}), 1,
                "my styles: a directory, not a file");
  expectFailure(editWith("false", {"edit", argument(folder_ / "none")}), 2, "no such file");
}

#if !defined(_WIN32)
TEST_F(Edit, KeepsTheTextOfAnEditorThatIsKilled) {
  const std::string editor = "f() { " + saving("half a te") + " \"$1\"; kill -9 $$; }; f";
  expectKept(editWith(editor), "was ended by signal 9", "half a te");
}

TEST_F(Edit, KeepsTheTextWhenTheFileMayNotBeReplaced) {
  if (std::system("command -v setpriv > /dev/null") != 0) GTEST_SKIP() << "setpriv is missing";
  const std::string text = replacedAll(indented, "1", "2");
  const std::string command = saving(text);
  writeFile(directory_ / "closing", "chmod 555 '" + argument(folder_) + "'; " + command + " \"$1\"");
  const OtherVariable editor("VISUAL", "sh '" + argument(directory_ / "closing") + "'");
  const OtherTemporaryPath temporary(temporary_);
  const std::string script =
      geteuid() == 0 ? "setpriv --bounding-set=-dac_override \"$0\" \"$@\"" : "\"$0\" \"$@\"";
  const int exitCode = runTo(directory_ / "out", directory_ / "err", "/bin/bash",
                             {"-c", script, KOSTYLE_TOOL, "edit", argument(file_)});
  fs::permissions(folder_, fs::perms::owner_all);
  expectKept({exitCode, readPrinted(directory_ / "out"), readPrinted(directory_ / "err")},
             printed(folder_) + ": no file can be made in it: Permission denied", text);
}

TEST_F(Edit, BeginsNoTextThatCannotBeWritten) {
  const OtherVariable visual("VISUAL", "touch '" + argument(directory_ / "begun") + "'; true");
  for (const fs::path& path : {file_, folder_}) {
    fs::permissions(path, fs::perms::owner_write, fs::perm_options::remove);
    const Outcome outcome = runUnprivileged({"edit", argument(file_)});
    fs::permissions(path, fs::perms::owner_write, fs::perm_options::add);
    expectFailure(outcome, 1,
                  path == file_ ? "mine.kostyle: cannot be written: Permission denied"
                                : printed(folder_) + ": no file can be made in it: Permission denied");
  }
  EXPECT_FALSE(fs::exists(directory_ / "begun"));
}

TEST_F(Edit, KeepsTheTextWhenNothingCanBePrinted) {
  const OtherVariable visual("VISUAL", saving(replacedAll(indented, "1", "2")));
  const OtherTemporaryPath temporary(temporary_);
  const fs::path err = directory_ / "err";
  const int exitCode = runToolWithoutOutput(err, {"edit", argument(file_)});
  expectKept({exitCode, "", readFile(err)}, "the output cannot be written",
             replacedAll(indented, "1", "2"));
}

/// What the tool prints to a terminal at which these lines are typed.
Outcome runAtTerminal(const std::string& typed, const Arguments& arguments) {
  int terminal = -1;
  const pid_t process = forkpty(&terminal, nullptr, nullptr, nullptr);
  if (process < 0) throw std::runtime_error("no terminal");
  if (process == 0) {
    std::vector<char*> pointers{const_cast<char*>(KOSTYLE_TOOL)};
    for (const std::string& argument : arguments)
      pointers.push_back(const_cast<char*>(argument.c_str()));
    pointers.push_back(nullptr);
    execv(KOSTYLE_TOOL, pointers.data());
    _exit(127);
  }
  EXPECT_EQ(write(terminal, typed.data(), typed.size()), static_cast<ssize_t>(typed.size()));
  std::string printed;
  char block[4096];
  for (ssize_t size = 0; (size = read(terminal, block, sizeof block)) > 0;)
    printed.append(block, static_cast<std::size_t>(size));
  close(terminal);
  int status = 0;
  waitpid(process, &status, 0);
  return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, printed, ""};
}

class EditAtTerminal : public Edit {
 protected:
  /// An editor that saves one text after the other, the last one again and again.
  std::string savingInTurn(const std::vector<std::string>& texts) const {
    for (std::size_t i = 0; i < texts.size(); ++i)
      writeFile(directory_ / ("turn" + std::to_string(i)), texts[i]);
    writeFile(directory_ / "turns", "cd '" + argument(directory_.path()) +
                                        "'; n=$(cat count 2>/dev/null || echo 0)\n"
                                        "cp turn$n \"$1\"; echo $((n + 1)) > count\n");
    return "sh '" + argument(directory_ / "turns") + "'";
  }
  Outcome editInTurn(const std::vector<std::string>& texts, const std::string& typed) const {
    const OtherVariable visual("VISUAL", savingInTurn(texts));
    const OtherTemporaryPath temporary(temporary_);
    return runAtTerminal(typed, {"edit", argument(file_)});
  }
};

TEST_F(EditAtTerminal, EditsAgainWhenAsked) {
  const std::string good = replacedAll(indented, "1", "2");
  const Outcome outcome = editInTurn({"{", "[", good}, "\ny\n");
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_THAT(outcome.out, HasSubstr("Edit again? [Y/n] "));
  EXPECT_EQ(readFile(file_) + "\n", good);
  EXPECT_THAT(entryNames(temporary_), ElementsAre());
}

TEST_F(EditAtTerminal, GivesUpWhenAsked) {
  Outcome outcome = editInTurn({"{", "["}, "n\n");
  outcome.err = replacedAll(outcome.out, "\r\n", "\n");
  outcome.out.clear();
  expectKept(outcome, "the text has errors", "{");
}

TEST_F(EditAtTerminal, WritesWarningsUnlessAsked) {
  const std::string warned = replacedAll(indented, "\"name\"", "\"nmae\": 1,\n    \"name\"");
  const Outcome outcome = editInTurn({warned}, "\n");
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_THAT(outcome.out, HasSubstr("Edit again? [y/N] "));
  EXPECT_EQ(readFile(file_) + "\n", warned);
}
#endif

}  // namespace
}  // namespace test
