"""Prints the names of the styles in a directory, and what was refused: list_names.py DIRECTORY"""
import sys

import kostyle

if len(sys.argv) != 2:
    sys.exit(2)
with kostyle.Manager("list-names", sys.argv[1], sys.argv[1]) as manager:
    manager.read_system_styles()
    for style in manager.system_styles:
        print(style.name)
    for result in manager.system_styles.creation_results:
        if result.refusal:
            print(f"{result.path}: {result.refusal}", file=sys.stderr)
