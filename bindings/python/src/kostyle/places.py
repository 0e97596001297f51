"""Lines and columns in style files, by the rules of the C function KoStyle_findLine()."""
from __future__ import annotations

import re
from typing import Tuple

# The characters of a file; the group takes line ends. A unit that is cut off at the end is a character too.
_UTF8 = re.compile(rb"(\r\n?|\n)|[\xc2-\xff][\x80-\xbf]{0,3}|.", re.S)
_UTF16_LITTLE = re.compile(rb"(\r\0(?:\n\0)?|\n\0)|.[\xd8-\xdb].[\xdc-\xdf]|..|.", re.S)
_UTF16_BIG = re.compile(rb"(\0\r(?:\0\n)?|\0\n)|[\xd8-\xdb].[\xdc-\xdf].|..|.", re.S)
_UTF32_LITTLE = re.compile(rb"(\r\0\0\0(?:\n\0\0\0)?|\n\0\0\0)|....|.{1,3}", re.S)
_UTF32_BIG = re.compile(rb"(\0\0\0\r(?:\0\0\0\n)?|\0\0\0\n)|....|.{1,3}", re.S)

_MARKS = [(b"\0\0\xfe\xff", _UTF32_BIG), (b"\xff\xfe\0\0", _UTF32_LITTLE), (b"\xfe\xff", _UTF16_BIG),
          (b"\xff\xfe", _UTF16_LITTLE), (b"\xef\xbb\xbf", _UTF8)]
# Which of the first four bytes are zero, where there is no mark.
_ZEROS = {"1110": _UTF32_BIG, "0111": _UTF32_LITTLE, "1010": _UTF16_BIG, "0101": _UTF16_LITTLE}


def _encoding(content: bytes) -> Tuple["re.Pattern[bytes]", int]:
    """The characters of a file's encoding, and the size of its byte-order mark."""
    if len(content) < 4:
        return _UTF8, 0
    for mark, characters in _MARKS:
        if content.startswith(mark):
            return characters, len(mark)
    return _ZEROS.get("".join("01"[byte == 0] for byte in content[:4]), _UTF8), 0


def find_line(content: bytes, offset: int) -> Tuple[int, int]:
    """The line and the column, both from 1, that a parse error's offset means: those of the character that
    ends there or reaches beyond it. `content` is the whole file, in any of the encodings that are read. A
    line ends with LF, CR or CR LF; columns count code points, and a byte-order mark is none.

    >>> find_line(b'{\\r\\n  "id": ?', 12)
    (2, 9)
    """
    characters, start = _encoding(content)
    end = min(offset, len(content))
    line = column = 1
    for match in characters.finditer(content, start):
        if match.end() >= end:
            break
        if match.lastindex:
            line, column = line + 1, 1
        else:
            column += 1
    return line, column
