"""Small hosts, built in the ways in which a host finds the library, and run."""
import os
import pathlib
import shlex
import shutil
import subprocess
import sys
import tempfile

# What CTest takes for a test that this machine cannot do.
SKIPPED = 77


def run(command, **options):
    print("+", shlex.join(map(str, command)), flush=True)
    return subprocess.run(command, check=True, text=True, encoding="utf-8", **options)


def skip(reason):
    print("skipped:", reason)
    sys.exit(SKIPPED)


def require(tree, names):
    missing = [name for name in names if not (tree / name).is_file()]
    if missing:
        sys.exit(f"{tree} has no {missing}")


def lists_of_names(build):
    """The examples that print the names of styles, as they were built."""
    programs = [path for path in build.glob("list_names*") if path.is_file()]
    if not programs:
        sys.exit(f"{build} has no list_names")
    return programs


class Hosts:
    """Builds in a folder, with a compiler, a toolchain file for a cross build (or none) and what runs its programs."""

    def __init__(self, source, compiler, toolchain, emulator, folder):
        self.source, self.compiler, self.emulator, self.folder = source, compiler, emulator, folder
        self.toolchain = [f"-DCMAKE_TOOLCHAIN_FILE={toolchain}"] if toolchain else []
        self.windows = bool(toolchain)
        self.environment = dict(os.environ)

    def configure(self, source, *options):
        build = pathlib.Path(tempfile.mkdtemp(dir=self.folder))
        run(["cmake", "-G", "Ninja", "-S", source, "-B", build, *self.toolchain, *options], stdout=subprocess.DEVNULL)
        run(["cmake", "--build", build], stdout=subprocess.DEVNULL)
        return build

    def started(self, program, *arguments):
        return run([*self.emulator, program, *arguments], stdout=subprocess.PIPE, env=self.environment).stdout

    def expect_names(self, printed):
        if "Concrete club" not in printed.splitlines():
            sys.exit(f"the host printed {printed!r}")

    def expect_host_works(self, program):
        self.expect_names(self.started(program, self.source / "examples" / "styles" / "system"))

    def expect_tool_works(self, tree):
        tool = tree / "bin" / ("kostyle.exe" if self.windows else "kostyle")
        if not self.started(tool, "--version").startswith("kostyle 1."):
            sys.exit(f"{tool} does not tell its version")

    def beside_dll(self, program, library_folder):
        """A DLL is found beside the program."""
        return pathlib.Path(shutil.copy(program, library_folder)) if self.windows else program

    def found_in(self, tree):
        """A cross build looks below its own root only, unless it is told where the package is."""
        if self.windows:
            return f"-DKoStyle_DIR={next(tree.glob('lib*/**/cmake/KoStyle'))}"
        return f"-DCMAKE_PREFIX_PATH={tree}"

    def expect_cmake_finds(self, tree):
        """The installed examples are a project of their own; one of them is written in each language."""
        build = self.configure(next(tree.glob("share/doc/*/examples")), self.found_in(tree))
        for program in lists_of_names(build):
            self.expect_host_works(self.beside_dll(program, tree / "bin"))

    def expect_pkg_config_finds(self, tree):
        found = next(tree.glob("lib*/**/pkgconfig"))
        environment = {**os.environ, "PKG_CONFIG_LIBDIR": str(found)}
        # Byte by byte escaped for a shell.
        printed = subprocess.run(["pkg-config", "--cflags", "--libs", "kostyle >= 1.0"], env=environment, check=True,
                                 capture_output=True).stdout.decode("latin-1")
        flags = [flag.encode("latin-1").decode() for flag in shlex.split(printed)]
        program = self.folder / ("list_names.exe" if self.windows else "list_names")
        own = ["-municode"] if self.windows else [f"-Wl,-rpath,{found.parent}"]
        run([self.compiler, self.source / "examples" / "list_names.c", "-o", program, *own, *flags])
        self.expect_host_works(self.beside_dll(program, tree / "bin"))
