"""Builds the wheel: the package, the module that generate.py writes, and the library, built by CMake.

KOSTYLE_LIBRARY_FILE names a library that is built already, to be taken instead: a KoStyle.dll makes the wheel for
Windows, wherever the wheel is built. CMAKE_ARGS holds further options for CMake, whose own variables (CMAKE_BUILD_TYPE,
CMAKE_GENERATOR, CXX...) count as ever.
"""
import atexit
import os
import pathlib
import shlex
import shutil
import subprocess
import sys
import sysconfig
import tempfile

from setuptools import Distribution, setup
from setuptools.command.build_py import build_py

try:
    from setuptools.command.bdist_wheel import bdist_wheel
except ImportError:
    from wheel.bdist_wheel import bdist_wheel

HERE = pathlib.Path(__file__).resolve().parent
SOURCE = HERE.parent.parent
if not (SOURCE / "include" / "kostyle").is_dir():
    sys.exit(f"{HERE} is no checkout: the library's sources are missing (pip before 21.3 copies this folder alone)")
sys.path.insert(0, str(HERE))
sys.dont_write_bytecode = True
import generate  # noqa: E402

WINDOWS = "win_amd64"
ready_library = os.environ.get("KOSTYLE_LIBRARY_FILE")


def for_windows():
    return ready_library.lower().endswith(".dll") if ready_library else sys.platform == "win32"


def library_name():
    major = generate.version(SOURCE / "include").split(".")[0]
    return "KoStyle.dll" if for_windows() else f"libKoStyle.so.{major}"


def built_library(folder):
    """Builds the library alone, in Release mode unless the environment says otherwise."""
    build = pathlib.Path(folder) / "library"
    subprocess.run(["cmake", "-S", SOURCE, "-B", build, "-DKOSTYLE_BUILD_TESTS=OFF", "-DKOSTYLE_BUILD_TOOLS=OFF",
                    "-DKOSTYLE_INSTALL=OFF", *shlex.split(os.environ.get("CMAKE_ARGS", ""))], check=True)
    subprocess.run(["cmake", "--build", build, "--config", "Release", "--target", "KoStyle", "--parallel"], check=True)
    return next(build.glob(f"**/{library_name()}"))


class BuildPackage(build_py):
    def run(self):
        super().run()
        package = pathlib.Path(self.build_lib) / "kostyle"
        (package / "codes.py").write_text(generate.generate(SOURCE / "include"), encoding="utf-8")
        shutil.copyfile(SOURCE / "LICENSE", package / "LICENSE")
        library = ready_library or built_library(self.get_finalized_command("build").build_base)
        shutil.copyfile(library, package / library_name())


class PlatformDistribution(Distribution):
    """Its wheel is for one platform, and is unpacked where libraries belong."""

    def has_ext_modules(self):
        return True


class BuildWheel(bdist_wheel):
    """For any Python 3, since the library knows nothing of Python."""

    def get_tag(self):
        platform = WINDOWS if for_windows() else sysconfig.get_platform().replace("-", "_").replace(".", "_")
        return "py3", "none", platform


# Nothing of the build stays in the checkout.
folder = tempfile.mkdtemp(prefix="kostyle-wheel-")
atexit.register(shutil.rmtree, folder, ignore_errors=True)

setup(
    version=generate.version(SOURCE / "include"),
    distclass=PlatformDistribution,
    cmdclass={"build_py": BuildPackage, "bdist_wheel": BuildWheel},
    options={"build": {"build_base": folder}, "egg_info": {"egg_base": folder}},
)
