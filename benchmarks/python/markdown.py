#!/usr/bin/python3
"""Prints the figures of result files as the tables of docs/performance.md: markdown.py BEFORE [AFTER]."""

import sys
from pathlib import Path

import targets
from results import load
from units import figure


def measured_targets(path: Path) -> dict:
    rows = targets.rows_of_table(load(path))
    return {(row["work"], row["platform"]): row for row in rows}


def print_targets(before: dict, after: dict) -> None:
    print("| work | platform | before | after | target |\n|---|---|---|---|---|")
    for key in {**after, **before}:
        row = after.get(key) or before[key]
        cells = [figure(table[key]["value"], row["unit"]) if key in table else "" for table in (before, after)]
        print(f"| {key[0]} | {key[1]} | {cells[0]} | {cells[1]} | {targets.bound(row)} |")


def print_medians(before: Path, after: Path | None) -> None:
    results, later = load(before), load(after) if after else None
    print("\n| row | platform | before | after |\n|---|---|---|---|")
    for platform, rows in results.rows.items():
        for name in sorted(rows):
            if name.startswith("growth/"):
                continue
            unit = rows[name]["unit"]
            value = later.median(platform, name) if later else None
            print(f"| `{name}` | {platform} | {figure(results.median(platform, name), unit)} "
                  f"| {figure(value, unit) if value is not None else ''} |")


def main() -> None:
    paths = [Path(argument) for argument in sys.argv[1:]]
    after = paths[1] if len(paths) > 1 else None
    print_targets(measured_targets(paths[0]), measured_targets(after) if after else {})
    print_medians(paths[0], after)


if __name__ == "__main__":
    main()
