"""Collections of styles, and the pages that the tool makes of them."""
import json
import os
import pathlib
import subprocess
import tempfile

TOOL = os.environ["KOSTYLE_TOOL"]


def style(number, **members):
    """A small style; `members` are further ones, or others in the place of its own."""
    return {"id": f"style-{number}", "name": f"Style {number}",
            "audioEffect": {"Reverb": {"parameter": {"mix": 0.25}}}, **members}


class Page:
    """A page in a temporary folder, made of contents of files by their names: documents, or texts as they are."""

    def __init__(self, files, title="Tried styles", further=()):
        self._folder = tempfile.TemporaryDirectory(prefix="kostyle-catalog-")
        folders = []
        for number, contents in enumerate([files, *further]):
            folder = pathlib.Path(self._folder.name, f"sounds {number}")
            folder.mkdir()
            folders.append(str(folder))
            for name, content in contents.items():
                text = content if isinstance(content, str) else json.dumps(content)
                (folder / name).write_text(text, encoding="utf-8")
        self.path = pathlib.Path(self._folder.name, "page.html")
        command = [TOOL, "catalog", *folders, "--title", title, "-o", str(self.path)]
        outcome = subprocess.run(command, capture_output=True, text=True)
        if outcome.returncode not in (0, 1) or not self.path.exists():
            raise RuntimeError(outcome.stderr)
        self.url = self.path.as_uri()

    def close(self):
        self._folder.cleanup()


NIGHT = {
    "id": "night", "name": "Harbour at night", "vendor": "Example sounds",
    "filter": {"languages": [3, 0], "singerGroups": ["Duo"], "singerIDs": ["a0f1c2d3e4b5968f"],
               "genres": ["Synthwave", "Ambient"], "subGenres": ["Retro"], "colors": ["violet", "warm white"]},
    "audioEffect": {"Chorus": {"parameter": {"depth": 0.4, "voices": 3, "mode": "wide"}},
                    "Reverb": {"parameter": {"mix": 0.25, "size": "hall"}}},
    "midiEffect": {"Arp": {"parameter": {"pattern": "1221"}}},
}
MORNING = {
    "id": "morning", "name": "Été clair", "vendor": "Another maker",
    "filter": {"languages": [1], "genres": ["Ambient"], "colors": ["#ff8800"]},
    "audioEffect": {"Delay": {"parameter": {"time": 250}}},
    "note": "kept nowhere",
}
PLAIN = {"id": "plain", "name": "Plain", "midiEffect": {"Transpose": {"parameter": {}}}}
NAMELESS = {"id": "nameless", "name": "x" * 101, "audioEffect": {"Gate": {"parameter": {"level": -40}}}}


def small():
    """Four styles and two files that are refused, in three folders."""
    return Page({"night.kostyle": NIGHT, "morning.kostyle": MORNING, "broken.kostyle": '{"id": "x",\n "name": }'},
                further=[{"plain.kostyle": PLAIN, "nameless.kostyle": NAMELESS},
                         {"same.kostyle": {**PLAIN, "name": "Twin"}}])


def many(count):
    """So many styles that a window shows but the first of them."""
    return Page({f"{number}.kostyle": style(number, filter={"genres": ["Even", "Odd"][number % 2:][:1]})
                 for number in range(count)})


SCRIPT = "<script>window.reached = true; alert('reached')</script>"
HOSTILE_TEXTS = [
    SCRIPT, f"</script>{SCRIPT}", f"<!--<script>{SCRIPT}", f"-->{SCRIPT}", f"]]>{SCRIPT}", f"\"'>{SCRIPT}",
    f"</title>{SCRIPT}",
    "<img src=x onerror='window.reached = true'>", "<svg onload='window.reached = true'>",
    "<iframe src='https://example.org'></iframe>", "<link rel=stylesheet href='https://example.org/a.css'>",
    "<base href='https://example.org/'>", "<meta http-equiv=refresh content='0;https://example.org'>",
    "javascript:window.reached=true", "url(https://example.org/a.png)", "red;background:url(https://example.org/b.png)",
    "{{constructor.constructor('window.reached=true')()}}", "${window.reached=true}", "__proto__", "constructor",
    "&lt;b&gt;&amp;", "a\u2028b\u2029c", "\u202egnp.exe", "\u2067\u2066\u200f", "\x07\x1b[31mred\x7f", "\x00cut",
    "𝄞\ufffe",
    "\\u003cscript\\u003e", "A" * 5000,
]


def hostile():
    """Styles that have markup, scripts and what turns text wherever a style can have text."""
    files = {}
    for number, text in enumerate(HOSTILE_TEXTS):
        files[f"{number}.kostyle"] = {
            "id": f"{number} {text}", "name": text[:100] or "x", "vendor": text, text: text,
            "filter": {"singerGroups": [text], "genres": [text, "Known"], "subGenres": [text], "colors": [text],
                       "singerIDs": [(text + "." * 16)[:16]]},
            "audioEffect": {text: {"parameter": {text: text, "mix": 0.25}}}, "midiEffect": {text: {"parameter": {}}},
        }
    files["lone.kostyle"] = ('{"id": "lone", "name": "lone \\udc00 <b>", "audioEffect": {"E": {"parameter": '
                             '{"p": "\\udfff"}}}}')
    files[f"&lt;{SCRIPT.replace('/', '')}.kostyle"] = "{<script>"
    return Page(files, title=f"</title>{SCRIPT}")
