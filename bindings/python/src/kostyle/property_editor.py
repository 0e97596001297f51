"""Giving a user style another name, other sub-genres and other colours."""
from __future__ import annotations

from typing import Iterable, List, Optional, Tuple, TYPE_CHECKING

from .codes import Code, Limit
from .errors import CodeError, Problem, RefusedError
from .functions import c
from .handles import Destroyable, Handle
from .text import encode, units

if TYPE_CHECKING:
    from .records import StyleRecord
    from .styles import UserStyle


class PropertyEditor(Destroyable):
    """Collects a name, sub-genres and colours, and writes the user style's own file anew with them. It
    starts empty: what the style has of the three is replaced, not extended. Ends with its style, when the
    style gets another editor, and behind `with`.

    >>> demo = manager.user_styles.find("0d9c5f62-91a4-4c0e-8a17-3f2be1d9c802")
    >>> with demo.property_editor() as editor:
    ...     editor.name = "Kitchen demo, take 4"
    ...     editor.add_color("green")
    ...     lost = editor.save_safely()
    >>> demo.name, demo.sub_genres, demo.colors
    ('Kitchen demo, take 4', (), ('green',))
    """

    def __init__(self, address: int, owner: Optional[Handle]) -> None:
        super().__init__(address, owner)
        self._name = ""
        self._sub_genres: List[str] = []
        self._colors: List[str] = []

    def _destroy_in_library(self, address: int) -> None:
        c.UserStyle_destroyPropertyEditor(self._style._handle)

    @property
    def _style(self) -> UserStyle:
        style: UserStyle = self._owner  # type: ignore[assignment]
        return style

    @property
    def name(self) -> str:
        """The name that was given last; empty at first. Setting it raises RefusedError for an empty one."""
        self._handle
        return self._name

    @name.setter
    def name(self, name: str) -> None:
        if not c.PropertyEditor_setStyleName(self._handle, encode(name)):
            raise RefusedError("a style's name is not empty")
        self._name = name

    @property
    def sub_genres(self) -> Tuple[str, ...]:
        """The sub-genres that were added."""
        self._handle
        return tuple(self._sub_genres)

    @property
    def colors(self) -> Tuple[str, ...]:
        """The colours that were added."""
        self._handle
        return tuple(self._colors)

    def add_sub_genre(self, sub_genre: str) -> None:
        """Adds a sub-genre; raises RefusedError when it is empty or added already."""
        if not c.PropertyEditor_addSubGenre(self._handle, encode(sub_genre)):
            raise RefusedError(f"a sub-genre is neither empty nor added already: {sub_genre!r}")
        self._sub_genres.append(sub_genre)

    def add_color(self, color: str) -> None:
        """Adds a colour; raises RefusedError when it is empty or added already."""
        if not c.PropertyEditor_addColor(self._handle, encode(color)):
            raise RefusedError(f"a colour is neither empty nor added already: {color!r}")
        self._colors.append(color)

    def save(self) -> None:
        """Writes the file in place, without a copy and without looking back: a full disk goes unnoticed,
        and the vendor text is lost. Raises RefusedError without a name of 1 to Limit.MAX_NAME_LENGTH units,
        and CodeError when the file cannot be opened; nothing is written then. The editor keeps what it has."""
        self._require_name()
        if not c.PropertyEditor_save(self._handle, True):
            raise CodeError(Code.OPEN_FAILED, str(self._style.path))

    def _require_name(self) -> None:
        self._handle
        if not 1 <= units(self._name) <= Limit.MAX_NAME_LENGTH:
            raise RefusedError(f"a style's name has 1 to {int(Limit.MAX_NAME_LENGTH)} UTF-16 units: {self._name!r}")

    def save_safely(self) -> Tuple[Problem, ...]:
        """save(), with the care of MutableStyle.save_safely(): raises UnsafeError before it writes when the
        style holds what cannot be written again, reads back what it wrote, and raises NotSavedError with
        the file and the style as they were; a style without a name then shows the new properties until it is read
        again. Gives what the file has lost: the vendor."""
        from .safe_save import edit_safely
        return edit_safely(self, self._style)

    def _put_back(self, before: StyleRecord) -> None:
        """Gives the style in memory its former name, sub-genres and colours. That takes an editor with nothing
        else in it; afterwards this one has again what it collected. Without a former name it does nothing."""
        wanted = (self._name, self._sub_genres, self._colors)
        try:
            self._fill(before.name, before.sub_genres, before.colors)
            c.PropertyEditor_save(self._handle, True)
        finally:
            self._fill(*wanted)

    def _fill(self, name: str, sub_genres: Iterable[str], colors: Iterable[str]) -> None:
        style = self._style._handle
        self._become(lambda: int(c.UserStyle_createPropertyEditor(style)), "it was being exchanged")
        self._name, self._sub_genres, self._colors = name, list(sub_genres), list(colors)
        c.PropertyEditor_setStyleName(self._handle, encode(name))
        for sub_genre in sub_genres:
            c.PropertyEditor_addSubGenre(self._handle, encode(sub_genre))
        for color in colors:
            c.PropertyEditor_addColor(self._handle, encode(color))

    def __repr__(self) -> str:
        return "<PropertyEditor ended>" if self.ended else f"<PropertyEditor of {self._style!r}>"
