"""Compiles and runs the code of a Markdown page; fails on a block that it does not know how to check.

usage: check_examples.py PAGE SOURCE BUILD CC CXX [EMULATOR...]

Programs and fragments are started with two folders, copies of the system and the user styles in examples/styles.
They must end well and write nothing to stderr, and when a text block follows in the same section print that. Commands
run in a folder that looks like a checkout. What is for this platform only is left out on the other; with an EMULATOR
that is Windows, where neither commands nor Python are run.
"""
import concurrent.futures
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import textwrap

from markdown import Unchecked, blocks_of

STRICT = ["-Wall", "-Wextra", "-Wpedantic", "-Wconversion", "-Wshadow", "-Werror"]
EXTENSIONS = {"c": ".c", "cpp": ".cpp", "python": ".py"}
SAVED = ["cmake", "json"]

# The name of a frame: the files that it stands in, and the folder of user styles that it is started with.
FRAMES = {"manager": ("manager", "user"), "refused": ("manager", "broken")}

# Commands that are not run here, and why.
NOT_RUN = {
    "scripts/setup": "installs packages",
    "scripts/demo": "takes minutes",
    "scripts/test": "runs this",
    "scripts/package": "builds everything afresh",
    "apt install ./build/packages/*.deb": "tests/install does so in a clean root",
    "scripts/bench": "takes minutes",
    "scripts/docs": "a step of scripts/test",
    "cmake --preset native": "has been done by who runs this",
    "cmake --build --preset native": "has been done by who runs this",
    "ctest --preset native": "runs this",
    "pip install ./bindings/python": "tests/python makes and installs the wheel",
}
PREFIX = "/opt/kostyle"  # where the pages install to


