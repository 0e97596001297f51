"""The examples of the help work when they are pasted into a shell, and man has no complaint about the manual page.

usage: help_test.py TOOL STYLES
"""
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unittest

TOOL = STYLES = None


def output(*arguments):
    return subprocess.run([TOOL, *arguments], stdout=subprocess.PIPE, text=True, check=True).stdout


def section(text, heading):
    found = re.search(rf"^{heading}:\n((?:  .*\n)+)", text, re.M)
    return found.group(1) if found else ""


def commands():
    return re.findall(r"^  (\w[\w-]*) ", section(output("--help"), "Commands"), re.M)


def examples(text):
    """Commands, those that go on in the next line as one."""
    return [each.strip() for each in re.split(r"\n(?=  \S)", section(text, "Examples")) if each.strip()]


class HelpTest(unittest.TestCase):
    def paste(self, command):
        with tempfile.TemporaryDirectory() as folder:
            shutil.copytree(STYLES, pathlib.Path(folder) / "styles")
            shutil.rmtree(pathlib.Path(folder) / "styles/broken")
            subprocess.run(["git", "init", "-q", folder], check=True)
            environment = {**os.environ, "PATH": f"{pathlib.Path(TOOL).parent}:{os.environ['PATH']}", "EDITOR": "true"}
            return subprocess.run(["bash", "-c", command], cwd=folder, env=environment, stdin=subprocess.DEVNULL,
                                  stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)

    def test_examples_can_be_pasted(self):
        for command in ["", *commands()]:
            found = examples(output(*command.split(), "--help"))
            self.assertTrue(found, command)
            for example in found:
                with self.subTest(example):
                    done = self.paste(example)
                    # What is found is no failure.
                    self.assertIn(done.returncode, (0, 1) if command in ("check", "diff") else (0,), done.stderr)
                    self.assertNotRegex(done.stderr, r"(?m)^kostyle: (?!notice: )")

    def test_man_reads_the_manual_page(self):
        if not shutil.which("man"):
            self.skipTest("man is missing")
        with tempfile.NamedTemporaryFile("w", suffix=".1") as page:
            page.write(output("manual"))
            page.flush()
            done = subprocess.run(["man", "--warnings", "-E", "UTF-8", "-l", page.name], stdout=subprocess.PIPE,
                                  stderr=subprocess.PIPE, text=True, env={**os.environ, "MANWIDTH": "200"})
        self.assertEqual((done.returncode, done.stderr), (0, ""))
        # What is shown is what the help tells, commands and options alike.
        for command in commands():
            for option in re.findall(r"--[a-z-]+", section(output(command, "--help"), "Options")):
                self.assertIn(option, done.stdout)


if __name__ == "__main__":
    TOOL, STYLES = map(os.path.abspath, sys.argv[1:3])
    unittest.main(argv=sys.argv[:1])
