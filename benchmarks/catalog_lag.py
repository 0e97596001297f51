"""Measures how long the page of `kostyle catalog` keeps its reader waiting, with many styles beside few.

usage: catalog_lag.py KOSTYLE [--styles NUMBER] [--few NUMBER] [--rounds NUMBER]

KOSTYLE is the built tool. Styles are made in a temporary folder. Each round opens both pages in a headless Chromium,
one after the other; medians of the rounds are shown, and ratios. Needs the packages of the page's tests. Chromium
draws without a graphics card here, which costs more than on a desktop.
"""
import argparse
import json
import pathlib
import random
import statistics
import subprocess
import sys
import tempfile
import time

from selenium.webdriver.common.by import By
from selenium.webdriver.support.ui import Select

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "tests" / "catalog"))
from browser import browser, set_size  # noqa: E402

GENRES = ["Ambient", "Ballad", "Folk", "House", "Jazz", "Lo-fi", "Pop", "Rock", "Soul", "Synthwave", "Techno", "Trance"]
COLORS = ["violet", "teal", "#ff8800", "gold", "crimson", "#204060", "warm white", "olive"]
EFFECTS = ["Arp", "Chorus", "Compressor", "Delay", "Distortion", "Equalizer", "Filter", "Gate", "HighPass", "Limiter",
           "Phaser", "Quantize", "Reverb", "Saturation", "Transpose", "Tremolo"]
WORDS = ["Amber", "Blue", "City", "Dawn", "Echo", "Field", "Glass", "Harbour", "Iron", "Jade", "Light", "Night", "Rain",
         "River", "Silver", "Stone", "Velvet", "Winter"]
QUERY = "night reverb"

# Keeps when the first card was painted, counted from when the page was asked for.
FIRST_CARD = """
new MutationObserver((changes, observer) => {
  if (!document.querySelector(".card")) return;
  observer.disconnect();
  requestAnimationFrame(() => {
    const channel = new MessageChannel();
    channel.port1.onmessage = () => window.firstCard = performance.now();
    channel.port2.postMessage(null);
  });
}).observe(document, {childList: true, subtree: true});
"""
# Keeps how long it takes from each key to the frame that shows what came of it.
NEXT_PAINT = """
window.lags = [];
addEventListener("keydown", (event) => {
  requestAnimationFrame(() => {
    const channel = new MessageChannel();
    channel.port1.onmessage = () => window.lags.push(performance.now() - event.timeStamp);
    channel.port2.postMessage(null);
  });
}, true);
"""
# The time of each key without the waiting for frames: what script and layout take. The lowest counts of some tries,
# since other programs only add to it.
WORK = """
const query = document.getElementById("query");
const text = arguments[0];
const tries = [];
for (let count = 0; count < 5; ++count) {
  for (let length = 1; length <= text.length; ++length) {
    query.value = text.slice(0, length);
    const start = performance.now();
    query.dispatchEvent(new Event("input", {bubbles: true}));
    document.body.offsetHeight;
    (tries[length - 1] ??= []).push(performance.now() - start);
  }
}
return tries.map((times) => Math.min(...times));
"""
SCROLL = """
const [pixels, frames, done] = arguments;
const times = [];
let before = performance.now();
function frame(now) {
  times.push(now - before);
  before = now;
  scrollBy(0, pixels);
  if (times.length <= frames) requestAnimationFrame(frame);
  else done(times.slice(1));
}
requestAnimationFrame(frame);
"""
CHANGE = """
const [control, value, done] = arguments;
const start = performance.now();
control.value = value;
control.dispatchEvent(new Event("change", {bubbles: true}));
requestAnimationFrame(() => {
  const channel = new MessageChannel();
  channel.port1.onmessage = () => done(performance.now() - start);
  channel.port2.postMessage(null);
});
"""


