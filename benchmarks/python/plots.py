"""Two plots: bars of the library against its peers, and the lines of growth."""

from pathlib import Path

import matplotlib

matplotlib.use("svg")
matplotlib.rcParams.update({"svg.fonttype": "none", "svg.hashsalt": "kostyle", "font.size": 9,
                            "axes.spines.top": False, "axes.spines.right": False})
from matplotlib import pyplot  # noqa: E402  (the back end is chosen first)

from results import Results  # noqa: E402

OWN, OTHER = "#c44e52", "#8c9bab"


def bars(axes, title: str, results: Results, platform: str, prefix: str, scale: float, unit: str) -> None:
    found = [(name[len(prefix):], results.median(platform, name) / scale)
             for name in results.rows.get(platform, {}) if name.startswith(prefix)]
    found.sort(key=lambda bar: bar[1], reverse=True)
    axes.set_title(title, loc="left")
    axes.barh([name for name, _ in found], [value for _, value in found],
              color=[OWN if name == "library" else OTHER for name, _ in found])
    for place, (_, value) in enumerate(found):
        axes.text(value, place, f" {value:,.0f} {unit}" if value >= 100 else f" {value:.3g} {unit}", va="center")
    axes.set_xticks([])
    axes.spines["bottom"].set_visible(False)
    axes.margins(x=0.25)


def plot_peers(path: Path, results: Results) -> None:
    panels = [("reading a typical file", "reading/typical/", 1000, "µs"),
              ("reading a compact file", "reading/compact/", 1000, "µs"),
              ("reading a UTF-16 file", "reading/utf16/", 1000, "µs"),
              ("reading a small file", "reading/small/", 1000, "µs"),
              ("memory held per typical file", "memory/typical/", 1000, "KB"),
              ("destroying, per typical file", "destroying/typical/", 1000, "µs"),
              ("walking by index, per call", "walking/index/", 1, "ns"),
              ("walking by next, per call", "walking/next/", 1, "ns"),
              ("saving an indented file, in memory", "saving/memory/indented/", 1000, "µs"),
              ("saving a compact file, in memory", "saving/memory/compact/", 1000, "µs")]
    measured = results.rows.get("native", {})
    panels = [panel for panel in panels if any(name.startswith(panel[1]) for name in measured)]
    if not panels:
        return
    lines = (len(panels) + 1) // 2
    figure, grid = pyplot.subplots(lines, 2, figsize=(10, 1.6 * lines), squeeze=False)
    for axes, panel in zip(grid.flat, panels):
        bars(axes, panel[0], results, "native", *panel[1:])
    for axes in grid.flat[len(panels):]:
        axes.axis("off")
    write(figure, path)


def plot_growth(path: Path, results: Results) -> None:
    works = results.grown_rows("native")
    panels = {"reading": ("read/",), "walking and asking": ("next/", "prev/", "has/", "std-map/next"),
              "editing": ("add-", "insert-", "move-", "create-", "std-map/insert"),
              "saving, overwriting, removing": ("save", "overwrite", "remove")}
    if not works:
        return
    figure, grid = pyplot.subplots(2, 2, figsize=(13, 9))
    for axes, (title, prefixes) in zip(grid.flat, panels.items()):
        axes.set_title(title, loc="left")
        for number, work in enumerate(sorted(work for work in works if work.startswith(prefixes))):
            points = results.growth("native", work)
            slope = results.slope("native", work)
            axes.loglog([n for n, _ in points], [time / 1e6 for _, time in points], marker="o", markersize=3,
                        linewidth=1, linestyle="-" if number < 10 else "--",
                        label=f"{work.removeprefix('read/')}: {slope:.2f}")
        axes.legend(fontsize=7, title="slope", frameon=False, loc="upper left", bbox_to_anchor=(1, 1))
        axes.set_xlabel("elements")
        axes.set_ylabel("milliseconds for all of them")
    write(figure, path)


def write(figure, path: Path) -> None:
    figure.tight_layout()
    figure.savefig(path, format="svg", metadata={"Date": None})
    pyplot.close(figure)
