"""Managers: they read the directories and own everything else."""
from __future__ import annotations

import ctypes
import os
import pathlib
from types import TracebackType
from typing import Any, Callable, Dict, Generic, Iterable, NamedTuple, Optional, Sequence, Tuple, Type, TypeVar

from .codes import Code, Kind
from .creation_results import CreationResult
from .errors import CodeError
from .functions import c, registry
from .handles import Handle, HandleSequence
from .mutable import MutableStyle
from .styles import StoredStyle, SystemStyle, UserStyle
from .text import PathLike, decode, encode, encode_path, several

S = TypeVar("S", bound=StoredStyle)


class SetFunctions(NamedTuple):
    """The C functions of one style set."""

    size: Callable[[int], int]
    at: Callable[[int, int], int]
    has: Callable[[int, int], bool]
    result_count: Callable[[int], int]
    result_at: Callable[[int, int], int]


class StyleSet(HandleSequence[S], Generic[S]):
    """The styles of one kind, in the order in which they were read; user styles that were saved since come
    last. It is live: it shows what the manager holds when it is asked. len() of a large set is quick, find()
    looks at one style after the other."""

    def __init__(self, owner: Handle, kind: Type[S], own: SetFunctions) -> None:
        super().__init__(lambda: int(own.size(owner._handle)),
                         lambda index: owner._child(kind, own.at(owner._handle, index)))
        self._owner = owner
        self._functions = own

    def find(self, id: str) -> Optional[S]:
        """The style with an identifier; None when there is none."""
        return next((style for style in self if style.id == id), None)

    def __contains__(self, style: object) -> bool:
        if not isinstance(style, StoredStyle) or style.ended:
            return False
        return bool(self._functions.has(self._owner._handle, style._handle))

    @property
    def creation_results(self) -> Sequence[CreationResult]:
        """One for each file that the last read opened, whether its style was taken or not, in that order.
        Files that cannot be opened have none."""
        owner, own = self._owner, self._functions
        return HandleSequence(lambda: int(own.result_count(owner._handle)),
                              lambda index: owner._child(CreationResult, own.result_at(owner._handle, index)))


# The living managers by their addresses: an application identifier has one.
_managers: Dict[int, Manager] = {}


