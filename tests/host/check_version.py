"""A DLL and a program for Windows tell the version of the headers in their resources.

usage: check_version.py VERSION BINARY...
"""
import pathlib
import re
import sys

version, *binaries = sys.argv[1:]
for binary in binaries:
    content = pathlib.Path(binary).read_bytes()
    for name in ["FileVersion", "ProductVersion"]:
        # The key, a zero, up to three bytes of padding, the value, a zero.
        key, value = f"{name}\0".encode("utf-16-le"), f"{version}\0".encode("utf-16-le")
        if not re.search(re.escape(key) + rb"\0{0,3}" + re.escape(value), content):
            sys.exit(f"{binary}: no {name} {version} in its resources")
