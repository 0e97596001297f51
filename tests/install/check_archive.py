"""The archive for Windows serves hosts of MinGW, and hosts of linkers of MSVC's kind.

usage: check_archive.py FORM PACKAGES SOURCE CC TOOLCHAIN EMULATOR

FORM is one of `mingw`, `msvc`. PACKAGES is the folder that holds the archive.
"""
import pathlib
import subprocess
import sys
import tempfile
import zipfile

from hosts import Hosts, require, run

CONTENT = ["bin/KoStyle.dll", "bin/kostyle.exe", "lib/KoStyle.lib", "lib/libKoStyle.dll.a", "lib/KoStyle.def",
           "include/kostyle/kostyle.h", "lib/cmake/KoStyle/KoStyleConfig.cmake", "share/doc/KoStyle/LICENSE",
           "share/doc/KoStyle/README.md", "share/doc/KoStyle/docs/format.md",
           "share/doc/KoStyle/examples/list_names.c", "share/doc/KoStyle/third-party/rapidjson-dev.txt"]

# Everything that the host in C needs of Windows.
KERNEL32 = "LIBRARY kernel32.dll\nEXPORTS\n  ExitProcess\n  GetCurrentDirectoryW\n  GetStdHandle\n  WriteFile\n"

# CMake takes a host's compiler for MSVC's when it says so.
CONFIGURED = """
cmake_minimum_required(VERSION 3.25)
project(Host LANGUAGES NONE)
set(MSVC TRUE)
find_package(KoStyle 1.0 REQUIRED)
get_target_property(library KoStyle::KoStyle IMPORTED_IMPLIB_RELEASE)
file(WRITE ${CMAKE_BINARY_DIR}/library.txt "${library}")
"""


def unpacked(packages, folder):
    archives = list(pathlib.Path(packages).glob("*.zip"))
    if len(archives) != 1:
        sys.exit(f"{packages} has not one archive: {archives}")
    tree = folder / "unpacked späce"
    with zipfile.ZipFile(archives[0]) as archive:
        archive.extractall(tree)
    tree = tree / archives[0].stem
    require(tree, CONTENT)
    return tree


def check_mingw(tree, hosts):
    hosts.expect_tool_works(tree)
    hosts.expect_cmake_finds(tree)
    hosts.expect_pkg_config_finds(tree)


def check_msvc(tree, hosts):
    """No MSVC is needed for it: the host brings the little that it needs of Windows."""
    definition, kernel32 = hosts.folder / "kernel32.def", hosts.folder / "kernel32.lib"
    definition.write_text(KERNEL32)
    run(["llvm-dlltool", "-m", "i386:x86-64", "-d", definition, "-l", kernel32])
    source, compiled = pathlib.Path(__file__).parent / "host_without_runtime.c", hosts.folder / "host.obj"
    run(["clang", "--target=x86_64-pc-windows-msvc", "-std=c99", "-ffreestanding", "-nostdlibinc", "-Wall", "-Wextra",
         "-Wpedantic", "-Wconversion", "-Werror", "-O1", f"-I{tree / 'include'}", "-c", source, "-o", compiled])
    program = tree / "bin" / "host.exe"
    run(["lld-link", "/nologo", "/nodefaultlib", "/subsystem:console", "/entry:start", f"/out:{program}", compiled,
         implib_of_msvc(tree, hosts), kernel32])
    styles = hosts.source / "examples" / "styles" / "system"
    hosts.expect_names(run([*hosts.emulator, program], cwd=styles, stdout=subprocess.PIPE).stdout)


def implib_of_msvc(tree, hosts):
    """The import library that the CMake package names to hosts of MSVC."""
    source, build = hosts.folder / "configured", hosts.folder / "build"
    source.mkdir()
    (source / "CMakeLists.txt").write_text(CONFIGURED)
    run(["cmake", "-G", "Ninja", "-S", source, "-B", build, hosts.found_in(tree)], stdout=subprocess.DEVNULL)
    library = pathlib.Path((build / "library.txt").read_text(encoding="utf-8"))
    if library != tree / "lib" / "KoStyle.lib":
        sys.exit(f"hosts of MSVC are told to link {library}")
    return library


def main(form, packages, source, compiler, toolchain, *emulator):
    with tempfile.TemporaryDirectory() as folder:
        folder = pathlib.Path(folder)
        hosts = Hosts(pathlib.Path(source), compiler, toolchain, list(emulator), folder)
        {"mingw": check_mingw, "msvc": check_msvc}[form](unpacked(packages, folder), hosts)


if __name__ == "__main__":
    main(*sys.argv[1:])
