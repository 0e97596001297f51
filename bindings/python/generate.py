"""Writes the module kostyle.codes from the C and C++ headers: version, codes, kinds, limits and their sentences.

usage: generate.py INCLUDE CODES.PY

The headers are the one list. Everything that the package knows of these numbers and words stands in them.
"""
import pathlib
import re
import sys
from typing import Dict, Iterator, List, Tuple

# The enumerations of codes.h, their names in Python and the prefix that their members lose.
ENUMERATIONS = [
    ("KoStyleCode", "Code", ("KOSTYLE_ERROR_", "KOSTYLE_")),
    ("KoStyleParseError", "ParseError", ("KOSTYLE_PARSE_",)),
    ("KoStyleKind", "Kind", ("KOSTYLE_KIND_",)),
    ("KoStyleEffectKind", "EffectKind", ("KOSTYLE_EFFECT_",)),
    ("KoStyleParameterType", "ParameterType", ("KOSTYLE_PARAMETER_",)),
    ("KoStyleLimit", "Limit", ("KOSTYLE_",)),
]
SENTENCES = [("KoStyle_codeText", "KoStyleCode", "Code", "code_text"),
             ("KoStyle_parseErrorText", "KoStyleParseError", "ParseError", "parse_error_text")]


def read_header(include: pathlib.Path, name: str) -> str:
    return (include / "kostyle" / name).read_text(encoding="utf-8")


def version(include: pathlib.Path) -> str:
    header = read_header(include, "version.h")
    return ".".join(re.findall(r"define KOSTYLE_VERSION_(?:MAJOR|MINOR|PATCH) (\d+)$", header, re.M))


def one_line(comment: str) -> str:
    return re.sub(r"\s*\n\s*\*\s*", " ", comment).strip()


def members(header: str, name: str) -> Iterator[Tuple[str, int, str]]:
    """Each member of an enumeration with its value and its comment."""
    body = re.search(rf"^enum {name} \{{(.*?)^\}};", header, re.M | re.S)
    if not body:
        raise SystemExit(f"codes.h has no enum {name}")
    for comment, member, value in re.findall(r"/\*\*(.*?)\*/\s*(\w+) = (\d+)", body.group(1), re.S):
        yield member, int(value), one_line(comment)


def comment_of(header: str, name: str) -> str:
    return one_line(re.findall(rf"/\*\*((?:(?!\*/).)*)\*/\s*enum {name} ", header, re.S)[-1]).lstrip("* ")


def without_prefix(member: str, prefixes: Tuple[str, ...]) -> str:
    return next(member[len(prefix):] for prefix in prefixes if member.startswith(prefix))


def enumeration(header: str, name: str, python_name: str, prefixes: Tuple[str, ...]) -> List[str]:
    lines = ["", "", f"class {python_name}(enum.IntEnum):", f'    """{comment_of(header, name)}"""', ""]
    for member, value, comment in members(header, name):
        lines += [f"    {without_prefix(member, prefixes)} = {value}", f'    """{comment}"""'.replace("\\", "\\\\")]
    return lines


def sentences(helpers: str, function: str) -> Tuple[Dict[str, str], str]:
    """The sentence of each member, and that of any other number, as the C function gives them."""
    body = re.search(rf"{function}\(.*?\n\}}\n", helpers, re.S)
    if not body:
        raise SystemExit(f"helpers.h has no {function}")
    texts = dict(re.findall(r'case (\w+):\s*return ("[^\n]*");', body.group()))
    default = re.search(r'default:\s*return ("[^\n]*");', body.group())
    if not texts or not default:
        raise SystemExit(f"{function} is not the switch that is expected")
    return texts, default.group(1)


def sentence_function(codes: str, helpers: str, function: str, enum_name: str, python_enum: str,
                      name: str) -> List[str]:
    texts, default = sentences(helpers, function)
    values = {member: value for member, value, _ in members(codes, enum_name)}
    table = f"_{name.upper()}S"
    lines = ["", "", f"{table} = {{"]
    lines += [f"    {values[member]}: {text}," for member, text in texts.items()]
    lines += ["}", "", "", f"def {name}(number: int) -> str:",
              f'    """One sentence for any number of {python_enum}, without a capital or a full stop."""',
              f"    return {table}.get(number, {default})"]
    return lines


def problem_kinds(header: str) -> List[str]:
    """The kinds of problems, but for those that have no sentence of their own: what the library refuses is a code."""
    body = re.search(r"^enum class ProblemKind \{(.*?)^\};", header, re.M | re.S)
    texts = re.findall(r'case ProblemKind::(\w+):\s*return ("[^\n]*");', header)
    last_loss = re.search(r"isLoss\(\).*kind <= ProblemKind::(\w+);", header)
    if not body or not texts or not last_loss:
        raise SystemExit("problem.hpp is not what is expected")
    described = re.findall(r"/\*\*(.*?)\*/\s*(\w+)", body.group(1), re.S)
    comments = {kind: one_line(comment) for comment, kind in described}
    losses = list(comments)[:list(comments).index(last_loss.group(1)) + 1]
    lines = ["", "", "class ProblemKind(enum.Enum):", f'    """{comment_of(header, "class ProblemKind")}"""', ""]
    for kind, _ in texts:
        lines += [f'    {constant(kind)} = "{kind}"', f'    """{comments[kind]}"""']
    lines += ["", "", "LOSSES = {", *[f"    ProblemKind.{constant(kind)}," for kind in losses], "}",
              '"""The kinds with which a style can be saved, but not all of it comes back."""', "",
              "_PROBLEM_TEXTS = {", *[f"    ProblemKind.{constant(kind)}: {text}," for kind, text in texts], "}", "", "",
              "def problem_text(kind: ProblemKind) -> str:",
              '    """One sentence for a kind of problem, without a capital or a full stop."""',
              "    return _PROBLEM_TEXTS[kind]"]
    return lines


def constant(name: str) -> str:
    """vendorLost as VENDOR_LOST."""
    return re.sub(r"([A-Z])", r"_\1", name).upper()


def generate(include: pathlib.Path) -> str:
    codes, helpers = read_header(include, "codes.h"), read_header(include, "helpers.h")
    lines = ['"""Version, codes, kinds, limits and sentences. Made from the headers by generate.py."""',
             "import enum", "", f'VERSION = "{version(include)}"']
    for entry in ENUMERATIONS:
        lines += enumeration(codes, *entry)
    for function, enum_name, python_enum, name in SENTENCES:
        lines += sentence_function(codes, helpers, function, enum_name, python_enum, name)
    lines += problem_kinds(read_header(include, "cpp/problem.hpp"))
    return "\n".join(lines) + "\n"


if __name__ == "__main__":
    pathlib.Path(sys.argv[2]).write_text(generate(pathlib.Path(sys.argv[1])), encoding="utf-8")
