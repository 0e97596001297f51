"""Mutable styles: built in memory, then saved as a user style or over one."""
from __future__ import annotations

import contextlib
import ctypes
from typing import Tuple

from .attributes import MutableAttributes, MutableLanguages, MutableTexts
from .codes import Code, EffectKind, Limit
from .effects import Effect, MutableChain
from .errors import CodeError, Problem, RefusedError
from .functions import c
from .handles import Destroyable
from .styles import Style, UserStyle
from .text import decode, encode


class MutableStyle(Style, Destroyable):
    """A style in memory that is being made. Ends when it is saved or destroyed, and with its manager; behind
    `with` it is destroyed unless it was saved.

    >>> with manager.create_mutable_style() as style:
    ...     style.name = "Night drive"
    ...     style.genres.add("Synthwave")
    ...     style.audio_effects.append("Filter").parameters.update(cutoff=0.5, poles=4, mode="low")
    ...     saved = style.save_safely()
    >>> saved.name, dict(saved.audio_effects[0].parameters)
    ('Night drive', {'cutoff': 0.5, 'mode': 'low', 'poles': 4})
    >>> style.ended, saved in manager.user_styles
    (True, True)
    """

    not_copied: Tuple[Problem, ...] = ()
    """What mutable_copy() could not take over."""

    def _destroy_in_library(self, address: int) -> None:
        c.MutableStyle_destroy(address)

    @property
    def name(self) -> str:
        """The display name; empty until one is given. Setting it raises RefusedError for a name that has not
        1 to Limit.MAX_NAME_LENGTH UTF-16 units, and the old one stays."""
        return decode(c.Style_name(self._handle))

    @name.setter
    def name(self, name: str) -> None:
        if not c.MutableStyle_setName(self._handle, encode(name)):
            raise RefusedError(f"a style's name has 1 to {int(Limit.MAX_NAME_LENGTH)} UTF-16 units: {name!r}")

    @property
    def languages(self) -> MutableAttributes[int]:
        """The languages: numbers from Limit.MIN_LANGUAGE to Limit.MAX_LANGUAGE, ascending. A live set."""
        return MutableLanguages(self, "languages")

    @property
    def singer_groups(self) -> MutableAttributes[str]:
        """The singer groups: texts that are not empty. A live set."""
        return MutableTexts(self, "singer_groups")

    @property
    def singer_ids(self) -> MutableAttributes[str]:
        """The singer identifiers: texts of Limit.SINGER_ID_LENGTH UTF-16 units. A live set."""
        return MutableTexts(self, "singer_ids")

    @property
    def genres(self) -> MutableAttributes[str]:
        """The genres: texts that are not empty. A live set."""
        return MutableTexts(self, "genres")

    @property
    def sub_genres(self) -> MutableAttributes[str]:
        """The sub-genres: texts that are not empty. A live set."""
        return MutableTexts(self, "sub_genres")

    @property
    def colors(self) -> MutableAttributes[str]:
        """The colours: texts that are not empty. A live set."""
        return MutableTexts(self, "colors")

    @property
    def audio_effects(self) -> MutableChain:
        """The audio chain, live."""
        return MutableChain(self, EffectKind.AUDIO)

    @property
    def midi_effects(self) -> MutableChain:
        """The MIDI chain, live."""
        return MutableChain(self, EffectKind.MIDI)

    def save(self, *, pretty: bool = True) -> UserStyle:
        """Writes the style as a new file of the user directory, under a new UUID, and gives the new user
        style; the mutable one ends. Raises CodeError, and nothing has changed: ARGUMENT_MISSING without a
        name, USER_DIRECTORY_NOT_CREATABLE, OPEN_FAILED, NO_EFFECT.

        What goes wrong while the file is being written is no error, and some of what is written does not
        come back: save_safely() is for that. `pretty` means lines and an indent of 4 spaces."""
        code = ctypes.c_int(Code.OK)
        manager = self.manager
        with self._ending("it was saved") as handle:
            address = c.MutableStyle_save(handle, pretty, ctypes.byref(code))
            if not address:
                raise CodeError(code.value, str(manager.user_directory))
        return manager._user_style(address)

    def overwrite(self, target: UserStyle, *, pretty: bool = True) -> UserStyle:
        """Writes the style over the file of a user style of the same manager, which keeps its identifier and
        path, takes the new content and is given back; its effects and this style end. Raises CodeError, and
        nothing has changed: USER_STYLE_NOT_FOUND for a style of another manager, USER_DIRECTORY_NOT_CREATABLE,
        OPEN_FAILED, WRITE_EMPTY_NAME, NO_EFFECT, TARGET_NOT_REPLACEABLE. overwrite_safely() also looks at what
        goes wrong while the file is being written."""
        if not isinstance(target, UserStyle):
            raise TypeError(f"a user style is needed, not {target!r}")
        if target not in self.manager.user_styles:
            raise CodeError(Code.USER_STYLE_NOT_FOUND, target.id)
        code = ctypes.c_int(Code.OK)
        with contextlib.ExitStack() as ending:
            handle = ending.enter_context(self._ending("it was saved"))
            for effect in target._living(Effect):
                ending.enter_context(effect._ending("its style was overwritten"))
            if not c.MutableStyle_overwrite(handle, encode(target.id), pretty, ctypes.byref(code)):
                raise CodeError(code.value, str(target.path))
        return target

    def save_safely(self, *, pretty: bool = True, accept_losses: bool = False) -> UserStyle:
        """save(), with care: raises UnsafeError before anything is written when something would not come
        back, unless all of it is a loss (Problem.is_loss) and `accept_losses` is true; reads the new file with a
        manager of its own; and when it does not hold what was written, on a full disk say, removes it and raises
        NotSavedError; CodeError when the library refuses, as save() does. On any failure this style stays as it
        is."""
        from .safe_save import save_safely
        return save_safely(self, pretty, accept_losses)

    def overwrite_safely(self, target: UserStyle, *, pretty: bool = True, accept_losses: bool = False) -> UserStyle:
        """overwrite(), with the care of save_safely(); the vendor text of the target is a loss too. On any failure
        the target's file is as it was, and this style stays. The target in memory is then as it was too, but for
        its effects, which end and can be asked for again; when even that failed, until the user styles are read
        again, it shows what was to be written. Beside the file lies meanwhile another one, "kostyle-backup-" and a
        UUID, which a process that is killed leaves behind: it is the old file. No other process may write the file
        at the same time."""
        from .safe_save import overwrite_safely
        return overwrite_safely(self, target, pretty, accept_losses)
