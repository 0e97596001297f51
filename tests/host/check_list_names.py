"""list_names prints the name of every style of a directory.

usage: check_list_names.py STYLES PROGRAM...
"""
import json
import pathlib
import subprocess
import sys

styles = pathlib.Path(sys.argv[1])


def name_of(path):
    raw = path.read_bytes()
    encoding = "utf-8-sig"
    for mark, candidate in [(b"\xff\xfe\0\0", "utf-32"), (b"\xff\xfe", "utf-16"), (b"\xfe\xff", "utf-16")]:
        if raw.startswith(mark):
            encoding = candidate
            break
    return json.loads(raw.decode(encoding))["name"]


expected = sorted(name_of(path) for path in styles.glob("*.kostyle"))
run = subprocess.run([*sys.argv[2:], str(styles)], check=True, capture_output=True)
printed = sorted(run.stdout.decode("utf-8").splitlines())
if not expected or printed != expected:
    sys.exit(f"expected {expected}, printed {printed}")
wrong_use = subprocess.run(sys.argv[2:], capture_output=True)
if wrong_use.returncode != 2:
    sys.exit(f"without an argument: exit {wrong_use.returncode} instead of 2")
