"""edit_styles walks a style through its life and leaves the directory empty.

usage: check_edit_styles.py STYLES PROGRAM...
"""
import os
import subprocess
import sys
import tempfile

EXPECTED = [
    "saved: 1 audio effects, 2 genres, 0 colours, Evening",
    "read again: 1 audio effects, 2 genres, 0 colours, Evening",
    "overwritten: 2 audio effects, 2 genres, 0 colours, Late evening",
    "edited: 2 audio effects, 2 genres, 1 colours, Midnight",
    "removed",
]

with tempfile.TemporaryDirectory() as directory:
    run = subprocess.run([*sys.argv[2:], directory], check=True, capture_output=True)
    if run.stdout.decode("utf-8").splitlines() != EXPECTED:
        sys.exit(f"printed {run.stdout!r}")
    if left := os.listdir(directory):
        sys.exit(f"left behind: {left}")
