#!/usr/bin/env python3
"""Makes the data, measures section by section, and reports. scripts/bench builds first and then runs this."""

import argparse
import os
import platform as machine
import tempfile
from pathlib import Path

import results as measured
import table
import targets
from programs import ROOT, Native, Windows, make_data, run_round
from sections import FULL, QUICK, SECTIONS, windows_scale


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
    data = scratch / "data"
    parts = {part for section in options.sections for part in section.parts}
    print("making data:", ", ".join(sorted(parts)) or "none", flush=True)
    make_data(data, parts, scale)

    folders = {"data": data, "scratch": scratch / "written"}
    if fast:
        folders["fast-scratch"] = fast
    both = options.native == options.windows
    results = measured.Results()
    if options.native or both:
        measure_on(Native(scratch, options.library), scale, options, folders, results)
    if options.windows or both:
        windows = windows_scale(scale)
        few = scratch / "few"
        make_data(few, parts - {"bundles"}, windows)
        measure_on(Windows(scratch, options.dll), windows, options, folders | {"data": few}, results)
    return results


def measure_on(platform, scale, options, folders, results) -> None:
    for section in options.sections:
        if platform.name == "windows" and not section.on_windows:
            continue
        rounds = options.rounds or (section.quick_rounds if options.quick else section.rounds)
        print(f"measuring {section.name}, {platform.name}:", end="", flush=True)
        for number in range(rounds):
            print(f" {number + 1}", end="", flush=True)
            output = folders["scratch"].parent / "round.json"
            results.add_round(platform.name, run_round(platform, section, scale, folders, output))
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
    print(f"\n{options.results}")


if __name__ == "__main__":
    main()
