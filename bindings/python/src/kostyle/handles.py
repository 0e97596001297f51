"""What every object that stands for one of the library's has in common: an address, an owner and an end."""
from __future__ import annotations

import contextlib
import weakref
from types import TracebackType
from typing import Callable, Generic, Iterator, List, Optional, Sequence, Type, TypeVar, Union, overload

from .errors import CodeError, EndedError

D = TypeVar("D", bound="Destroyable")
H = TypeVar("H", bound="Handle")
T = TypeVar("T", covariant=True)


class Handle:
    """Stands for an object that the library owns. There is one Handle for it at a time, so `is` and `==`
    tell whether two are the same. It may be kept; when the library's object is gone, using it raises
    EndedError. It cannot be pickled."""

    def __init__(self, address: int, owner: Optional[Handle]) -> None:
        self._address = address
        self._owner = owner
        self._end_reason = ""
        self._children: Optional[weakref.WeakValueDictionary[int, Handle]] = None

    @property
    def ended(self) -> bool:
        """Whether the library's object is gone; everything else then raises EndedError."""
        return bool(self._why_ended())

    def _why_ended(self) -> str:
        level: Optional[Handle] = self
        while level is not None:
            if level._end_reason:
                return level._end_reason
            level = level._owner
        return ""

    @property
    def _handle(self) -> int:
        """The address for a call, or EndedError: every call goes through here."""
        level: Optional[Handle] = self
        while level is not None:
            if level._end_reason:
                raise EndedError(f"the {type(self).__name__} is gone: {level._end_reason}")
            level = level._owner
        return self._address

    def _child(self, kind: Type[H], address: int) -> H:
        """The one Handle for an object of this one's."""
        if self._children is None:
            self._children = weakref.WeakValueDictionary()
        child = self._children.get(address)
        if not isinstance(child, kind) or child._end_reason:
            child = kind(address, self)
            self._children[address] = child
        return child

    def _end(self, reason: str) -> None:
        """The library's object, and with it all that it owned, is gone."""
        self._end_reason = reason
        if self._owner is not None and self._owner._children is not None:
            self._owner._children.pop(self._address, None)

    @contextlib.contextmanager
    def _ending(self, reason: str) -> Iterator[int]:
        """Around a call that ends the object unless it is refused, which a CodeError tells. It has ended before
        the call already, since Ctrl-C during the call raises KeyboardInterrupt before its answer is known."""
        address = self._handle
        self._end_reason = reason
        try:
            yield address
        except CodeError:
            self._end_reason = ""
            raise
        self._end(reason)

    def _destroy(self, call: Callable[[int], object], reason: str) -> None:
        """Ends the object by a call that is never refused."""
        address = self._handle
        self._end(reason)
        call(address)

    def _become(self, create: Callable[[], int], reason: str) -> None:
        """Stands for another object of its owner's from now on, whose creation ends the one before."""
        self._end(reason)
        self._address = create()
        if self._owner is not None and self._owner._children is not None:
            self._owner._children[self._address] = self
        self._end_reason = ""

    def _living(self, kind: Type[H]) -> List[H]:
        """The objects of a kind that this one owns and that somebody keeps."""
        children = list(self._children.values()) if self._children else []
        return [child for child in children if isinstance(child, kind) and not child._end_reason]

    def _end_children(self, reason: str) -> None:
        """All that this object owned is gone."""
        for child in self._living(Handle):
            child._end(reason)

    def __reduce__(self) -> str:
        raise TypeError(f"a {type(self).__name__} cannot leave its process; record_of() gives a style's plain data")


class Destroyable(Handle):
    """What can be ended by hand: behind `with` it is destroyed, unless it has ended already."""

    def __enter__(self: D) -> D:
        return self

    def __exit__(self, kind: Optional[Type[BaseException]], error: Optional[BaseException],
                 trace: Optional[TracebackType]) -> None:
        self.destroy()

    def destroy(self) -> None:
        """Ends the object with all that it holds; without effect when it has ended already."""
        if not self.ended:
            self._destroy(self._destroy_in_library, "it was destroyed")

    def _destroy_in_library(self, address: int) -> None:
        raise NotImplementedError


class HandleSequence(Sequence[T], Generic[T]):
    """A sequence of objects in the library, live: it shows what is there when it is asked."""

    def __init__(self, count: Callable[[], int], at: Callable[[int], T]) -> None:
        self._count = count
        self._at = at

    def __len__(self) -> int:
        return self._count()

    @overload
    def __getitem__(self, index: int) -> T: ...

    @overload
    def __getitem__(self, index: slice) -> List[T]: ...

    def __getitem__(self, index: Union[int, slice]) -> Union[T, List[T]]:
        if isinstance(index, slice):
            return [self._at(each) for each in range(*index.indices(len(self)))]
        place = range(len(self))[index]
        return self._at(place)

    def __repr__(self) -> str:
        return f"<{len(self)}: {', '.join(map(repr, self))}>"
