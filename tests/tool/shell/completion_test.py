"""Completion in the shells themselves, with keys pressed in a terminal.

usage: completion_test.py TOOL SHELL
"""
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

from pseudo_terminal import Terminal

TOOL = SHELL = None
BEGIN, END, TAB = "\x01", "\x05", "\t"
START = {
    "bash": (["bash", "--norc", "-i"], "PS1='ready> '; bind 'set bell-style none'; source {script}\n"),
    "zsh": (["zsh", "-f", "-i"], "PS1='ready> '; bindkey -e; unsetopt zle_bracketed_paste beep; autoload -U compinit;"
                                 " compinit -D -u; source {script}\n"),
}


class CompletionTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        self.home = self.folder / "home"
        self.work = self.folder / "work"
        for path in (self.home, self.work, self.work / "my styles", self.work / "other"):
            path.mkdir()
        (self.work / "night drive.kostyle").write_text("{}")
        self.script = self.folder / "script"
        self.script.write_bytes(subprocess.run([TOOL, "completion", SHELL], stdout=subprocess.PIPE, check=True).stdout)
        self.environment = {"HOME": str(self.home), "TERM": "xterm", "LC_ALL": "C.UTF-8",
                            "PATH": f"{pathlib.Path(TOOL).parent}:{os.environ['PATH']}"}

    def completed(self, line):
        """The line as it is after the tabulator key."""
        command, setup = START[SHELL]
        terminal = Terminal(200)
        terminal.start(command, cwd=self.work, env=self.environment)
        terminal.send(setup.format(script=self.script))
        terminal.wait_for("ready> ")
        terminal.send("echo is-$((1+1))\n")
        terminal.wait_for("is-2")
        # The line is turned into an argument, so that what is printed is what stands in it.
        terminal.send(line + TAB + END + ">'" + BEGIN + "echo 'line'='<" + END + "\n")
        terminal.wait_for("line=<")
        terminal.wait_for(">\r\n")
        terminal.send("exit\n")
        terminal.finish()
        start = terminal.text.rindex("line=<") + len("line=<")
        # A shell may take back what it puts behind a word for the next one.
        return terminal.text[start:terminal.text.index(">", start)].rstrip(" /=")

    def offered(self, line):
        """What fish offers."""
        script = f"source {self.script}; complete -C {line!r}"
        found = subprocess.run(["fish", "--no-config", "-c", script], cwd=self.work, env=self.environment,
                               stdout=subprocess.PIPE, text=True, check=True).stdout
        return [each.split("\t")[0] for each in found.splitlines()]

    CASES = [
        ("kostyle comp", "kostyle completion "),
        ("kostyle list --wi", "kostyle list --wide "),
        ("kostyle check --format sa", "kostyle check --format sarif "),
        ("kostyle list --sort lang", "kostyle list --sort languages "),
        ("kostyle completion fi", "kostyle completion fish "),
        ("kostyle list --user oth", "kostyle list --user other/"),
        ("kostyle list --user my", "kostyle list --user my\\ styles/"),
        ("kostyle show nig", "kostyle show night\\ drive.kostyle "),
    ]

    def test_completes(self):
        for line, expected in self.CASES:
            with self.subTest(line):
                if SHELL == "fish":
                    word = expected.rstrip().rsplit(" ", 1)[-1] if "\\" not in expected else expected.split(" ", 2)[-1]
                    word = word.replace("--user ", "").replace("\\ ", " ").rstrip()
                    self.assertEqual([each.replace("\\ ", " ") for each in self.offered(line)], [word])
                else:
                    self.assertEqual(self.completed(line), expected.rstrip(" /"))

    def test_options_are_those_of_the_command(self):
        if SHELL == "fish":
            self.assertIn("--add-genre", self.offered("kostyle set --"))
            self.assertNotIn("--add-genre", self.offered("kostyle list --"))
        else:
            self.assertEqual(self.completed("kostyle list --add-g"), "kostyle list --add-g")
            self.assertEqual(self.completed("kostyle set --add-g"), "kostyle set --add-genre")


if __name__ == "__main__":
    TOOL, SHELL = os.path.abspath(sys.argv[1]), sys.argv[2]
    if not shutil.which(SHELL):
        print(f"{SHELL} is missing")
        sys.exit(77)
    unittest.main(argv=sys.argv[:1])
