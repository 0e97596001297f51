"""The build can be configured for MSVC, and docs/building.md names the tests that it then lacks, and no others.

usage: check_msvc.py SOURCE BUILD CLANG_CL

clang-cl stands for MSVC. It finds no headers of Windows here, so nothing is compiled.
"""
import fnmatch
import json
import pathlib
import re
import subprocess
import sys
import tempfile

TOOLCHAIN = """
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR AMD64)
set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY)
set(CMAKE_LINKER lld-link)
foreach(language C CXX)
  set(CMAKE_${{language}}_COMPILER {compiler})
  set(CMAKE_${{language}}_COMPILER_TARGET x86_64-pc-windows-msvc)
  set(CMAKE_${{language}}_COMPILER_WORKS TRUE)
endforeach()
set(CMAKE_RC_COMPILER llvm-rc)
set(CMAKE_MT llvm-mt)
"""

# What a build on Windows itself would see.
NOT_CROSS = "set(CMAKE_CROSSCOMPILING FALSE)\n"


def tests_of(build):
    listed = subprocess.run(["ctest", "--test-dir", build, "-C", "Release", "--show-only=json-v1"], check=True,
                            capture_output=True, text=True).stdout
    return {test["name"] for test in json.loads(listed)["tests"]}


def left_out(document):
    """The patterns in the first column of the table under the heading MSVC."""
    section = re.search(r"^## MSVC$(.*?)^## ", document, re.M | re.S).group(1)
    return [pattern for row in re.findall(r"^\|(.*?)\|", section, re.M) for pattern in re.findall(r"`(.*?)`", row)]


def main(source, build, compiler):
    with tempfile.TemporaryDirectory() as folder:
        toolchain = pathlib.Path(folder) / "toolchain.cmake"
        toolchain.write_text(TOOLCHAIN.format(compiler=compiler), encoding="utf-8")
        not_cross = pathlib.Path(folder) / "not_cross.cmake"
        not_cross.write_text(NOT_CROSS, encoding="utf-8")
        configured = pathlib.Path(folder) / "build"
        subprocess.run(["cmake", "-S", source, "-B", configured, "-G", "Ninja Multi-Config", "--toolchain", toolchain,
                        f"-DCMAKE_PROJECT_INCLUDE={not_cross}"], check=True, stdout=subprocess.DEVNULL)
        made = tests_of(configured)
    patterns = left_out((pathlib.Path(source) / "docs" / "building.md").read_text(encoding="utf-8"))
    lacking = tests_of(build) - made
    faults = [f"no pattern for {name}" for name in sorted(lacking)
              if not any(fnmatch.fnmatchcase(name, pattern) for pattern in patterns)]
    faults += [f"{pattern} leaves out nothing" for pattern in patterns if not fnmatch.filter(lacking, pattern)]
    faults += [f"{pattern} is made" for pattern in patterns if fnmatch.filter(made, pattern)]
    if faults:
        sys.exit("\n".join(faults))
    print(f"{len(made)} tests, {len(lacking)} left out")


main(*sys.argv[1:])
