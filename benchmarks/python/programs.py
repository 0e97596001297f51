"""Runs the programs of the benchmark, natively or under Wine."""

import json
import os
import shutil
import subprocess
import sys
from pathlib import Path

from sections import Scale, Section

ROOT = Path(__file__).resolve().parents[2]


def arguments(scale: Scale) -> list:
    sizes = ",".join(str(size) for size in scale.sizes)
    return [f"--files={scale.files}", f"--bundles={scale.bundles}", f"--saves={scale.saves}",
            f"--sizes={sizes}", f"--hostile-bytes={scale.hostile_bytes}"]


def make_data(folder: Path, parts: set, scale: Scale) -> None:
    if not parts:
        return
    print(f"making data: {', '.join(sorted(parts))}", flush=True)
    program = ROOT / "build/bench/bin/bench-data"
    subprocess.run([program, *sorted(parts), f"--data={folder}", *arguments(scale)], check=True)


class Native:
    name = "native"

    def __init__(self, scratch: Path, library: Path | None):
        self.command = [str(ROOT / "build/bench/bin/bench-kostyle")]
        self.environment = dict(os.environ)
        if library:
            folder = scratch / "library"
            folder.mkdir()
            # Under the name by which the program asks for its own.
            (folder / next((ROOT / "build/bench/lib").glob("libKoStyle.so.[0-9]")).name).symlink_to(library.resolve())
            self.environment["LD_LIBRARY_PATH"] = str(folder)

    @staticmethod
    def path(path: Path) -> str:
        return str(path)


class Windows:
    name = "windows"

    def __init__(self, scratch: Path, library: Path | None):
        built = ROOT / "build/bench-windows/bin"
        folder = scratch / "program"
        folder.mkdir()
        for name in ("bench-kostyle.exe", "plain.dll", "KoStyle.dll"):
            shutil.copy(built / name, folder)
        if library:
            shutil.copy(library, folder / "KoStyle.dll")
        self.command = [str(ROOT / "scripts/run-under-wine"), str(folder / "bench-kostyle.exe")]
        self.environment = dict(os.environ)

    @staticmethod
    def path(path: Path) -> str:
        return "Z:" + str(path).replace("/", "\\")


def run_round(platform, section: Section, scale: Scale, folders: dict, output_folder: Path) -> list:
    """One round of a section: every row once, in random order. Returns the rows as the program wrote
    them."""
    output = output_folder / "round.json"
    folder_arguments = [f"--{name}={platform.path(path)}" for name, path in folders.items()]
    command = [*platform.command, *folder_arguments, *arguments(scale),
               f"--benchmark_filter=^{section.name}/",
               f"--benchmark_min_time={section.least_time}",
               "--benchmark_enable_random_interleaving=true",
               "--benchmark_out_format=json", f"--benchmark_out={platform.path(output)}"]
    ran = subprocess.run(command, env=platform.environment, capture_output=True, text=True, check=False)
    if ran.returncode != 0:
        sys.exit(f"{section.name} failed with {ran.returncode}:\n{ran.stdout}{ran.stderr}")
    return json.loads(output.read_text())["benchmarks"]
