"""Attributes: languages, singer groups and identifiers, genres, sub-genres and colours."""
from __future__ import annotations

import operator
from typing import Any, Callable, Generic, Iterable, Iterator, MutableSet, NamedTuple, Set, Tuple, TypeVar

from .codes import Limit
from .errors import RefusedError
from .functions import c
from .handles import Handle
from .text import decode, encode

A = TypeVar("A")

LISTS = ("languages", "singer_groups", "singer_ids", "genres", "sub_genres", "colors")
"""The names of the lists, as a style and a StyleRecord have them, in the order of the file."""

IN_FILES = dict(zip(LISTS, ("languages", "singerGroups", "singerIDs", "genres", "subGenres", "colors")))
"""What they are called in a file, and so in a Problem."""

_NOT_EMPTY = "not empty"


class AttributeFunctions(NamedTuple):
    """The C functions of one list, and what its values are."""

    size: Callable[[int], int]
    at: Callable[[int, int], Any]
    add: Callable[[int, Any], bool]
    delete: Callable[[int, Any], bool]
    rule: str


def functions(name: str) -> AttributeFunctions:
    """Those of a list by its name."""
    if name == "languages":
        return AttributeFunctions(c.Style_numLanguage, c.Style_language, c.MutableStyle_addLanguage,
                                  c.MutableStyle_deleteLanguage,
                                  f"from {int(Limit.MIN_LANGUAGE)} to {int(Limit.MAX_LANGUAGE)}")
    if name == "singer_groups":
        return AttributeFunctions(c.Style_numSingerGroup, c.Style_singerGroup, c.MutableStyle_addSingerGroup,
                                  c.MutableStyle_deleteSingerGroup, _NOT_EMPTY)
    if name == "singer_ids":
        return AttributeFunctions(c.Style_numSingerID, c.Style_singerID, c.MutableStyle_addSingerID,
                                  c.MutableStyle_deleteSingerID, f"of {int(Limit.SINGER_ID_LENGTH)} UTF-16 units")
    if name == "genres":
        return AttributeFunctions(c.Style_numGenre, c.Style_genre, c.MutableStyle_addGenre,
                                  c.MutableStyle_deleteGenre, _NOT_EMPTY)
    if name == "sub_genres":
        return AttributeFunctions(c.Style_numSubGenre, c.Style_subGenre, c.MutableStyle_addSubGenre,
                                  c.MutableStyle_deleteSubGenre, _NOT_EMPTY)
    assert name == "colors"
    return AttributeFunctions(c.Style_numColor, c.Style_color, c.MutableStyle_addColor,
                              c.MutableStyle_deleteColor, _NOT_EMPTY)


def read_languages(address: int) -> Tuple[int, ...]:
    """The languages of the style at an address, ascending."""
    return tuple(c.Style_language(address, index) for index in range(c.Style_numLanguage(address)))


def read_texts(address: int, name: str) -> Tuple[str, ...]:
    """The values of a list of texts of the style at an address, ascending by UTF-16 units."""
    own = functions(name)
    return tuple(decode(own.at(address, index)) for index in range(own.size(address)))


class MutableAttributes(MutableSet[A], Generic[A]):
    """One attribute list of a mutable style: a set that keeps the library's order. Adding what is there and
    discarding what is not changes nothing; what the library refuses raises RefusedError. The operators |, &, -
    and ^ give sets of Python's own.

    >>> with manager.create_mutable_style() as style:
    ...     style.genres.update(["Techno", "House"])
    ...     style.genres.discard("Polka")
    ...     style.genres
    {'House', 'Techno'}
    """

    def __init__(self, style: Handle, name: str) -> None:
        self._style = style
        self._name = name
        self._functions = functions(name)

    def _values(self) -> Tuple[A, ...]:
        raise NotImplementedError

    def _argument(self, value: A) -> Any:
        raise NotImplementedError

    @classmethod
    def _from_iterable(cls, values: Iterable[A]) -> Set[A]:
        """What the operators make."""
        return set(values)

    def __contains__(self, value: object) -> bool:
        return value in self._values()

    def __iter__(self) -> Iterator[A]:
        return iter(self._values())

    def __len__(self) -> int:
        return int(self._functions.size(self._style._handle))

    def add(self, value: A) -> None:
        """Adds a value. Raises RefusedError for one that no list of the kind has."""
        if not self._add_new(value) and value not in self:
            raise RefusedError(f"{value!r} is none of the {self._name}, which are {self._functions.rule}")

    def _add_new(self, value: A) -> bool:
        """False when it is refused or there already."""
        return bool(self._functions.add(self._style._handle, self._argument(value)))

    def discard(self, value: A) -> None:
        """Takes a value out, if it is there."""
        if value in self:
            self._functions.delete(self._style._handle, self._argument(value))

    def clear(self) -> None:
        """Takes all values out."""
        for value in self._values():
            self.discard(value)

    def update(self, values: Iterable[A]) -> None:
        """Adds several values, one after the other."""
        for value in list(values):
            self.add(value)

    def __repr__(self) -> str:
        return "{" + ", ".join(map(repr, self)) + "}"


class MutableLanguages(MutableAttributes[int]):
    """The languages of a mutable style."""

    def _values(self) -> Tuple[int, ...]:
        return read_languages(self._style._handle)

    def _argument(self, value: int) -> int:
        # ctypes would cut a larger number to 32 bits.
        return max(Limit.MIN_LANGUAGE - 1, min(operator.index(value), Limit.MAX_LANGUAGE + 1))


class MutableTexts(MutableAttributes[str]):
    """A list of texts of a mutable style."""

    def _values(self) -> Tuple[str, ...]:
        return read_texts(self._style._handle, self._name)

    def __contains__(self, value: object) -> bool:
        """Halves the list, which is in the order of UTF-16 units, again and again."""
        if not isinstance(value, str):
            return False
        wanted, style, start, end = _in_order(value), self._style._handle, 0, len(self)
        while start < end:
            middle = (start + end) // 2
            found = _in_order(decode(self._functions.at(style, middle)))
            if found == wanted:
                return True
            start, end = (middle + 1, end) if found < wanted else (start, middle)
        return False

    def _argument(self, value: str) -> bytes:
        return encode(value)


def _in_order(text: str) -> bytes:
    """Bytes that sort as the units of a text do."""
    return text.encode("utf-16-be", "surrogatepass")
