"""The examples in the documentation strings do what they show."""
import doctest
import importlib
import pathlib
import pkgutil
import shutil
import tempfile
import unittest
from typing import Any

import kostyle

from support import EXAMPLES


def set_up(test: doctest.DocTest) -> None:
    temporary = tempfile.TemporaryDirectory()
    folder = pathlib.Path(temporary.name)
    for kind in ("system", "user"):
        shutil.copytree(EXAMPLES / kind, folder / kind)
    shutil.copy(EXAMPLES / "broken" / "half_a_file.kostyle", folder / "user")
    manager = kostyle.Manager("documentation", folder / "system", folder / "user")
    manager.read()
    test.globs.update(kostyle=kostyle, manager=manager, system_directory=folder / "system",
                      user_directory=folder / "user", temporary=temporary)


def tear_down(test: doctest.DocTest) -> None:
    test.globs["manager"].close()
    test.globs["temporary"].cleanup()


def load_tests(loader: unittest.TestLoader, tests: unittest.TestSuite, pattern: Any) -> unittest.TestSuite:
    for module in pkgutil.iter_modules(kostyle.__path__, "kostyle."):
        suite = doctest.DocTestSuite(importlib.import_module(module.name), setUp=set_up, tearDown=tear_down)
        tests.addTests(suite)
    return tests
