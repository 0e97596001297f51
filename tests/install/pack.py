"""Makes the packages of a build.

usage: pack.py CPACK BUILD PACKAGES
"""
import os
import pathlib
import shutil
import subprocess
import sys


def main(cpack, build, packages):
    shutil.rmtree(packages, ignore_errors=True)
    os.umask(0o022)
    # In the C locale CPack packs nothing in a folder whose name goes beyond ASCII.
    subprocess.run([cpack, "--config", pathlib.Path(build) / "CPackConfig.cmake", "-B", packages], check=True,
                   env={**os.environ, "LC_ALL": "C.UTF-8"})


main(*sys.argv[1:])
