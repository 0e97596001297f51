"""The examples in the documentation strings and in the package's README do what they show."""
import ast
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
from typing import Any, Dict, Iterator, List

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


def undescribed(body: List[ast.stmt], prefix: str) -> Iterator[str]:
    """The public classes, functions, properties and fields of a class or module that say nothing of themselves."""
    for statement, following in zip(body, [*body[1:], None]):
        if isinstance(statement, (ast.FunctionDef, ast.ClassDef)) and not statement.name.startswith("_"):
            is_setter = any(isinstance(each, ast.Attribute) for each in statement.decorator_list)
            if not ast.get_docstring(statement) and not is_setter:
                yield prefix + statement.name
            if isinstance(statement, ast.ClassDef) and not is_internal(statement):
                yield from undescribed(statement.body, f"{prefix}{statement.name}.")
        elif isinstance(statement, ast.AnnAssign) and isinstance(statement.target, ast.Name):
            is_text = isinstance(following, ast.Expr) and isinstance(following.value, ast.Constant)
            if not statement.target.id.startswith("_") and not is_text:
                yield prefix + statement.target.id


def is_internal(statement: ast.ClassDef) -> bool:
    """Tables of C functions."""
    return any(isinstance(base, ast.Name) and base.id == "NamedTuple" for base in statement.bases)


class DescriptionTest(unittest.TestCase):
    def test_has_every_public_name(self) -> None:
        for module in pkgutil.iter_modules(kostyle.__path__):
            source = pathlib.Path(kostyle.__path__[0], f"{module.name}.py").read_text(encoding="utf-8")
            self.assertEqual(list(undescribed(ast.parse(source).body, f"{module.name}.")), [])
        self.assertEqual(list(undescribed(ast.parse("def f(): ...\nclass C:\n    'x'\n    a: int").body, "")),
                         ["f", "C.a"])


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
