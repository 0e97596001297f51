"""Fails on an #include in src/ that points up the house, or to the operating system from outside platform/*.cpp.

usage: check_includes.py SRC

A floor is a folder of SRC. It may include itself and the floors below it.
"""
import pathlib
import re
import sys

FLOORS = ["api", "manager", "format", "model", "interfaces", "containers", "platform"]  # from top to bottom
INCLUDE = re.compile(r'^\s*#\s*include\s*(?:(["<])([^">]+)[">]|(\S+))')
STANDARD = set("""
    algorithm any array atomic bitset charconv chrono codecvt complex condition_variable deque exception execution
    filesystem forward_list fstream functional future initializer_list iomanip ios iosfwd iostream istream iterator
    limits list locale map memory memory_resource mutex new numeric optional ostream queue random ratio regex
    scoped_allocator set shared_mutex sstream stack stdexcept streambuf string string_view strstream system_error
    thread tuple type_traits typeindex typeinfo unordered_map unordered_set utility valarray variant vector
    cassert cctype cerrno cfenv cfloat cinttypes climits clocale cmath csetjmp csignal cstdarg cstddef cstdint cstdio
    cstdlib cstring ctime cuchar cwchar cwctype
    assert.h ctype.h errno.h fenv.h float.h inttypes.h limits.h locale.h math.h setjmp.h signal.h stdarg.h stdbool.h
    stddef.h stdint.h stdio.h stdlib.h string.h time.h uchar.h wchar.h wctype.h
    """.split())


def fault(file, src, quoted, header):
    """Why a file may not include a header, or None."""
    own = file.relative_to(src).parts[0]
    folder = header.split("/")[0]
    if not quoted:
        if header in STANDARD or folder == "kostyle":
            return None
        if folder == "rapidjson":
            return None if file == src / "format/json.h" else f"<{header}> belongs into format/json.h alone"
        if own == "platform" and file.suffix == ".cpp":
            return None
        return f"{own} includes <{header}>, which is of the operating system: only platform/*.cpp may"
    if ".." in header.split("/"):
        return f'"{header}" leaves its folder: paths start at src/'
    if folder == "kostyle":
        return None
    if "/" not in header or folder not in FLOORS:
        return f'"{header}" is in no known floor: paths start at src/'
    if FLOORS.index(folder) < FLOORS.index(own):
        return f'{own} includes "{header}" of {folder}, which is above it'
    return None


def faults(src):
    """Each fault as a line; an empty tree is one."""
    files = sorted(file for pattern in ("*.h", "*.hpp", "*.c", "*.cpp") for file in src.rglob(pattern))
    if not files:
        yield f"{src}: no sources"
    known = []
    for file in files:
        floor = file.relative_to(src).parts[0]
        if floor in FLOORS:
            known.append(file)
        else:
            yield f"{file.as_posix()}: {floor} is no known floor"
    for file in known:
        for number, line in enumerate(file.read_text(encoding="utf-8").splitlines(), 1):
            match = INCLUDE.match(line)
            if not match:
                continue
            reason = "an include through a macro cannot be checked" if match[3] else fault(
                file, src, match[1] == '"', match[2])
            if reason:
                yield f"{file.as_posix()}:{number}: {reason}"


def main(src):
    found = list(faults(pathlib.Path(src)))
    print(*found, sep="\n")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