class Manager(Handle):
    """Reads the styles of a system and a user directory, and owns them.

    An application identifier has one manager in a process: when there is one already, it is the one that is
    given, whatever the directories, and closing it closes it for all. Other code of the process that shares the
    library must not destroy a manager that Python uses. The directories:

    - `system_directory` has to exist; `user_directory` is made with all its parents when it does not;
    - `system_directories` and `user_directories` are read too, in this order, when they exist.

    Raises CodeError: APP_ID_MISSING, SYSTEM_DIRECTORY_MISSING, USER_DIRECTORY_NOT_CREATABLE. A new manager is
    empty; read() fills it. Behind `with` it is closed.

    Threads: a manager and all that it owns are used by one thread at a time, different managers by different
    threads at the same time. Long operations let other threads of Python run.

    >>> with kostyle.Manager("shop", system_directory, user_directory) as shop:
    ...     shop.read()
    ...     sorted(style.name for style in shop.system_styles)[:2]
    ['Concrete club', 'First lesson']
    """

    def __new__(cls, app_id: str, system_directory: PathLike, user_directory: PathLike, *,
                system_directories: Iterable[PathLike] = (),
                user_directories: Iterable[PathLike] = ()) -> Manager:
        code = ctypes.c_int(Code.OK)
        arguments = (encode(app_id), encode_path(system_directory), encode_path(user_directory),
                     *_path_array(system_directories), *_path_array(user_directories), ctypes.byref(code))
        create = c.CreateStyleManager
        with registry:
            address = create(*arguments)
            if not address:
                raise CodeError(code.value, _subject(code.value, system_directory, user_directory))
            if address not in _managers or _managers[address].ended:
                manager = super().__new__(cls)
                Handle.__init__(manager, address, None)
                manager._system = Handle(address, manager)
                manager._user = Handle(address, manager)
                _managers[address] = manager
            return _managers[address]

    def __init__(self, app_id: str, system_directory: PathLike, user_directory: PathLike, *,
                 system_directories: Iterable[PathLike] = (), user_directories: Iterable[PathLike] = ()) -> None:
        self._system: Handle
        self._user: Handle

    def __enter__(self) -> Manager:
        return self

    def __exit__(self, kind: Optional[Type[BaseException]], error: Optional[BaseException],
                 trace: Optional[TracebackType]) -> None:
        self.close()

    def close(self) -> None:
        """Destroys the manager with all that it owns; using any of it raises EndedError from now on. Without
        effect when that was done already. May be called from any thread that does not use the manager."""
        with registry:
            if not self.ended:
                self._destroy(c.StyleManager_destroy, "its manager was closed")
                del _managers[self._address]

    @property
    def app_id(self) -> str:
        """The application identifier."""
        return decode(c.StyleManager_appID(self._handle))

    @property
    def system_directory(self) -> pathlib.Path:
        """The system style directory, as it was given; on Windows made absolute."""
        return pathlib.Path(decode(c.StyleManager_systemStyleDirPath(self._handle)))

    @property
    def user_directory(self) -> pathlib.Path:
        """The user style directory, as it was given; on Windows made absolute."""
        return pathlib.Path(decode(c.StyleManager_userStyleDirPath(self._handle)))

    def read(self) -> None:
        """Reads the system styles, then the user styles: of two with one identifier the former wins. Raises what
        the two raise."""
        self.read_system_styles()
        self.read_user_styles()

    def read_system_styles(self) -> None:
        """Reads the system styles anew. Those of an earlier read and their creation results end first,
        whatever the outcome. Bad files are no error: `system_styles.creation_results` tells. Raises
        CodeError with DIRECTORY_MISSING."""
        self._system._end_children("its style set was read again")
        self._check(c.StyleManager_readSystemStyles(self._handle), self.system_directory)

    def read_user_styles(self) -> None:
        """Reads the user styles anew, as read_system_styles() does; their property editors end too."""
        self._user._end_children("its style set was read again")
        self._check(c.StyleManager_readUserStyles(self._handle), self.user_directory)

    @staticmethod
    def _check(code: int, directory: pathlib.Path) -> None:
        if code != Code.OK:
            raise CodeError(code, str(directory))

    @property
    def system_styles(self) -> StyleSet[SystemStyle]:
        """The system styles, live: none before they are read, and others when they are read again."""
        return StyleSet(self._system, SystemStyle, SetFunctions(
            c.StyleManager_numSystemStyle, c.StyleManager_systemStyle, c.StyleManager_hasSystemStyle,
            c.StyleManager_numSystemStyleCreationResult, c.StyleManager_systemStyleCreationResult))

    @property
    def user_styles(self) -> StyleSet[UserStyle]:
        """The user styles, live: saving adds one at the end, removing takes one out."""
        return StyleSet(self._user, UserStyle, SetFunctions(
            c.StyleManager_numUserStyle, c.StyleManager_userStyle, c.StyleManager_hasUserStyle,
            c.StyleManager_numUserStyleCreationResult, c.StyleManager_userStyleCreationResult))

    def create_mutable_style(self) -> MutableStyle:
        """An empty mutable style, to be filled and saved. Behind `with` it is destroyed unless it was saved."""
        return self._child(MutableStyle, c.StyleManager_createMutableStyle(self._handle))

    def _user_style(self, address: int) -> UserStyle:
        return self._user._child(UserStyle, address)

    def __repr__(self) -> str:
        return "<Manager ended>" if self.ended else f"<Manager {self.app_id!r}>"


def _path_array(paths: Iterable[PathLike]) -> Tuple[Any, int]:
    encoded = [encode_path(path) for path in several(paths)]
    return (ctypes.c_char_p * len(encoded))(*encoded), len(encoded)


def _subject(code: int, system_directory: PathLike, user_directory: PathLike) -> str:
    if code == Code.SYSTEM_DIRECTORY_MISSING:
        return os.fspath(system_directory)
    return os.fspath(user_directory) if code == Code.USER_DIRECTORY_NOT_CREATABLE else ""
