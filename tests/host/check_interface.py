"""The public headers declare the interface that was released: functions, entry points, codes and limits.

usage: check_interface.py [--write] INCLUDE EXPORTS.TXT INTERFACE.TXT

--write releases what the headers say now. What may change, and when, stands in docs/stability.md.
"""
import difflib
import pathlib
import re
import sys


def without_comments(text):
    return re.sub(r"/\*.*?\*/", " ", text, flags=re.S)


def one_line(text):
    return re.sub(r"\s+", " ", text).replace("( ", "(").strip()


def bindings(exports):
    """The entry point of each name that shares one."""
    lines = exports.read_text(encoding="ascii").splitlines()
    return dict(line.split(" = ") for line in lines if " = " in line and not line.startswith("#"))


def functions(header, entries):
    for declaration in re.findall(r"^KOSTYLE_API ([^;{]+);", header, flags=re.M):
        signature = one_line(declaration)
        name = re.search(r"(\w+)\(", signature).group(1)
        yield name, f"{signature};" + (f"  at {entries[name]}" if name in entries else "")


def constants(header):
    for body in re.findall(r"^enum \w+ \{(.*?)\};", header, flags=re.M | re.S):
        for name, value in re.findall(r"\b(KOSTYLE_\w+) = ([^,]+?)\s*(?:,|$)", body):
            yield name, f"{name} = {one_line(value)}"
    for name, value in re.findall(r"^#define (KOSTYLE_(?:MIN|MAX)_\w+|KOSTYLE_\w+_LENGTH) (\S+)$", header, flags=re.M):
        yield name, f"{name} = {value}"


def interface(include, exports):
    entries = bindings(exports)
    found_functions, found_constants = {}, {}
    for path in sorted((include / "kostyle").glob("*.h")):
        header = without_comments(path.read_text(encoding="utf-8"))
        found_functions.update(functions(header, entries))
        found_constants.update(constants(header))
    names = {line.split(" = ")[0] for line in exports.read_text(encoding="ascii").splitlines() if line[:1].isalpha()}
    if names != set(found_functions):
        sys.exit(f"exported or declared alone: {sorted(names ^ set(found_functions))}")
    lines = [found_functions[name] for name in sorted(found_functions)]
    return lines + [""] + [found_constants[name] for name in sorted(found_constants)]


def main(arguments):
    write = arguments[:1] == ["--write"]
    include, exports, released = map(pathlib.Path, arguments[write:])
    lines = interface(include, exports)
    if write:
        released.write_text("\n".join(lines) + "\n", encoding="ascii")
        return 0
    expected = released.read_text(encoding="ascii").splitlines()
    difference = list(difflib.unified_diff(expected, lines, str(released), str(include), lineterm="", n=0))
    print("\n".join(difference) or f"{len(lines) - 1} functions and constants as released")
    return 1 if difference else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
