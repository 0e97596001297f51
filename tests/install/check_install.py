"""What is installed can be moved, and serves hosts that find it by CMake, by pkg-config or as a part of their build.

usage: check_install.py FORM BUILD SOURCE CC TOOLCHAIN [EMULATOR]

FORM is one of `package`, `pkg-config`, `subproject`. TOOLCHAIN is the file for a cross build, or empty.
"""
import os
import pathlib
import shlex
import shutil
import subprocess
import sys
import tempfile

SUBPROJECT = """
cmake_minimum_required(VERSION 3.25)
project(Host LANGUAGES C CXX)
# A module of the host's that has the name of one of the library's.
file(WRITE ${{CMAKE_BINARY_DIR}}/modules/CompilerOptions.cmake "message(FATAL_ERROR \"taken for another\")\n")
list(APPEND CMAKE_MODULE_PATH ${{CMAKE_BINARY_DIR}}/modules)
add_subdirectory("{source}" kostyle)
get_directory_property(options COMPILE_OPTIONS)
if(options)
  message(FATAL_ERROR "the host is compiled with ${{options}}")
endif()
foreach(target kostyle test-exports list_names)
  if(TARGET ${{target}})
    message(FATAL_ERROR "${{target}} is none of the host's")
  endif()
endforeach()
foreach(variable CMAKE_RUNTIME_OUTPUT_DIRECTORY CMAKE_LIBRARY_OUTPUT_DIRECTORY CMAKE_CXX_STANDARD)
  if(DEFINED ${{variable}})
    message(FATAL_ERROR "${{variable}} was set for the host")
  endif()
endforeach()
add_subdirectory("{source}/examples" examples)
"""


def run(command, **options):
    print("+", shlex.join(map(str, command)), flush=True)
    return subprocess.run(command, check=True, text=True, encoding="utf-8", **options)


INSTALLED = ["include/kostyle/kostyle.h", "include/kostyle/helpers.h", "share/man/man1/kostyle.1",
             "share/kostyle/kostyle.schema.json", "share/doc/KoStyle/LICENSE", "share/doc/KoStyle/docs/format.md"]


class Check:
    def __init__(self, build, source, compiler, toolchain, emulator, folder):
        self.build, self.source, self.compiler = build, source, compiler
        self.toolchain = [f"-DCMAKE_TOOLCHAIN_FILE={toolchain}"] if toolchain else []
        self.emulator, self.folder = emulator, folder

    def installed(self):
        """Installs, moves the tree to where nobody expected it, and gives its place."""
        first = self.folder / "first"
        run(["cmake", "--install", self.build, "--prefix", first], stdout=subprocess.DEVNULL)
        moved = self.folder / "moved späce" / "tree"
        moved.parent.mkdir()
        first.rename(moved)
        missing = [name for name in INSTALLED if not (moved / name).is_file()]
        if missing:
            sys.exit(f"not installed: {missing}")
        return moved

    def configure(self, source, *options):
        build = self.folder / "host"
        run(["cmake", "-G", "Ninja", "-S", source, "-B", build, *self.toolchain, *options], stdout=subprocess.DEVNULL)
        run(["cmake", "--build", build], stdout=subprocess.DEVNULL)
        return build

    def started(self, program, *arguments):
        return run([*self.emulator, program, *arguments], stdout=subprocess.PIPE).stdout

    def expect_host_works(self, program):
        names = self.started(program, self.source / "examples" / "styles" / "system").splitlines()
        if "Concrete club" not in names:
            sys.exit(f"{program} printed {names}")

    def beside_dll(self, program, library_folder):
        """A DLL is found beside the program."""
        if program.suffix != ".exe":
            return program
        return pathlib.Path(shutil.copy(program, library_folder))

    def package(self):
        tree = self.installed()
        tool = next((tree / "bin").glob("kostyle*"))
        if "kostyle 1." not in self.started(tool, "--version"):
            sys.exit("the moved tool does not tell its version")
        examples = next(tree.glob("share/doc/*/examples"))
        host = self.configure(examples, self.found_in(tree))
        self.expect_host_works(self.beside_dll(next(host.glob("list_names*")), tree / "bin"))
        refused = subprocess.run(["cmake", "-G", "Ninja", "-S", self.tomorrow(), "-B", self.folder / "refused",
                                  *self.toolchain, self.found_in(tree)], capture_output=True, text=True)
        if refused.returncode == 0 or "1.0" not in refused.stderr:
            sys.exit("a host that needs version 2 was given this one")

    def found_in(self, tree):
        """A cross build looks below its own root only, unless it is told where the package is."""
        if self.toolchain:
            return f"-DKoStyle_DIR={next(tree.glob('lib*/**/cmake/KoStyle'))}"
        return f"-DCMAKE_PREFIX_PATH={tree}"

    def tomorrow(self):
        source = self.folder / "tomorrow"
        source.mkdir()
        (source / "CMakeLists.txt").write_text(
            "cmake_minimum_required(VERSION 3.25)\nproject(Host LANGUAGES C)\nfind_package(KoStyle 2.0 REQUIRED)\n")
        return source

    def pkg_config(self):
        tree = self.installed()
        found = next(tree.glob("lib*/**/pkgconfig"))
        environment = {**os.environ, "PKG_CONFIG_LIBDIR": str(found)}
        # Byte by byte escaped for a shell.
        printed = subprocess.run(["pkg-config", "--cflags", "--libs", "kostyle >= 1.0"], env=environment, check=True,
                                 capture_output=True).stdout.decode("latin-1")
        flags = [flag.encode("latin-1").decode() for flag in shlex.split(printed)]
        windows = bool(self.emulator)
        program = self.folder / ("list_names.exe" if windows else "list_names")
        own = ["-municode"] if windows else [f"-Wl,-rpath,{found.parent}"]
        run([self.compiler, self.source / "examples" / "list_names.c", "-o", program, *own, *flags])
        self.expect_host_works(self.beside_dll(program, tree / "bin"))

    def subproject(self):
        source = self.folder / "subproject"
        source.mkdir()
        (source / "CMakeLists.txt").write_text(SUBPROJECT.format(source=self.source.as_posix()), encoding="utf-8")
        host = self.configure(source, "-DCMAKE_BUILD_TYPE=Debug")
        program = next(path for path in (host / "examples").glob("list_names*") if path.is_file())
        library = next(host.glob("kostyle/src/*KoStyle.*"))
        self.expect_host_works(self.beside_dll(program, library.parent))


def main(form, build, source, compiler, toolchain="", *emulator):
    with tempfile.TemporaryDirectory() as folder:
        check = Check(pathlib.Path(build), pathlib.Path(source), compiler, toolchain, list(emulator),
                      pathlib.Path(folder))
        {"package": check.package, "pkg-config": check.pkg_config, "subproject": check.subproject}[form]()


if __name__ == "__main__":
    main(*sys.argv[1:])
