"""The blocks of code of a Markdown page, each with what the comment in front of its fence says.

    <!-- frame: manager -->     a fragment, which stands in tests/docs/frames/manager.*
    <!-- file: my_host.c -->    saved under this name, where the commands of the page find it
    <!-- in any order -->       lines of a text block that may come in any order
    <!-- only: windows -->      not for the other platform
"""
import dataclasses
import re

COMMENT = re.compile(r"<!-- (?:(frame|file|only): (\S+)|(in any order)) -->")


class Unchecked(Exception):
    """A block of which nothing says how it is checked."""


@dataclasses.dataclass
class Block:
    page: str
    line: int  # of its first line of code
    language: str
    code: str
    notes: dict
    section: int  # counts the headings in front of it

    def __str__(self):
        return f"{self.page}:{self.line}"


def blocks_of(page, text):
    blocks = []
    section, fence, before = 0, None, ""
    for number, line in enumerate(text.splitlines(), 1):
        if fence is not None:
            if line == "```":
                blocks.append(fence)
                fence = None
            else:
                fence.code += line + "\n"
        elif line.startswith("```"):
            fence = Block(page, number + 1, line[3:], "", notes_of(page, number, before), section)
        elif line.lstrip().startswith(("```", "~~~")):
            raise Unchecked(f"{page}:{number}: a fence starts its line and is made of backquotes")
        elif line.startswith("    ") and not before:
            raise Unchecked(f"{page}:{number}: code without a fence")
        elif line.startswith("#"):
            section += 1
        before = line
    if fence is not None:
        raise Unchecked(f"{fence}: no end")
    return blocks


def notes_of(page, number, line):
    if not line.startswith("<!--"):
        return {}
    found = COMMENT.fullmatch(line)
    if not found:
        raise Unchecked(f"{page}:{number - 1}: not known: {line}")
    key, value, order = found.groups()
    return {"order": order} if order else {key: value}
