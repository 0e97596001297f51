"""Creation results: what reading a style set left behind for each file."""
from __future__ import annotations

import os
import pathlib
from typing import Optional

from .codes import Code, Kind
from .errors import CodeError
from .functions import c
from .handles import Handle
from .records import Refusal, read_refusal
from .text import decode


class CreationResult(Handle):
    """What reading one file gave. Ends when its set is read again, and with the manager.

    >>> for result in manager.user_styles.creation_results:
    ...     if result.refusal:
    ...         print(result.path.name, result.refusal, sep=": ")
    half_a_file.kostyle: not valid JSON: a string has no closing quotation mark, line 1, column 33
    """

    @property
    def path(self) -> pathlib.Path:
        """The file: the directory as it was given, and the file's name."""
        return pathlib.Path(decode(c.StyleCreationResult_filePath(self._handle)))

    @property
    def kind(self) -> Kind:
        """The set, Kind.SYSTEM or Kind.USER."""
        return Kind(c.StyleCreationResult_type(self._handle))

    @property
    def id(self) -> str:
        """The identifier in the file, also of one that was refused because another style has it; empty
        after every other refusal."""
        return decode(c.StyleCreationResult_id(self._handle))

    @property
    def taken(self) -> bool:
        """Whether the file's style was taken."""
        return int(c.StyleCreationResult_error(self._handle)) == Code.OK

    @property
    def refusal(self) -> Optional[Refusal]:
        """Why it was not; None when it was. Reads the file again, to find line and column."""
        return None if self.taken else read_refusal(self._handle, self.path)

    def raise_for_refusal(self) -> None:
        """Raises CodeError, with the path, when the style was not taken."""
        if not self.taken:
            raise CodeError(int(c.StyleCreationResult_error(self._handle)), os.fspath(self.path))

    def __repr__(self) -> str:
        return "<CreationResult ended>" if self.ended else f"<CreationResult {self.path}>"
