"""What goes wrong, as exceptions. All of them are of the class Error."""
from __future__ import annotations

import dataclasses
import pathlib
from typing import Optional, Sequence, Tuple

from .codes import Code, code_text


class Error(Exception):
    """Whatever this package raises on its own account."""


class LibraryError(Error, ImportError):
    """The dynamic library cannot be found, cannot be loaded, or lacks a function."""


class EndedError(Error):
    """An object was used whose counterpart in the library is gone: its manager was closed, its style set
    read again, its style removed, saved, overwritten or destroyed."""


class RefusedError(Error, ValueError):
    """A value was refused, and nothing has changed."""


class CodeError(Error):
    """The library answered with a code.

    >>> error = kostyle.CodeError(kostyle.Code.DELETE_FAILED, "old.kostyle")
    >>> error.code.name, error.sentence
    ('DELETE_FAILED', 'the style file cannot be deleted')
    >>> str(error)
    'old.kostyle: the style file cannot be deleted'
    """

    def __init__(self, code: int, subject: str = "") -> None:
        super().__init__(code, subject)
        self.code: int = Code(code) if code in Code.__members__.values() else code
        """A value of Code; a plain number when a later version of the library gives an unknown one."""
        self.subject = subject
        """What it is about: a path, a directory or an identifier; may be empty."""

    @property
    def sentence(self) -> str:
        """The code in words."""
        return code_text(self.code)

    def __str__(self) -> str:
        return f"{self.subject}: {self.sentence}" if self.subject else self.sentence


@dataclasses.dataclass(frozen=True)
class Finding:
    """Something that would not come back from a file, or was not taken over into a copy."""

    place: str
    """Where, as "vendor" or "audio effect 'Reverb', parameter 'mix'"."""
    reason: str
    """Why, in words, without a capital or a full stop."""
    is_loss: bool = dataclasses.field(default=False, compare=False)
    """Whether a style can be saved all the same, and is then read without it or otherwise."""

    def __str__(self) -> str:
        return f"{self.place}: {self.reason}"


class UnsafeError(Error):
    """What was to be saved would not come back from its file. Nothing was written."""

    def __init__(self, findings: Sequence[Finding]) -> None:
        super().__init__(findings)
        self.findings: Tuple[Finding, ...] = tuple(findings)
        """All that would not come back."""

    def __str__(self) -> str:
        return "; ".join(map(str, self.findings))


class NotSavedError(Error):
    """What was written did not come back from its file. A new file was removed; a file that was to be
    overwritten is as it was, or `backup` says where it lies."""

    def __init__(self, path: pathlib.Path, reason: str, backup: Optional[pathlib.Path] = None) -> None:
        super().__init__(path, reason, backup)
        self.path = path
        """The file."""
        self.reason = reason
        """Why it did not come back, in words."""
        self.backup = backup
        """The file as it was, when it could not be put back in its place; else None."""

    def __str__(self) -> str:
        kept = f"; the style as it was is kept in {self.backup}" if self.backup else ""
        return f"{self.path}: {self.reason}{kept}"
