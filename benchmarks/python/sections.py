"""The sections of the benchmark: what each needs, where it runs and how often."""

from dataclasses import dataclass


@dataclass(frozen=True)
class Section:
    name: str
    parts: tuple = ()  # of the data
    windows_parts: tuple | None = None  # None: it is not measured there
    rounds: int = 7
    quick_rounds: int = 5
    least_time: float = 0.02  # seconds for each row that is not run once


SECTIONS = [
    Section("reading", ("sets", "bundles")),
    Section("memory", ("sets",), ("sets",), rounds=3, quick_rounds=1),
    Section("destroying", ("sets",), ("sets",)),
    Section("walking", ("sets",), ("sets",)),
    Section("calls", ("sets",), ("sets",)),
    Section("editing", (), ()),
    Section("saving"),
    Section("growth", ("growth", "growth-files"), ("growth",), rounds=3, quick_rounds=1, least_time=0.005),
    Section("hostile", ("hostile",), rounds=5, quick_rounds=3),
]


@dataclass(frozen=True)
class Scale:
    files: int
    bundles: int
    saves: int
    sizes: tuple
    hostile_bytes: int


FULL = Scale(files=10_000, bundles=1_000, saves=1_000, sizes=(1_000, 3_000, 10_000, 30_000, 100_000),
             hostile_bytes=16 << 20)
QUICK = Scale(files=1_000, bundles=100, saves=200, sizes=(1_000, 3_000, 10_000), hostile_bytes=2 << 20)


def windows_scale(scale: Scale) -> Scale:
    """Reading goes through the emulation there and is not what is measured, so fewer files do."""
    return Scale(min(scale.files, 1_000), 0, 0, scale.sizes, scale.hostile_bytes)
