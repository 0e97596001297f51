#!/usr/bin/python3
"""Makes the data, measures section by section, and reports. scripts/bench builds first and then runs this."""

import argparse
import itertools
import os
import platform as machine
import tempfile
from pathlib import Path

import plots
import results as measured
import table
import targets
from programs import ROOT, Native, Windows, make_data, run_round
from sections import FULL, QUICK, SECTIONS, Scale, windows_scale


def parse_arguments() -> argparse.Namespace:
    names = [section.name for section in SECTIONS]
    parser = argparse.ArgumentParser(prog="scripts/bench", description="Measures the library beside its peers.")
    parser.add_argument("--quick", action="store_true", help="fewer files and rounds")
    parser.add_argument("--only", metavar="SECTION,...", default=",".join(names),
                        help="of " + ", ".join(names))
    parser.add_argument("--native", action="store_true", help="only the native part")
    parser.add_argument("--windows", action="store_true", help="only the part for Windows, under Wine")
    parser.add_argument("--library", type=Path, help="another build of libKoStyle.so to measure")
    parser.add_argument("--dll", type=Path, help="another build of KoStyle.dll to measure")
    parser.add_argument("--rounds", type=int, help="instead of each section's own number")
    parser.add_argument("--results", type=Path, default=ROOT / "build/bench/results.json",
                        help="file to write (the plots go beside it)")
    options = parser.parse_args()
    chosen = options.only.split(",")
    if unknown := set(chosen) - set(names):
        parser.error(f"no such section: {', '.join(sorted(unknown))}")
    options.sections = [section for section in SECTIONS if section.name in chosen]
    return options


def processor() -> str:
    for line in Path("/proc/cpuinfo").read_text().splitlines():
        if line.startswith("model name"):
            return line.split(":")[1].strip()
    return machine.processor()


def measure(options: argparse.Namespace, scratch: Path, fast: Path | None) -> measured.Results:
    scale = QUICK if options.quick else FULL
    both = options.native == options.windows
    folders = {"scratch": scratch / "written"}
    if fast:
        folders["fast-scratch"] = fast
    results = measured.Results()
    if options.native or both:
        parts = {section.name: section.parts for section in options.sections}
        measure_on(Native(scratch, options.library), parts, scale, options, folders, results)
    if options.windows or both:
        parts = {section.name: section.windows_parts for section in options.sections
                 if section.windows_parts is not None}
        measure_on(Windows(scratch, options.dll), parts, windows_scale(scale), options, folders, results)
    return results


def measure_on(platform, parts: dict, scale: Scale, options, folders: dict, results) -> None:
    """Measures the sections that `parts` names, each with its parts of the data."""
    scratch = folders["scratch"].parent
    data = scratch / platform.name / "data"
    make_data(data, set(itertools.chain(*parts.values())), scale)
    for section in options.sections:
        if section.name not in parts:
            continue
        rounds = options.rounds or (section.quick_rounds if options.quick else section.rounds)
        print(f"measuring {section.name}, {platform.name}:", end="", flush=True)
        for number in range(rounds):
            print(f" {number + 1}", end="", flush=True)
            rows = run_round(platform, section, scale, folders | {"data": data}, scratch / "round.json")
            results.add_round(platform.name, rows)
        print(flush=True)


def main() -> None:
    options = parse_arguments()
    with tempfile.TemporaryDirectory(prefix="kostyle-bench-") as folder:
        memory = Path("/dev/shm")
        if memory.is_dir() and os.access(memory, os.W_OK):
            with tempfile.TemporaryDirectory(prefix="kostyle-bench-", dir=memory) as fast:
                results = measure(options, Path(folder), Path(fast))
        else:
            results = measure(options, Path(folder), None)
    about = {"processor": processor(), "processors": os.cpu_count(), "system": machine.system(),
             "quick": options.quick, "load": os.getloadavg()}
    rows = targets.rows_of_table(results)
    measured.save(options.results, about, results, rows)
    table.print_medians(results)
    table.print_targets(rows)
    folder = options.results.parent
    plots.plot_peers(folder / "performance-peers.svg", results)
    plots.plot_growth(folder / "performance-growth.svg", results)
    print(f"\nresults and plots are in {folder}")


if __name__ == "__main__":
    main()
