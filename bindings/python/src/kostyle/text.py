"""Text: Python's str and the library's UTF-16, the same on every platform.

A lone surrogate of the library's text is one in the str, and the other way round. A path's byte that is not
valid in UTF-8 is the same lone surrogate in the library as in os.fsdecode() (where sys.getfilesystemencoding() is
UTF-8, as it is unless a locale of old says otherwise), so paths need no conversion of their own.
"""
from __future__ import annotations

import codecs
import ctypes
import os
import sys
from typing import Iterable, Optional, Union

from .errors import RefusedError

PathLike = Union[str, "os.PathLike[str]"]

_LITTLE = sys.byteorder == "little"
_encode = codecs.utf_16_le_encode if _LITTLE else codecs.utf_16_be_encode
_decode = codecs.utf_16_le_decode if _LITTLE else codecs.utf_16_be_decode
# A read that stays inside an aligned piece of this many bytes stays inside the memory page of its start.
_PIECE = 256


def encode(text: str) -> bytes:
    """The units of a text with a NUL behind them; raises RefusedError, a ValueError, when the text holds one.

    >>> encode("a\\U0001f3b5").hex(" ", 2)
    '6100 3cd8 b5df 0000'
    """
    if not isinstance(text, str):
        raise TypeError(f"a text is a str, not {text!r}")
    if "\0" in text:
        raise RefusedError(f"{text!r} holds U+0000, where the library's texts end")
    return _encode(text, "surrogatepass")[0] + b"\0\0"


def decode(address: Optional[int]) -> str:
    """The text at an address, up to its NUL; empty for a null address."""
    if not address:
        return ""
    # The end of the text is not known, so it is looked for piece by piece.
    piece = ctypes.string_at(address, _PIECE - address % _PIECE)
    end = _find_end(piece)
    return _decode(piece[:end] if end >= 0 else _long_text(address, piece), "surrogatepass", True)[0]


def _long_text(address: int, piece: bytes) -> bytes:
    pieces = []
    end = -1
    while end < 0:
        pieces.append(piece)
        address += len(piece)
        piece = ctypes.string_at(address, _PIECE)
        end = _find_end(piece)
    return b"".join(pieces) + piece[:end]


def _find_end(piece: bytes) -> int:
    """The place of the first unit of zeros, or -1. Two zero bytes may belong to two units."""
    end = piece.find(b"\0\0")
    while end % 2 and end >= 0:
        end = piece.find(b"\0\0", end + 1)
    return end


def units(text: str) -> int:
    """The length of a text as the library counts it, in UTF-16 units."""
    return len(text) + sum(character > "\uffff" for character in text)


def has_lone_surrogate(text: str) -> bool:
    """Whether a text cannot be written to a file.

    >>> has_lone_surrogate("\\ud83c"), has_lone_surrogate("\\U0001f3b5")
    (True, False)
    """
    return any("\ud800" <= character <= "\udfff" for character in text)


def shown(text: str) -> str:
    """A text that any output takes: a lone surrogate becomes U+FFFD.

    >>> ascii(shown("x\\ud83c"))
    "'x\\\\ufffd'"
    """
    return text.encode("utf-16", "surrogatepass").decode("utf-16", "replace")


def several(paths: Iterable[PathLike]) -> Iterable[PathLike]:
    """The paths; raises TypeError for a single one, whose characters would be taken for paths."""
    if isinstance(paths, (str, bytes)):
        raise TypeError(f"paths are needed, not one: {paths!r}")
    return paths


def encode_path(path: PathLike) -> bytes:
    """A path for the library. On Windows it is made absolute and plain, which the library does not do."""
    text = os.fspath(path)
    return encode(os.path.abspath(text) if sys.platform == "win32" else text)
