"""Every row of the tables in compatibility.md names the tests that hold it, and those tests exist.

usage: check_compatibility.py COMPATIBILITY.MD TESTS
"""
import pathlib
import re
import sys

document, tests = (pathlib.Path(path) for path in sys.argv[1:])
existing = set()
for source in tests.rglob("*_test.cpp"):
    found = re.findall(r"^TEST(?:_F|_P)?\(\s*(\w+),\s*(\w+)\)", source.read_text(encoding="utf-8"), re.M)
    existing.update(f"{suite}.{case}" for suite, case in found)

lines = document.read_text(encoding="utf-8").splitlines()
rows = [line for line in lines if line.startswith("| ") and not line.endswith("| test |")]
faults = []
for row in rows:
    last = row.rstrip(" |").rpartition(" | ")[2]
    names = re.findall(r"`(\w+\.\w+)`", last)
    if not names:
        faults.append(f"no test in the row: {row}")
    faults += [f"there is no test {name}" for name in names if name not in existing]
if not rows:
    faults.append(f"{document} has no rows")
if faults:
    sys.exit("\n".join(faults))
print(f"{len(rows)} rows")
