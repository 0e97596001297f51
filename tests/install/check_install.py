"""What is installed can be moved, and serves hosts that find it by CMake, by pkg-config or as a part of their build.

usage: check_install.py FORM BUILD SOURCE CC TOOLCHAIN [EMULATOR]

FORM is one of `package`, `pkg-config`, `absolute`, `subproject`. TOOLCHAIN is the file for a cross build, or empty.
"""
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile

from hosts import Hosts, require, run

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

INSTALLED = ["include/kostyle/kostyle.h", "include/kostyle/helpers.h", "include/kostyle/kostyle.hpp",
             "include/kostyle/cpp/manager.hpp", "share/kostyle/kostyle.schema.json",
             "share/doc/KoStyle/LICENSE", "share/doc/KoStyle/docs/guide/first-host.md"]
# The tool tells these itself, where it can be run.
TOLD = ["share/man/man1/kostyle.1", "share/bash-completion/completions/kostyle",
        "share/zsh/vendor-completions/_kostyle", "share/fish/vendor_completions.d/kostyle.fish"]


def installed(build, hosts):
    """Installs, moves the tree to where nobody expected it, and gives its place."""
    first = hosts.folder / "first"
    run(["cmake", "--install", build, "--prefix", first], stdout=subprocess.DEVNULL)
    moved = hosts.folder / "moved späce" / "tree"
    moved.parent.mkdir()
    first.rename(moved)
    require(moved, INSTALLED if hosts.toolchain else INSTALLED + TOLD)
    return moved


def check_package(build, hosts):
    tree = installed(build, hosts)
    hosts.expect_tool_works(tree)
    hosts.expect_cmake_finds(tree)
    tomorrow = hosts.folder / "tomorrow"
    tomorrow.mkdir()
    (tomorrow / "CMakeLists.txt").write_text(
        "cmake_minimum_required(VERSION 3.25)\nproject(Host LANGUAGES C)\nfind_package(KoStyle 2.0 REQUIRED)\n")
    refused = subprocess.run(["cmake", "-G", "Ninja", "-S", tomorrow, "-B", hosts.folder / "refused",
                              *hosts.toolchain, hosts.found_in(tree)], capture_output=True, text=True)
    if refused.returncode == 0 or "1.0" not in refused.stderr:
        sys.exit("a host that needs version 2 was given this one")


def check_pkg_config(build, hosts):
    hosts.expect_pkg_config_finds(installed(build, hosts))


def check_absolute(build, hosts):
    """Folders that are given as absolute paths are told to hosts rightly too."""
    prefix = hosts.folder / "prefix"
    library, include = prefix / "lib" / "deep", hosts.folder / "elsewhere"
    configured = hosts.folder / "configured"
    run(["cmake", "-G", "Ninja", "-S", hosts.source, "-B", configured, *hosts.toolchain, "-DKOSTYLE_BUILD_TESTS=OFF",
         "-DKOSTYLE_BUILD_TOOLS=OFF", f"-DCMAKE_INSTALL_PREFIX={prefix}", f"-DCMAKE_INSTALL_LIBDIR={library}",
         f"-DCMAKE_INSTALL_INCLUDEDIR={include}"], stdout=subprocess.DEVNULL)
    (library / "pkgconfig").mkdir(parents=True)
    shutil.copy(configured / "kostyle.pc", library / "pkgconfig")
    environment = {**os.environ, "PKG_CONFIG_LIBDIR": str(library / "pkgconfig")}
    for variable, folder in [("libdir", library), ("includedir", include)]:
        told = run(["pkg-config", f"--variable={variable}", "kostyle"], env=environment, stdout=subprocess.PIPE).stdout
        if os.path.normpath(told.strip()) != str(folder):
            sys.exit(f"{variable} is {told}, not {folder}")


def check_subproject(build, hosts):
    source = hosts.folder / "subproject"
    source.mkdir()
    (source / "CMakeLists.txt").write_text(SUBPROJECT.format(source=hosts.source.as_posix()), encoding="utf-8")
    host = hosts.configure(source, "-DCMAKE_BUILD_TYPE=Debug")
    program = next(path for path in (host / "examples").glob("list_names*") if path.is_file())
    library = next(host.glob("kostyle/src/*KoStyle.*"))
    hosts.expect_host_works(hosts.beside_dll(program, library.parent))


CHECKS = {"package": check_package, "pkg-config": check_pkg_config, "absolute": check_absolute,
          "subproject": check_subproject}


def main(form, build, source, compiler, toolchain="", *emulator):
    with tempfile.TemporaryDirectory() as folder:
        hosts = Hosts(pathlib.Path(source), compiler, toolchain, list(emulator), pathlib.Path(folder))
        CHECKS[form](build, hosts)


if __name__ == "__main__":
    main(*sys.argv[1:])
