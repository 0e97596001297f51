"""Tables for the terminal."""

from results import Results
from targets import bound
from units import figure


def print_columns(rows: list) -> None:
    widths = [max(len(row[i]) for row in rows) for i in range(len(rows[0]))]
    for row in rows:
        cells = [row[0].ljust(widths[0])] + [cell.rjust(width) for cell, width in zip(row[1:], widths[1:])]
        print("  ".join(cells).rstrip())


def print_medians(results: Results) -> None:
    for platform, rows in results.rows.items():
        single = sorted(name for name in rows if not name.startswith("growth/"))
        if single:
            print(f"\n== {platform}: medians, per file or call, and half the spread of the rounds")
            print_columns([median_line(results, platform, name) for name in single])
        if results.grown_rows(platform):
            print_growth(results, platform)


def median_line(results: Results, platform: str, name: str) -> list:
    rounds = results.rounds(platform, name)
    middle = results.median(platform, name)
    half = 50 * (max(rounds) - min(rounds)) / middle
    return [name, figure(middle, results.rows[platform][name]["unit"]), f"±{half:.0f}%"]


def print_growth(results: Results, platform: str) -> None:
    print(f"\n== {platform}: growth, medians per element at each number of elements")
    works = sorted(results.grown_rows(platform))
    sizes = [n for n, _ in results.growth(platform, works[0])]
    lines = [["work", *(f"{n:,}" for n in sizes), "slope"]]
    for work in works:
        cells = [figure(time / n, "ns") for n, time in results.growth(platform, work)]
        lines.append([work, *cells, f"{results.slope(platform, work):.2f}"])
    print_columns(lines)


def print_targets(table: list) -> None:
    if not table:
        return
    print("\n== targets: medians of the ratios of the rounds; growth: the slope of its line, 1 being linear")
    lines = [["work", "platform", "measured", "target", ""]]
    for row in table:
        verdict = "" if row["limit"] is None else "met" if row["met"] else "MISSED"
        lines.append([row["work"], row["platform"], figure(row["value"], row["unit"]), bound(row), verdict])
    print_columns(lines)
