"""README shows an example file as it is.

usage: check_readme.py README EXAMPLE
"""
import sys

readme, example = (open(path, encoding="utf-8").read() for path in sys.argv[1:])
if f"```c\n{example}```" not in readme:
    sys.exit(f"{sys.argv[1]} does not show {sys.argv[2]} as it is")
