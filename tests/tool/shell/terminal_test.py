"""What the tool does when somebody sits at a terminal: widths, colours, questions, progress.

usage: terminal_test.py TOOL STYLES
"""
import os
import pathlib
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import time
import unicodedata
import unittest

from pseudo_terminal import Terminal

TOOL = STYLES = None
DOCUMENT = '{{"id":"{0}","name":"{0}","audioEffect":{{"E":{{"parameter":{{"p":1}}}}}}}}'


def width(text):
    return sum(0 if unicodedata.category(c) in ("Mn", "Me", "Cf") else 2 if unicodedata.east_asian_width(c) in "WF" else 1
               for c in text)


class TerminalTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        shutil.copytree(STYLES, self.folder / "styles")

    def write(self, name, text=None):
        (self.folder / name).parent.mkdir(exist_ok=True)
        (self.folder / name).write_text(text or DOCUMENT.format(pathlib.Path(name).stem), encoding="utf-8")

    def start(self, *arguments, columns=80, variables=None, **options):
        environment = {key: value for key, value in os.environ.items() if key not in ("COLUMNS", "NO_COLOR")}
        environment.update({"TERM": "xterm", **(variables or {})})
        terminal = Terminal(columns)
        terminal.start([TOOL, *arguments], cwd=self.folder, env=environment, **options)
        return terminal

    def run_tool(self, *arguments, **options):
        terminal = self.start(*arguments, **options)
        return terminal.finish(), terminal.text

    # Widths

    def test_a_listing_fits_the_terminal(self):
        for columns in (160, 80, 50, 30):
            code, text = self.run_tool("list", "--system", "styles/system", columns=columns)
            self.assertEqual(code, 0)
            self.assertLessEqual(max(map(width, text.splitlines())), columns, text)
            self.assertIn("…" if columns > 30 else "NAME", text)
            self.assertEqual("PATH" in text, columns >= 80, text)

    def test_columns_of_the_environment_win(self):
        _, text = self.run_tool("list", "--system", "styles/system", columns=160, variables={"COLUMNS": "40"})
        self.assertLessEqual(max(map(width, text.splitlines())), 40)

    def test_wide_is_wide(self):
        _, text = self.run_tool("list", "--system", "styles/system", "--wide", columns=40)
        self.assertIn("styles/system/harbour_night.kostyle", text)
        self.assertNotIn("…", text)

    # Colours

    def test_colours_are_for_terminals_that_want_them(self):
        colourful = self.run_tool("check", "styles/broken")[1]
        self.assertIn("\x1b[1;31m", colourful)
        for variables in ({"NO_COLOR": "1"}, {"TERM": "dumb"}):
            self.assertNotIn("\x1b", self.run_tool("check", "styles/broken", variables=variables)[1])
        piped = subprocess.run([TOOL, "check", "styles/broken"], cwd=self.folder, stdout=subprocess.PIPE).stdout
        self.assertNotIn(b"\x1b", piped)

    def test_styles_do_not_drive_the_terminal(self):
        hostile = "\\u001b]0;x\\u0007\\u202e\\u2066\\u009b31m"
        self.write("hostile/a.kostyle", DOCUMENT.replace('"name":"{0}"', f'"name":"{hostile}"').format("a"))
        for arguments in (["list", "--user", "hostile"], ["list", "--user", "hostile", "--json"],
                          ["show", "hostile/a.kostyle"], ["show", "hostile/a.kostyle", "--json"]):
            text = self.run_tool(*arguments, columns=200)[1]
            self.assertIn("\\u202e\\u2066\\u009b31m", text)
            self.assertFalse([c for c in text if unicodedata.category(c) in ("Cc", "Cf") and c != "\n"], text)

    # Questions

    def answered(self, answers, *arguments):
        terminal = self.start("remove", "--user", "user", *arguments)
        for question, answer in answers:
            terminal.wait_for(question)
            terminal.send(answer)
        return terminal.finish(), terminal.text

    def names(self):
        return sorted(path.name for path in (self.folder / "user").iterdir())

    def test_removing_asks_for_each_style(self):
        for name in "abcd":
            self.write(f"user/{name}.kostyle")
        code, text = self.answered([('"a" (a), user/a.kostyle? [y/N] ', "n\n"), ('Remove "b"', "y\n"),
                                    ('Remove "c"', "\n"), ('Remove "d"', "\x04")], "a", "b", "c", "d")
        self.assertEqual((code, self.names()), (0, ["a.kostyle", "c.kostyle", "d.kostyle"]), text)

    def test_removing_does_not_ask_when_told_not_to(self):
        self.write("user/a.kostyle")
        self.assertEqual(self.answered([], "a", "--yes"), (0, ""))
        self.assertEqual(self.names(), [])

    def test_removing_takes_no_other_file_than_the_one_shown(self):
        self.write("user/a.kostyle")
        terminal = self.start("remove", "--user", "user", "a")
        terminal.wait_for("[y/N] ")
        self.write("user/a.kostyle", DOCUMENT.format("other"))
        terminal.send("y\n")
        self.assertEqual(terminal.finish(), 1)
        self.assertIn("kostyle: user/a.kostyle: left as it is, because it has changed since it was read", terminal.text)
        self.assertEqual(self.names(), ["a.kostyle"])

    def test_removing_says_which_file_takes_the_place(self):
        for name in "ab":
            self.write(f"user/{name}.kostyle", DOCUMENT.format("same"))
        code, text = self.answered([("takes its place? [y/N] ", "y\n")], "same")
        self.assertEqual(code, 0, text)
        removed, other = re.search(r'Remove "same" \(same\), user/(.*), so that user/(.*) takes its place', text).groups()
        self.assertEqual((self.names(), {removed, other}), ([other], {"a.kostyle", "b.kostyle"}))

    # Editing

    def test_a_text_is_found_by_who_ends_the_command_instead_of_answering(self):
        self.write("a.kostyle")
        self.write("editor", "echo '{' > \"$1\"\n")
        terminal = self.start("edit", "a.kostyle", variables={"EDITOR": "sh ./editor", "TMPDIR": str(self.folder)})
        terminal.wait_for("Edit again? [Y/n] ")
        terminal.process.send_signal(signal.SIGINT)
        self.assertEqual(terminal.finish(), -signal.SIGINT)
        text = pathlib.Path(re.search(r"The text is in (.*)\n", terminal.text)[1])
        self.assertEqual(text.read_text(), "{\n")
        self.assertEqual((self.folder / "a.kostyle").read_text(), DOCUMENT.format("a"))

    # Progress

    def slowly_checked(self, *more, **options):
        """The check of three files, one of which comes from a pipe after a while."""
        self.write("a.kostyle")
        self.write("b.kostyle")
        terminal = self.start("check", "a.kostyle", "-", "b.kostyle", "--jobs", "1", *more, stdin=subprocess.PIPE,
                              stdout=subprocess.DEVNULL, **options)
        time.sleep(1)
        terminal.process.stdin.write(DOCUMENT.format("piped").encode())
        terminal.process.stdin.close()
        self.assertEqual(terminal.finish(), 0, terminal.text)
        return terminal.text

    def test_long_work_shows_how_far_it_is(self):
        text = self.slowly_checked(columns=40)
        self.assertRegex(text, r"^(\r\x1b\[Kchecking 2 of 3 \[#+ +\])+(\r\x1b\[Kchecking 3 of 3 \[#+\])?\r\x1b\[K$")
        self.assertTrue(all(len(part) < 40 for part in text.split("\r\x1b[K")))

    def test_formatting_shows_how_far_it_is(self):
        self.write("a.kostyle")
        terminal = self.start("format", "--check", "a.kostyle", "-", "a.kostyle", stdin=subprocess.PIPE, columns=40,
                              stdout=subprocess.DEVNULL)
        time.sleep(1)
        terminal.process.stdin.write(DOCUMENT.format("piped").encode())
        terminal.process.stdin.close()
        self.assertEqual(terminal.finish(), 1)
        self.assertRegex(terminal.text, r"^(\r\x1b\[Kformatting 2 of 3 \[#+ +\])\r\x1b\[K$")

    def test_progress_is_for_those_who_want_it(self):
        self.assertEqual(self.slowly_checked("--quiet"), "")
        self.assertEqual(self.slowly_checked(variables={"TERM": "dumb"}), "")

    def test_short_work_shows_none(self):
        self.assertEqual(self.run_tool("check", "styles/system/morning_light.kostyle", stdout=subprocess.DEVNULL)[1], "")


if __name__ == "__main__":
    TOOL, STYLES = map(os.path.abspath, sys.argv[1:3])
    unittest.main(argv=sys.argv[:1])
