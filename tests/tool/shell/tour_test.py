"""The tour of the tool is what a terminal shows: each command, run in order, prints what stands under it.

usage: tour_test.py TOOL STYLES PAGE

A line "..." stands for any lines. An identifier that the tool makes up differs each time: the first time that one of
the page is printed, it stands for what was printed there.
"""
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unittest

TOOL = STYLES = PAGE = None
IDENTIFIER = re.compile(r"\b[0-9a-f]{8}(?:-[0-9a-f]{4}){3}-[0-9a-f]{12}\b")


def steps(page):
    """Commands with the lines under them."""
    found = []
    for block in re.findall(r"^```console\n(.*?)^```$", page, re.M | re.S):
        for line in block.splitlines():
            if line.startswith("$ "):
                found.append((line[2:], []))
            elif found[-1][0].endswith("\\"):
                found[-1] = (f"{found[-1][0]}\n{line}", [])
            else:
                found[-1][1].append(line)
    return found


class Identifiers:
    """Which identifiers of the machine those of the page stand for."""

    def __init__(self):
        self.printed = {}

    def translated(self, text):
        return IDENTIFIER.sub(lambda match: self.printed.get(match.group(), match.group()), text)

    def learn(self, expected, line):
        for mine, printed in zip(IDENTIFIER.findall(expected), IDENTIFIER.findall(line)):
            self.printed.setdefault(mine, printed)


def fits(expected, lines, identifiers):
    if not expected:
        return not lines
    if expected[0] == "...":
        return any(fits(expected[1:], lines[start:], identifiers) for start in range(len(lines) + 1))
    if not lines or IDENTIFIER.sub("", expected[0]) != IDENTIFIER.sub("", lines[0]):
        return False
    identifiers.learn(expected[0], lines[0])
    return identifiers.translated(expected[0]) == lines[0] and fits(expected[1:], lines[1:], identifiers)


class TourTest(unittest.TestCase):
    def test_prints_what_the_page_shows(self):
        environment = {**os.environ, "PATH": f"{pathlib.Path(TOOL).parent}:{os.environ['PATH']}"}
        identifiers = Identifiers()
        tour = steps(pathlib.Path(PAGE).read_text(encoding="utf-8"))
        self.assertGreater(len(tour), 10)
        with tempfile.TemporaryDirectory() as folder:
            shutil.copytree(STYLES, pathlib.Path(folder) / "styles")
            for command, expected in tour:
                done = subprocess.run(["bash", "-c", identifiers.translated(command)], cwd=folder, env=environment,
                                      stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                                      encoding="utf-8")
                if not fits(expected, done.stdout.splitlines(), identifiers):
                    self.fail(f"$ {command}\nprinted\n{done.stdout}\ninstead of\n" + "\n".join(expected))

    def test_notices_what_differs(self):
        self.assertTrue(fits(["a", "...", "c"], ["a", "b", "b", "c"], Identifiers()))
        self.assertFalse(fits(["a", "...", "c"], ["a", "b"], Identifiers()))
        self.assertFalse(fits(["a"], ["a", "b"], Identifiers()))
        mine, other, third = ("1b58e16c-c87c-4a1c-bc0c-368ea7d69d9" + digit for digit in "123")
        self.assertTrue(fits([mine, mine], [other, other], Identifiers()))
        self.assertFalse(fits([mine, mine], [other, third], Identifiers()))


if __name__ == "__main__":
    TOOL, STYLES, PAGE = map(os.path.abspath, sys.argv[1:4])
    unittest.main(argv=sys.argv[:1])
