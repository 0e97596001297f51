"""Measures how many style files kostyle.scan() reads in a second on one core, and what that is made of.

Needs Dask, for the rows of examples/scan_collection.py.

usage: scan.py [--files NUMBER] [--rounds NUMBER] [--processes NUMBER]

The files are made in a temporary folder, in memory where there is room, and read once before the clock runs. Each
round measures every row, one after the other; medians of the rounds are shown, and ratios to the scan of the round.
"""
import argparse
import concurrent.futures
import json
import os
import pathlib
import pickle
import random
import shutil
import statistics
import sys
import tempfile
import time

import kostyle

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "examples"))
import scan_collection  # noqa: E402

KINDS = {"small": (1, 7, 1, 7), "typical": (6, 14, 6, 6)}  # effects and parameters of each, audio and MIDI
BATCH = 500


def content(number, kind):
    generator = random.Random(number)
    audio, audio_parameters, midi, midi_parameters = KINDS[kind]
    values = [lambda: generator.randrange(1000), generator.random, lambda: f"text {generator.randrange(1000)}"]

    def chain(name, effects, parameters):
        return {f"{name} {effect}": {"parameter": {f"parameter{place}": generator.choice(values)()
                                                   for place in range(parameters)}} for effect in range(effects)}

    return json.dumps({
        "id": f"{kind}-{number}", "name": f"Style number {number}", "vendor": "A maker",
        "filter": {"languages": [0, 3], "singerGroups": ["Duo"], "singerIDs": [f"{number:016}"],
                   "genres": ["Ambient", "Synthwave"], "subGenres": ["Retro"], "colors": ["violet"]},
        "audioEffect": chain("Audio", audio, audio_parameters), "midiEffect": chain("Midi", midi, midi_parameters),
    }, indent=4)


def make_files(folder, kind, count):
    paths = [folder / f"{number}.kostyle" for number in range(count)]
    for number, path in enumerate(paths):
        path.write_text(content(number, kind), encoding="utf-8")
    return list(map(str, paths))


def open_read_close(paths):
    for path in paths:
        with open(path, "rb") as file:
            file.read()


def read_by_library(paths):
    folder = pathlib.Path(paths[0]).parent
    with kostyle.Manager("benchmark", folder, folder) as manager:
        manager.read_system_styles()


def as_records(paths):
    records = []
    for start in range(0, len(paths), BATCH):
        records += kostyle.scan(paths[start:start + BATCH])
    return records


def scan_and_forget(batch):
    """What a process does whose results are needed no further."""
    return len(kostyle.scan(batch))


def rows(paths, processes, pool):
    """What is measured: its name, the clock and the work. Times of one process are its processor times."""
    batches = [paths[start:start + BATCH] for start in range(0, len(paths), BATCH)]
    list(pool.map(scan_and_forget, batches))  # starts them, before they would inherit the records
    records = as_records(paths)
    return [
        ("scan", time.process_time, lambda: as_records(paths)),
        ("the library's reading alone", time.process_time, lambda: read_by_library(paths)),
        ("open, read, close alone", time.process_time, lambda: open_read_close(paths)),
        ("records to bytes", time.process_time, lambda: pickle.dumps(records)),
        ("records to rows of a table", time.process_time, lambda: list(map(scan_collection.row_of, records))),
        ("scan, by the clock", time.perf_counter, lambda: list(map(scan_and_forget, batches))),
        (f"{processes} processes, by the clock", time.perf_counter, lambda: list(pool.map(scan_and_forget, batches))),
    ]


def seconds(clock, work):
    start = clock()
    work()
    return clock() - start


def measure(kind, paths, rounds, processes):
    with concurrent.futures.ProcessPoolExecutor(processes) as pool:
        measured = rows(paths, processes, pool)
        times = {name: [] for name, _, _ in measured}
        for _ in range(rounds):
            for name, clock, work in measured:
                times[name].append(seconds(clock, work))
    size = sum(map(os.path.getsize, paths)) / len(paths)
    print(f"{kind}: {len(paths)} files of {size:.0f} bytes\n")
    print(f"| {'':27} | files/s | us/file | of the scan |\n|---|---:|---:|---:|")
    for name, own in times.items():
        scan = times["scan, by the clock" if name.endswith("clock") else "scan"]
        ratio = statistics.median(mine / whole for mine, whole in zip(own, scan))
        median = statistics.median(own)
        print(f"| {name:27} | {len(paths) / median:,.0f} | {median / len(paths) * 1e6:.0f} | {ratio:.2f} |")
    print()


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--files", type=int, default=5000)
    parser.add_argument("--rounds", type=int, default=5)
    parser.add_argument("--processes", type=int, default=os.cpu_count())
    arguments = parser.parse_args()
    shared = "/dev/shm"
    roomy = os.path.isdir(shared) and shutil.disk_usage(shared).free > arguments.files * 20_000
    for kind in KINDS:
        with tempfile.TemporaryDirectory(dir=shared if roomy else None) as folder:
            files = make_files(pathlib.Path(folder), kind, arguments.files)
            measure(kind, files, arguments.rounds, arguments.processes)


if __name__ == "__main__":
    main()