def style(number):
    generator = random.Random(number)

    def some(values, most):
        return generator.sample(values, generator.randint(1, most))

    def chain(most):
        return {name: {"parameter": {f"parameter {place}": generator.choice([generator.randrange(128), 0.25, "hall"])
                                     for place in range(generator.randint(1, 8))}} for name in some(EFFECTS, most)}

    return {"id": f"style-{number}", "name": f"{' '.join(some(WORDS, 3))} {number}", "vendor": f"Maker {number % 40}",
            "filter": {"languages": some([0, 1, 2, 3, 4], 2), "singerGroups": some(["Solo", "Duo", "Choir"], 2),
                       "genres": some(GENRES, 3), "subGenres": some(GENRES, 2), "colors": some(COLORS, 3)},
            "audioEffect": chain(6), "midiEffect": chain(3)}


def make_page(kostyle, folder, count):
    styles = folder / f"{count}"
    styles.mkdir()
    for number in range(count):
        (styles / f"{number}.kostyle").write_text(json.dumps(style(number)), encoding="utf-8")
    page = folder / f"{count}.html"
    start = time.monotonic()
    subprocess.run([kostyle, "catalog", str(styles), "-o", str(page)], check=True)
    print(f"{count} styles: {page.stat().st_size / 1e6:.1f} MB, made in {time.monotonic() - start:.2f} s")
    return page


def measure(page):
    """The figures of one page, in milliseconds."""
    with browser() as driver:
        set_size(driver, 1280, 900)
        driver.set_script_timeout(60)
        driver.execute_cdp_cmd("Page.addScriptToEvaluateOnNewDocument", {"source": FIRST_CARD})
        driver.get(page.as_uri())
        time.sleep(1)
        figures = {"opened until cards are painted": driver.execute_script("return window.firstCard")}
        driver.execute_script(NEXT_PAINT)
        query = driver.find_element(By.ID, "query")
        for key in QUERY:
            query.send_keys(key)
            time.sleep(0.1)
        for _ in QUERY:
            query.send_keys("\b")
            time.sleep(0.1)
        lags = driver.execute_script("return window.lags")
        figures["key until painted, median"] = statistics.median(lags)
        figures["key until painted, longest"] = max(lags)
        figures["key, script and layout alone"] = statistics.median(driver.execute_script(WORK, QUERY))
        query.clear()
        genre = driver.find_element(By.ID, "filter-genre")
        order = driver.find_element(By.ID, "filter-order")
        figures["filter until painted"] = driver.execute_async_script(CHANGE, genre, "Jazz")
        figures["all again until painted"] = driver.execute_async_script(CHANGE, genre, "")
        figures["new order until painted"] = driver.execute_async_script(CHANGE, order, "Vendor")
        assert Select(order).first_selected_option.text == "Vendor"
        frames = driver.execute_async_script(SCROLL, 120, 240)
        figures["frame while scrolling, median"] = statistics.median(frames)
        figures["frame while scrolling, 95 %"] = statistics.quantiles(frames, n=20)[-1]
        figures["frame while scrolling, longest"] = max(frames)
    return figures


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("kostyle")
    parser.add_argument("--styles", type=int, default=5000)
    parser.add_argument("--few", type=int, default=50)
    parser.add_argument("--rounds", type=int, default=5)
    options = parser.parse_args()
    with tempfile.TemporaryDirectory(prefix="kostyle-catalog-") as name:
        pages = [make_page(options.kostyle, pathlib.Path(name), count) for count in (options.few, options.styles)]
        rounds = [[measure(page) for page in pages] for _ in range(options.rounds)]
    print(f"{'milliseconds':34}{options.few:>10}{options.styles:>10}{'ratio':>8}")
    for row in rounds[0][0]:
        few, many = (statistics.median(figures[place][row] for figures in rounds) for place in (0, 1))
        ratio = statistics.median(figures[1][row] / figures[0][row] for figures in rounds)
        print(f"{row:34}{few:10.1f}{many:10.1f}{ratio:8.2f}")


if __name__ == "__main__":
    main()
