"""Where the library is looked for."""
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest
from typing import Optional

import kostyle
from kostyle.library import library_name, library_path


class LibraryTest(unittest.TestCase):
    def setUp(self) -> None:
        temporary = tempfile.TemporaryDirectory()
        self.addCleanup(temporary.cleanup)
        self.folder = pathlib.Path(temporary.name)
        package = pathlib.Path(kostyle.__file__).parent
        self.library = package / library_name()
        shutil.copytree(package, self.folder / "kostyle", ignore=shutil.ignore_patterns(library_name(), "__pycache__"))

    def run_python(self, statement: str, library: Optional[str] = None, **environment: str) -> str:
        """Runs a statement with a package that has no library beside it; gives what it printed."""
        variables = {**os.environ, "PYTHONPATH": str(self.folder), **environment}
        if library:
            variables["KOSTYLE_LIBRARY"] = library
        done = subprocess.run([sys.executable, "-c", f"import kostyle\n{statement}"], env=variables, check=True,
                              text=True, cwd=self.folder, capture_output=True)
        return done.stdout.strip()

    def test_lies_beside_the_modules(self) -> None:
        self.assertEqual(library_path(), str(self.library.resolve()))

    def test_is_the_one_of_the_environment_variable(self) -> None:
        self.assertEqual(self.run_python("print(kostyle.scan(['none'])[0].refusal.code)", str(self.library)), "None")
        relative = os.path.relpath(self.library, self.folder)
        self.assertEqual(self.run_python("print(kostyle.scan([]))", relative), "[]")

    def test_beside_the_modules_comes_first(self) -> None:
        shutil.copy(self.library, self.folder / "kostyle")
        self.assertEqual(self.run_python("kostyle.scan(['none']); print('found')", "/none"), "found")

    @unittest.skipIf(os.name == "nt", "the search path is another one")
    def test_is_else_what_the_system_finds(self) -> None:
        printed = self.run_python("kostyle.scan(['none']); print('found')", LD_LIBRARY_PATH=str(self.library.parent))
        self.assertEqual(printed, "found")

    def test_that_is_not_there_is_an_error_when_it_is_needed(self) -> None:
        wanted = "try: kostyle.scan(['none'])\nexcept kostyle.LibraryError as error: print(error)"
        self.assertIn("KOSTYLE_LIBRARY", self.run_python(wanted, str(self.folder / "none.so")))

    @unittest.skipIf(os.name == "nt", "the library has another name")
    def test_that_lacks_functions_is_an_error(self) -> None:
        wanted = "try: kostyle.scan(['none'])\nexcept kostyle.LibraryError as error: print(error)"
        self.assertIn("lacks", self.run_python(wanted, os.environ["KOSTYLE_HELPERS"]))
