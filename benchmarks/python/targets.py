"""The targets: what is compared with what, and how far it may go."""

from dataclasses import dataclass

from results import Results
from units import figure


@dataclass(frozen=True)
class Target:
    work: str
    row: str
    other: str | None  # None: the figure itself counts, not a ratio
    limit: float | None  # None: only to compare
    at_least: bool = False
    platforms: tuple = ("native",)
    unit: str = ""

    def value(self, results: Results, platform: str) -> float | None:
        if self.other is None:
            return results.median(platform, self.row)
        return results.ratio(platform, self.row, self.other)

    def met(self, value: float) -> bool:
        if self.limit is None:
            return True
        return value >= self.limit if self.at_least else value <= self.limit


BOTH = ("native", "windows")


def over_parse(files: str, limit: float) -> Target:
    return Target(f"reading, {files}, over the demanded parse alone",
                  f"reading/{files}/library", f"reading/{files}/parse", limit)


def over_library(peer: str, limit: float) -> Target:
    return Target(f"{peer} over reading, typical", f"reading/typical/{peer}",
                  "reading/typical/library", limit, at_least=True)


def walking(by: str) -> Target:
    return Target(f"walking by {by}, over plain C functions", f"walking/{by}/library",
                  f"walking/{by}/plain", 3, platforms=BOTH)


def call(name: str, other: str) -> Target:
    return Target(f"{name.split('/')[1]} over {other.split('/')[-1]}", f"calls/{name}", f"calls/{other}", 2,
                  platforms=BOTH)


SAVING = {"disk": "on disk", "memory": "in memory", "memory-few": "just filled, in memory"}


def saving(place: str, form: str) -> Target:
    return Target(f"saving {form} files, {SAVING[place]}, over RapidJSON alone",
                  f"saving/{place}/{form}/library", f"saving/{place}/{form}/rapidjson", 1.25)


def saving_kept(place: str, form: str) -> Target:
    return Target(f"saving {form} files, {SAVING[place]}, over RapidJSON that keeps a copy",
                  f"saving/{place}/{form}/library", f"saving/{place}/{form}/rapidjson-keeping", None)


def hostile(kind: str) -> Target:
    return Target(f"hostile file, {kind}, over an honest one", f"hostile/{kind}/library",
                  "hostile/honest/library", 2)


TARGETS = [
    over_parse("typical", 1.15),
    over_parse("compact", 1.30),
    over_parse("utf16", 1.30),
    over_parse("small", 1.30),
    over_library("hand-written", 3),
    over_library("lilv", 35),
    Target("memory held per typical file", "memory/typical/library", None, 11_000, platforms=BOTH, unit="B"),
    Target("destroying, over the hand-written", "destroying/typical/library",
           "destroying/typical/hand-written", 0.25, platforms=BOTH),
    walking("index"),
    walking("next"),
    Target("walking by C++ ranges, over the C calls", "walking/ranges/library", "walking/index/library", 1.05,
           platforms=BOTH),
    call("direct/Style_name", "virtual"),
    call("direct/Effect_id", "virtual"),
    call("direct/Parameter_name", "virtual"),
    call("checked/Style_vendor", "direct/Style_name"),
    call("converting/Effect_parent", "direct/Effect_id"),
    call("converting/Parameter_parent", "direct/Parameter_name"),
    call("converting/MutableEffect_parent", "direct/Effect_id-mutable"),
    call("converting/MutableParameter_parent", "direct/Parameter_name-mutable"),
    *(saving(place, form) for place in SAVING for form in ("indented", "compact")),
    *(saving_kept(place, form) for place in SAVING for form in ("indented", "compact")),
    *(hostile(kind) for kind in ("objects", "arrays", "numbers", "strings", "duplicate-effects",
                                 "duplicate-parameters", "duplicate-values", "skipped-members",
                                 "one-string", "one-number", "white-space")),
]
STEEPEST = 1.1  # of every row of growth
COMPARISON = "std-map/"  # how rows of growth start that show the standard library, without a target


def rows_of_table(results: Results) -> list:
    """The targets that were measured, with their values."""
    table = []
    for target in TARGETS:
        for platform in target.platforms:
            value = target.value(results, platform)
            if value is not None:
                table.append({"work": target.work, "platform": platform, "value": value,
                              "limit": target.limit, "at least": target.at_least,
                              "unit": target.unit, "met": target.met(value)})
    for platform in results.rows:
        for work in sorted(results.grown_rows(platform)):
            slope = results.slope(platform, work)
            if slope is not None:
                limit = None if work.startswith(COMPARISON) else STEEPEST
                table.append({"work": f"growth, {work}", "platform": platform, "value": slope, "limit": limit,
                              "at least": False, "unit": "", "met": limit is None or slope <= limit})
    return table


def bound(row: dict) -> str:
    """A row's target in words."""
    if row["limit"] is None:
        return "to compare"
    return f"{'at least' if row['at least'] else 'at most'} {figure(row['limit'], row['unit'])}"
