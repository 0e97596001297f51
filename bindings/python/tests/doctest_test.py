"""The examples in the documentation strings and in the package's README do what they show."""
import contextlib
import doctest
import importlib
import io
import os
import pathlib
import pkgutil
import re
import shutil
import tempfile
import unittest
from typing import Any, Dict

import kostyle

from support import EXAMPLES, SOURCE


class Example:
    """What an example finds: a folder of its own, and a manager of the styles in it."""

    def __init__(self) -> None:
        self.temporary = tempfile.TemporaryDirectory()
        self.folder = pathlib.Path(self.temporary.name)
        for kind in ("system", "user"):
            shutil.copytree(EXAMPLES / kind, self.folder / kind)
        shutil.copy(EXAMPLES / "broken" / "half_a_file.kostyle", self.folder / "user")
        self.manager = kostyle.Manager("documentation", self.folder / "system", self.folder / "user")
        self.manager.read()

    def close(self) -> None:
        self.manager.close()
        self.temporary.cleanup()


def set_up(test: doctest.DocTest) -> None:
    example = Example()
    test.globs.update(kostyle=kostyle, manager=example.manager, system_directory=example.folder / "system",
                      user_directory=example.folder / "user", example=example)


def tear_down(test: doctest.DocTest) -> None:
    test.globs["example"].close()


class ReadmeTest(unittest.TestCase):
    def test_runs_and_prints_what_it_says(self) -> None:
        readme = (SOURCE / "bindings" / "python" / "README.md").read_text(encoding="utf-8")
        blocks = re.findall(r"```python\n(.*?)```", readme, re.S)
        self.assertGreaterEqual(len(blocks), 4)
        example = Example()
        before = os.getcwd()
        os.chdir(example.folder)
        try:
            names: Dict[str, Any] = {}
            for block in blocks:
                self.run_block(block, names)
        finally:
            os.chdir(before)
            example.close()

    def run_block(self, block: str, names: Dict[str, Any]) -> None:
        printed = io.StringIO()
        with contextlib.redirect_stdout(printed):
            exec(block, names)
        promised = re.findall(r"# prints (.*)", block)
        self.assertEqual([line for line in promised if line not in printed.getvalue().splitlines()], [])


def load_tests(loader: unittest.TestLoader, tests: unittest.TestSuite, pattern: Any) -> unittest.TestSuite:
    for module in pkgutil.iter_modules(kostyle.__path__, "kostyle."):
        suite = doctest.DocTestSuite(importlib.import_module(module.name), setUp=set_up, tearDown=tear_down)
        tests.addTests(suite)
    return tests