class Page:
    def __init__(self, folder, page, source, build, compilers, emulator):
        self.folder, self.source, self.build = folder, source, build
        self.compilers, self.emulator = compilers, emulator
        self.page = page
        self.blocks = blocks_of(page.name, page.read_text(encoding="utf-8"))
        self.checkout = folder / "checkout"
        self.failures = []
        self.runs = 0

    def check(self):
        for block in self.blocks:
            self.expect_known(block)
        self.lay_out_checkout()
        for block in self.blocks:
            if "file" in block.notes:
                file = self.checkout / block.notes["file"]
                file.parent.mkdir(exist_ok=True)
                file.write_text(block.code, encoding="utf-8")
        with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
            started = {id(block): pool.submit(self.run_program, block) for block in self.blocks
                       if block.language in EXTENSIONS and self.is_for_here(block)}
            outputs = []
            for block in self.blocks:
                if block.language == "text":
                    self.compare(block, [each for each in outputs if each[0].section == block.section])
                    outputs = []
                elif block.language in EXTENSIONS:
                    outputs.append((block, started[id(block)].result() if id(block) in started else None))
                elif block.language == "sh":
                    outputs.append((block, self.run_commands(block) if self.is_for_here(block) else None))

    def expect_known(self, block):
        known = [*EXTENSIONS, "sh", "text", *SAVED]
        if block.language not in known:
            raise Unchecked(f"{block}: not one of {known}: {block.language!r}")
        if block.language in SAVED and "file" not in block.notes:
            raise Unchecked(f"{block}: has no name to be saved under")
        if block.notes.get("frame", "manager") not in FRAMES:
            raise Unchecked(f"{block}: no frame {block.notes['frame']}")
        if block.notes.get("only", "linux") not in ["linux", "windows"]:
            raise Unchecked(f"{block}: no platform {block.notes['only']}")

    def is_for_here(self, block):
        windows = bool(self.emulator)
        if windows and block.language in ["sh", "python"]:
            return False
        return block.notes.get("only") in [None, "windows" if windows else "linux"]

    def lay_out_checkout(self):
        self.checkout.mkdir()
        if any(block.language == "sh" for block in self.blocks):
            shutil.copytree(self.source, self.checkout, dirs_exist_ok=True,
                            ignore=shutil.ignore_patterns("build", ".git", "__pycache__"))
            (self.checkout / "build").mkdir()
            (self.checkout / "build" / "native").symlink_to(self.build)
        for library in (self.build / "bin").glob("*.dll"):  # found beside the programs
            shutil.copy(library, self.folder)

    def run_program(self, block):
        name = f"{block.language}_{block.line}"
        file = self.folder / (name + EXTENSIONS[block.language])
        frame, user = FRAMES[block.notes.get("frame", "manager")]
        file.write_text(self.framed(block, frame) if "frame" in block.notes else marked(block), encoding="utf-8")
        command = [sys.executable, file] if block.language == "python" else self.compile(block, file, name)
        if not command:
            return None
        folders = self.folder / (name + "_styles")
        shutil.copytree(self.source / "examples" / "styles", folders)
        return self.run(block, [*command, self.native(folders / "system"), self.native(folders / user)])

    def framed(self, block, frame):
        frame_file = pathlib.Path(__file__).parent / "frames" / (frame + EXTENSIONS[block.language])
        text = frame_file.read_text(encoding="utf-8")
        indent, place = re.search(r"^( *)(# fragment|/\* fragment \*/)\n", text, re.M).groups()
        return text.replace(f"{indent}{place}\n", textwrap.indent(marked(block), indent))

    def compile(self, block, file, name):
        c = block.language == "c"
        command = [self.compilers[0 if c else 1], "-std=c11" if c else "-std=c++17", *STRICT,
                   f"-I{self.source / 'include'}", file, "-o", self.folder / (name + ".exe"), "-pthread"]
        libraries = self.build / "lib"
        if self.emulator:
            command += [libraries / "libKoStyle.dll.a", "-static", *(["-municode"] if "wmain" in block.code else [])]
        else:
            command += [f"-L{libraries}", "-lKoStyle", f"-Wl,-rpath,{libraries}"]
        compiled = subprocess.run(command, capture_output=True, text=True, encoding="utf-8")
        if compiled.returncode != 0 or compiled.stderr:
            self.failures.append(f"{block}: does not compile\n{compiled.stderr}")
            return None
        return [*self.emulator, self.folder / (name + ".exe")]

    def native(self, path):
        """A path as users of the platform write it."""
        return "Z:" + str(path).replace("/", "\\") if self.emulator else str(path)

    def run_commands(self, block):
        prefix = str(self.folder / "prefix")
        lines = [runnable(line) for line in re.sub(r" *\\\n *", " ", block.code).splitlines()]
        script = "\n".join(lines).replace(PREFIX, prefix)
        return self.run(block, ["bash", "-euo", "pipefail", "-c", script]) if script.strip() else None

    def run(self, block, command):
        environment = {**os.environ, "PYTHONDONTWRITEBYTECODE": "1", "PYTHONIOENCODING": "utf-8",
                       "CMAKE_GENERATOR": "Ninja"}
        if block.language == "python":
            environment["PYTHONPATH"] = str(self.build / "python")
        self.runs += 1
        run = subprocess.run(command, cwd=self.checkout, env=environment, capture_output=True, text=True,
                             encoding="utf-8")
        if run.returncode != 0 or run.stderr:
            self.failures.append(f"{block}: exit code {run.returncode}\n{run.stdout}{run.stderr}")
        return run.stdout

    def compare(self, block, outputs):
        if not outputs:
            raise Unchecked(f"{block}: nothing in front of it prints that")
        for source, printed in outputs:
            if printed is not None and not is_like(printed, block.code, "order" in block.notes):
                self.failures.append(f"{source}: expected\n{block.code}printed\n{printed}")


def marked(block):
    """The code with its place in the page, for the compiler's messages."""
    if block.language == "python":
        return block.code
    return f'#line {block.line} "{block.page}"\n{block.code}'


def runnable(line):
    """What is left of a line of commands without those that are not run."""
    commands = re.sub(r"(^|\s+)#.*", "", line).split(" && ")
    return " && ".join(each for each in commands if each.strip() not in NOT_RUN)


def is_like(printed, expected, any_order):
    """Whether a text is what is expected, where three dots stand for anything in a line."""
    found, wanted = printed.splitlines(), expected.splitlines()
    if any_order:
        found, wanted = sorted(found), sorted(wanted)
    patterns = [".*".join(map(re.escape, line.split("..."))) for line in wanted]
    return len(found) == len(wanted) and all(map(re.fullmatch, patterns, found))


def main(page, source, build, cc, cxx, *emulator):
    with tempfile.TemporaryDirectory() as folder:
        try:
            checked = Page(pathlib.Path(folder), pathlib.Path(page), pathlib.Path(source), pathlib.Path(build),
                           (cc, cxx), list(emulator))
            checked.check()
        except Unchecked as unchecked:
            sys.exit(str(unchecked))
    if checked.failures:
        sys.exit("\n".join(checked.failures))
    print(f"{checked.page.name}: {len(checked.blocks)} blocks, {checked.runs} runs")


if __name__ == "__main__":
    main(*sys.argv[1:])
