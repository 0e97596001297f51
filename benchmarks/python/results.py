"""What was measured: for every platform and row one value for each round."""

import json
import math
from pathlib import Path
from statistics import median


class Results:
    def __init__(self, rows: dict | None = None):
        self.rows = rows or {}

    def add_round(self, platform: str, measured: list) -> None:
        for row in measured:
            name = row["name"].removesuffix("/iterations:1")
            if row.get("error_occurred") or not row["operations"]:
                raise ValueError(f"{name} was not measured")
            if row["bytes"]:
                value, unit = row["bytes"] / row["operations"], "B"
            else:
                value, unit = row["cpu_time"] / row["operations"], row["time_unit"]
            entry = self.rows.setdefault(platform, {}).setdefault(name, {"unit": unit, "rounds": []})
            entry["rounds"].append(value)

    def rounds(self, platform: str, row: str) -> list | None:
        entry = self.rows.get(platform, {}).get(row)
        return entry and entry["rounds"]

    def median(self, platform: str, row: str) -> float | None:
        rounds = self.rounds(platform, row)
        return rounds and median(rounds)

    def ratio(self, platform: str, row: str, other: str) -> float | None:
        """The median of the ratios of the rounds."""
        rounds, others = self.rounds(platform, row), self.rounds(platform, other)
        if not rounds or not others:
            return None
        return median(a / b for a, b in zip(rounds, others, strict=True))

    def growth(self, platform: str, row: str) -> list:
        """Sizes and the medians of the whole work at each, by size."""
        prefix = f"growth/{row}/"
        sizes = [int(name[len(prefix):]) for name in self.rows.get(platform, {}) if name.startswith(prefix)]
        return [(n, n * self.median(platform, f"{prefix}{n}")) for n in sorted(sizes)]

    def slope(self, platform: str, row: str) -> float | None:
        """Of the line through the points of growth(), both axes logarithmic: 1 is linear, 2 quadratic."""
        points = [(math.log(n), math.log(time)) for n, time in self.growth(platform, row)]
        if len(points) < 2:
            return None
        mean_x = sum(x for x, _ in points) / len(points)
        mean_y = sum(y for _, y in points) / len(points)
        return (sum((x - mean_x) * (y - mean_y) for x, y in points)
                / sum((x - mean_x) ** 2 for x, _ in points))

    def grown_rows(self, platform: str) -> list:
        names = [name.split("/") for name in self.rows.get(platform, {}) if name.startswith("growth/")]
        return list(dict.fromkeys("/".join(parts[1:-1]) for parts in names))


def save(path: Path, about: dict, results: Results, table: list) -> None:
    path.parent.mkdir(parents=True, exist_ok=True)
    content = {"about": about, "targets": table, "rows": results.rows}
    path.write_text(json.dumps(content, indent=1) + "\n")


def load(path: Path) -> Results:
    return Results(json.loads(path.read_text())["rows"])
