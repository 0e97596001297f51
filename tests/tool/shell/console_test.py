"""The tool of Windows in a console: Wine shows one in the terminal that it is started from.

usage: console_test.py EMULATOR TOOL STYLES
"""
import os
import pathlib
import re
import shutil
import sys
import tempfile
import tty
import unittest

from pseudo_terminal import Terminal

EMULATOR = TOOL = STYLES = None


class ConsoleTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        shutil.copytree(STYLES, self.folder / "styles")

    def start(self, *arguments, columns=200, **variables):
        terminal = Terminal(columns)
        tty.setraw(terminal.slave)  # keys are the console's to understand
        environment = {key: value for key, value in os.environ.items() if key not in ("COLUMNS", "NO_COLOR")}
        terminal.start([EMULATOR, TOOL, *arguments], cwd=self.folder,
                       env={**environment, "TERM": "xterm", **variables})
        return terminal

    def shown(self, *arguments, **options):
        terminal = self.start(*arguments, **options)
        code = terminal.finish()
        # The console itself hides the cursor and fills lines.
        return code, re.sub(r"\x1b\[(\?25[lh]|K)| +(?=\r?\n)", "", terminal.text)

    def test_shows_unicode(self):
        code, text = self.shown("show", "styles/system/harbour_night.kostyle")
        self.assertEqual(code, 0, text)
        self.assertTrue(text.startswith("港の夜\n├─ id: harbour-night\n"), text)
        self.assertIn("room: text \"大ホール\"\n", text)

    def test_shows_unicode_in_errors(self):
        code, text = self.shown("show", "дорога")
        self.assertEqual((code, text.split(":")[:2]), (2, ["kostyle", " дорога"]))

    def test_a_listing_fits(self):
        code, text = self.shown("list", "--user", "styles/user", "--columns", "id,path", columns=60)
        self.assertEqual(code, 0, text)
        self.assertTrue(all(len(line) <= 60 for line in text.splitlines()), text)
        self.assertIn("…", text)

    def test_colours_are_for_those_who_want_them(self):
        self.assertIn("\x1b[1;31merror", self.shown("check", "styles/broken")[1])
        self.assertNotIn("\x1b[1", self.shown("check", "styles/broken", NO_COLOR="1")[1])

    def test_removing_asks(self):
        for answer, left in (("n\r", True), ("y\r", False)):
            terminal = self.start("remove", "5b1f7c1e-2f0b-4a57-9d3e-7c1a64f0d201", "--user", "styles/user")
            terminal.wait_for("[y/N]")
            terminal.send(answer)
            self.assertEqual(terminal.finish(), 0, terminal.text)
            self.assertEqual((self.folder / "styles/user/my_first_style.kostyle").exists(), left)


if __name__ == "__main__":
    EMULATOR, TOOL, STYLES = map(os.path.abspath, sys.argv[1:4])
    unittest.main(argv=sys.argv[:1])
