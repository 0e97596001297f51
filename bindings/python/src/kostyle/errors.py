"""What goes wrong, as exceptions. All of them are of the class Error."""
from __future__ import annotations

import dataclasses
import pathlib
from typing import Optional, Sequence, Tuple

from .codes import LOSSES, Code, ProblemKind, code_text, problem_text


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
class Problem:
    """What is lost, cannot be written or went wrong when a style is copied or saved with care.

    >>> problem = kostyle.Problem(kostyle.ProblemKind.VENDOR_LOST, "vendor")
    >>> str(problem), problem.is_loss
    ('vendor: the vendor text is lost', True)
    """

    kind: ProblemKind
    """What is the matter."""
    where: str
    """A path in the style ("name", "genres/Pop", "audio/Reverb", "audio/Reverb/mix"), empty for the whole style,
    or the path of a file."""
    cause: str = ""
    """What is known besides, as what the system said; may be empty."""

    @property
    def sentence(self) -> str:
        """The kind in words, without a capital or a full stop."""
        return problem_text(self.kind)

    @property
    def is_loss(self) -> bool:
        """Whether the style can be saved all the same, but something of it will not come back."""
        return self.kind in LOSSES

    def __str__(self) -> str:
        place = f"{self.where}: " if self.where else ""
        return place + self.sentence + (f" ({self.cause})" if self.cause else "")


class UnsafeError(Error):
    """What was to be saved would not come back from its file, or cannot be put in its place. Nothing was written."""

    def __init__(self, problems: Sequence[Problem]) -> None:
        super().__init__(problems)
        self.problems: Tuple[Problem, ...] = tuple(problems)
        """All that stands in the way."""

    def __str__(self) -> str:
        return "; ".join(map(str, self.problems))


class NotSavedError(Error):
    """What was written did not come back from its file. A new file was removed; a file that was to be
    overwritten is as it was. Where that failed too, the last problem is ProblemKind.NOT_RESTORED."""

    def __init__(self, path: pathlib.Path, problems: Sequence[Problem], backup: Optional[pathlib.Path] = None) -> None:
        super().__init__(path, problems, backup)
        self.path = path
        """The file."""
        self.problems: Tuple[Problem, ...] = tuple(problems)
        """What went wrong: BACKUP_FAILED, NOT_READ_BACK or READ_BACK_DIFFERS, and perhaps NOT_RESTORED."""
        self.backup = backup
        """The file as it was, when it could not be put back in its place; else None."""

    def __str__(self) -> str:
        return "; ".join(map(str, self.problems))
