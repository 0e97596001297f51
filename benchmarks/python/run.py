#!/usr/bin/python3
"""Makes the data, measures section by section, and reports. scripts/bench builds first and then runs this."""

import argparse
import itertools
import os
import platform as machine
import shutil
from pathlib import Path

import plots
import table
import targets
from places import Places, temporary_places
from programs import ROOT, Native, Windows, make_data, run_round
from results import Results, save
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


def measure(options: argparse.Namespace, places: Places) -> Results:
    scale = QUICK if options.quick else FULL
    both = options.native == options.windows
    results = Results()
    if options.native or both:
        parts = {section.name: section.parts for section in options.sections}
        measure_on(Native(places.disk, options.library), parts, scale, options, places, results)
    if options.windows or both:
        parts = {section.name: section.windows_parts for section in options.sections
                 if section.windows_parts is not None}
        measure_on(Windows(places.disk, options.dll), parts, windows_scale(scale), options, places, results)
    return results


def measure_on(platform, parts: dict, scale: Scale, options, places: Places, results: Results) -> None:
    """Measures the sections that `parts` names, each with its parts of the data."""
    folders = {"data": places.data / platform.name, "scratch": places.disk / "written"}
    if places.memory:
        folders["fast-scratch"] = places.memory / "written"
    make_data(folders["data"], set(itertools.chain(*parts.values())), scale)
    for section in options.sections:
        if section.name not in parts:
            continue
        rounds = options.rounds or (section.quick_rounds if options.quick else section.rounds)
        print(f"measuring {section.name}, {platform.name}:", end="", flush=True)
        for number in range(rounds):
            print(f" {number + 1}", end="", flush=True)
            results.add_round(platform.name, run_round(platform, section, scale, folders, places.disk))
        print(flush=True)
    if folders["data"].exists():
        shutil.rmtree(folders["data"])


def report(options: argparse.Namespace, results: Results) -> None:
    about = {"processor": processor(), "processors": os.cpu_count(), "system": machine.system(),
             "quick": options.quick, "load": os.getloadavg()}
    rows = targets.rows_of_table(results)
    save(options.results, about, results, rows)
    table.print_medians(results)
    table.print_targets(rows)
    folder = options.results.parent
    plots.plot_peers(folder / "performance-peers.svg", results)
    plots.plot_growth(folder / "performance-growth.svg", results)
    print(f"\nresults and plots are in {folder}")


def main() -> None:
    options = parse_arguments()
    with temporary_places() as places:
        results = measure(options, places)
    report(options, results)


if __name__ == "__main__":
    main()
