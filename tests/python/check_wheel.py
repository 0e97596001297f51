"""Wheels are built without a network, hold the package and its library, and work where they are installed.

usage: check_wheel.py checkout SOURCE
       check_wheel.py windows SOURCE KOSTYLE.DLL OBJDUMP

In a checkout the build of the wheel builds the library. Of the wheel for Windows is checked what can be without
running it.
"""
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unittest.mock
import zipfile

USE = """
import pathlib, sys
import kostyle
from kostyle.library import library_path
system, user = map(pathlib.Path, sys.argv[1:])
with kostyle.Manager("wheel", system, user) as manager:
    manager.read()
    assert manager.system_styles.find("concrete-club").genres == ("House", "Techno")
    with manager.system_styles[0].mutable_copy() as copy:
        copy.save_safely()
print(kostyle.__version__, library_path(), kostyle.__file__, sep="\\n")
"""
# A name in the table that objdump prints, with its ordinal and hint.
EXPORT = r"^\s*\[\s*\d+\] (?:\+base\[\s*\d+\]\s+)?(?:[0-9a-f]{4} )?([A-Za-z]\w+)$"
# What every Windows has.
SYSTEM_DLLS = r"KERNEL32\.dll|msvcrt\.dll|RPCRT4\.dll|ucrtbase\.dll|api-ms-win-crt-\w+-l1-1-0\.dll"


def clean_environment(**variables):
    """Without what this test itself was given."""
    kept = {name: value for name, value in os.environ.items() if not name.startswith(("KOSTYLE_", "PYTHON", "PIP_"))}
    return {**kept, **variables}


def run(*command, **variables):
    done = subprocess.run(command, env=clean_environment(**variables), text=True, capture_output=True)
    if done.returncode:
        sys.exit(f"{command} ended with {done.returncode}\n{done.stdout}{done.stderr}")
    return done.stdout


def expect(condition, complaint):
    if not condition:
        sys.exit(complaint)


class Check:
    def __init__(self, source, folder):
        self.source, self.folder = source, folder
        self.project = source / "bindings" / "python"
        header = (source / "include" / "kostyle" / "version.h").read_text(encoding="utf-8")
        self.version = ".".join(re.findall(r"VERSION_(?:MAJOR|MINOR|PATCH) (\d+)$", header, re.M))

    def environment(self, name, *options):
        """A new virtual environment; gives its Python."""
        run(sys.executable, "-m", "venv", *options, self.folder / name)
        return self.folder / name / "bin" / "python"

    def built_wheel(self, **variables):
        python = self.environment("builder", "--system-site-packages", "--without-pip")
        before = set(self.project.rglob("*"))
        run(python, "-m", "pip", "wheel", "--no-index", "--no-build-isolation", "--no-deps", "--wheel-dir", self.folder,
            self.project, **variables)
        left = set(self.project.rglob("*")) - before
        expect(not left, f"the build left {left}")
        [wheel] = self.folder.glob("*.whl")
        return wheel

    def expect_content(self, wheel, platform, library):
        expected = rf"kostyle-{self.version}-py3-none-{platform}\.whl"
        expect(re.fullmatch(expected, wheel.name), f"it is called {wheel.name}")
        package = {f"kostyle/{path.name}" for path in (self.project / "src" / "kostyle").glob("*.py")}
        package |= {"kostyle/py.typed", "kostyle/codes.py", "kostyle/LICENSE", f"kostyle/{library}"}
        with zipfile.ZipFile(wheel) as archive:
            names = {name for name in archive.namelist() if ".dist-info/" not in name}
            expect(names == package, f"differently in the wheel: {sorted(names ^ package)}")
            tag = archive.read(f"kostyle-{self.version}.dist-info/WHEEL").decode()
            expect("Root-Is-Purelib: false" in tag, tag)

    def expect_refusal_elsewhere(self):
        """Without the library's sources nothing can be built, which is said."""
        alone = shutil.copytree(self.project, self.folder / "alone" / "bindings" / "python")
        done = subprocess.run([sys.executable, "setup.py", "--version"], cwd=alone, text=True, capture_output=True)
        expect(done.returncode and "is no checkout" in done.stderr and "Traceback" not in done.stderr, done.stderr)

    def checkout(self):
        self.expect_refusal_elsewhere()
        # The quickest of CMake's builds, in a few large units, since it is the wheel that is tried.
        wheel = self.built_wheel(CMAKE_BUILD_TYPE="Debug", CMAKE_GENERATOR="Ninja", CXXFLAGS="-g0",
                                 CMAKE_ARGS="-DCMAKE_UNITY_BUILD=ON")
        self.expect_content(wheel, r"linux_\w+", "libKoStyle.so.1")
        python = self.environment("host")
        run(python, "-m", "pip", "install", "--no-index", wheel)
        system = self.source / "examples" / "styles" / "system"
        printed = run(python, "-c", USE, system, self.folder / "user").split("\n")
        expect(printed[0] == self.version, f"it says that it is {printed[0]}")
        for place in printed[1:3]:
            expect(place.startswith(str(self.folder)), f"{place} is not what was installed")

    def windows(self, library, objdump):
        wheel = self.built_wheel(KOSTYLE_LIBRARY_FILE=library)
        self.expect_content(wheel, "win_amd64", "KoStyle.dll")
        unpacked = self.folder / "unpacked"
        with zipfile.ZipFile(wheel) as archive:
            archive.extractall(unpacked)
        found = self.found_on_windows(unpacked)
        expect(found.read_bytes() == pathlib.Path(library).read_bytes(), "it holds another library")
        described = run(objdump, "-p", found)
        self.expect_bound(described)
        strangers = [name for name in re.findall(r"DLL Name: (\S+)", described)
                     if not re.fullmatch(SYSTEM_DLLS, name, re.I)]
        expect(not strangers, f"the library needs {strangers}")

    def found_on_windows(self, unpacked):
        """The library that the unpacked package would load there."""
        sys.path.insert(0, str(unpacked))
        from kostyle import library
        with unittest.mock.patch("sys.platform", "win32"):
            found = pathlib.Path(library.library_path())
        expect(found == unpacked / "kostyle" / "KoStyle.dll", f"Windows would load {found}")
        return found

    def expect_bound(self, described):
        from kostyle.functions import SIGNATURES
        exports = set(re.findall(EXPORT, described, re.M))
        expect(exports == set(SIGNATURES), f"exported or bound alone: {sorted(exports ^ set(SIGNATURES))}")
        print(f"{len(exports)} functions are exported and bound")


def main(form, source, *arguments):
    with tempfile.TemporaryDirectory() as folder:
        check = Check(pathlib.Path(source), pathlib.Path(folder).resolve())
        {"checkout": check.checkout, "windows": check.windows}[form](*arguments)


if __name__ == "__main__":
    main(*sys.argv[1:])
