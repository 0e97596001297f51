"""Styles: what all kinds can be asked, and the stored ones."""
from __future__ import annotations

import pathlib
from typing import Tuple, TYPE_CHECKING, Union

from .attributes import read_languages, read_texts
from .codes import Code, EffectKind, Kind
from .effects import Chain
from .errors import CodeError
from .functions import c
from .handles import Handle
from .property_editor import PropertyEditor
from .text import decode

if TYPE_CHECKING:
    from .manager import Manager
    from .mutable import MutableStyle


class Style(Handle):
    """A style of any kind."""

    @property
    def manager(self) -> Manager:
        """The manager that owns the style."""
        from .manager import Manager
        self._handle
        level: Union[Handle, None] = self
        while not isinstance(level, Manager):
            assert level is not None
            level = level._owner
        return level

    @property
    def kind(self) -> Kind:
        """Kind.SYSTEM, Kind.USER or Kind.MUTABLE."""
        return Kind(c.Style_type(self._handle))

    @property
    def name(self) -> str:
        """The display name; empty when the file's name is longer than Limit.MAX_NAME_LENGTH units, and for
        a mutable style that has none yet."""
        return decode(c.Style_name(self._handle))

    def mutable_copy(self) -> MutableStyle:
        """A new mutable style with all that this one has. What cannot be copied is listed in its
        `not_copied`: the vendor, which mutable styles do not have, and what is refused because a U+0000 of
        the file cuts it short."""
        from .copying import mutable_copy
        return mutable_copy(self)

    def __repr__(self) -> str:
        return f"<{type(self).__name__} ended>" if self.ended else f"<{type(self).__name__} {self.name!r}>"


class StoredStyle(Style):
    """A style that was read from a file. Ends when its set is read again, and with its manager.

    >>> club = manager.system_styles.find("concrete-club")
    >>> club.name, club.languages, club.genres
    ('Concrete club', (0,), ('House', 'Techno'))
    >>> [effect.id for effect in club.audio_effects]
    ['Gate', 'Distortion', 'Delay']
    """

    @property
    def id(self) -> str:
        """The identifier, unique over the manager's system and user styles; it never changes."""
        return decode(c.Style_id(self._handle))

    @property
    def path(self) -> pathlib.Path:
        """The file: the directory as it was given, and the file's name."""
        return pathlib.Path(decode(c.Style_path(self._handle)))

    @property
    def vendor(self) -> str:
        """Who made the style; empty when the file does not say. The library never writes it: a style that
        is overwritten or edited loses it in its file, and here when the set is read again."""
        return decode(c.Style_vendor(self._handle))

    @property
    def languages(self) -> Tuple[int, ...]:
        """Numbers from Limit.MIN_LANGUAGE to Limit.MAX_LANGUAGE, ascending; the host and its styles agree on
        what they mean."""
        return read_languages(self._handle)

    @property
    def singer_groups(self) -> Tuple[str, ...]:
        """The singer groups, none of them empty, ascending by UTF-16 units."""
        return read_texts(self._handle, "singer_groups")

    @property
    def singer_ids(self) -> Tuple[str, ...]:
        """The singer identifiers, ascending, each of Limit.SINGER_ID_LENGTH UTF-16 units; one of a file that holds
        U+0000 ends there, and so has fewer."""
        return read_texts(self._handle, "singer_ids")

    @property
    def genres(self) -> Tuple[str, ...]:
        """The genres, none of them empty, ascending by UTF-16 units."""
        return read_texts(self._handle, "genres")

    @property
    def sub_genres(self) -> Tuple[str, ...]:
        """The sub-genres, none of them empty, ascending by UTF-16 units."""
        return read_texts(self._handle, "sub_genres")

    @property
    def colors(self) -> Tuple[str, ...]:
        """The colours: any texts that are not empty, ascending by UTF-16 units."""
        return read_texts(self._handle, "colors")

    @property
    def audio_effects(self) -> Chain:
        """The audio chain, in the order of the file."""
        return Chain(self, EffectKind.AUDIO)

    @property
    def midi_effects(self) -> Chain:
        """The MIDI chain, in the order of the file."""
        return Chain(self, EffectKind.MIDI)


class SystemStyle(StoredStyle):
    """A style of a system directory, which the library never changes."""


class UserStyle(StoredStyle):
    """A style of a user directory. MutableStyle.overwrite() gives it a new content: its effects then end,
    and everything else of it stays."""

    def remove(self) -> None:
        """Deletes the style's file, and ends the style. Raises CodeError with DELETE_FAILED when the file is
        missing or the system refuses, and nothing has changed."""
        path = self.path
        with self._ending("it was removed") as handle:
            code = c.UserStyle_remove(handle)
            if code != Code.OK:
                raise CodeError(code, str(path))

    def property_editor(self) -> PropertyEditor:
        """An editor of name, sub-genres and colours, empty. Ends the editor that the style had."""
        for editor in self._living(PropertyEditor):
            editor._end("the style has another editor")
        return self._child(PropertyEditor, c.UserStyle_createPropertyEditor(self._handle))
