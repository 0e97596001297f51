"""Effects, and the chains in which a style has them."""
from __future__ import annotations

import operator
import sys
from typing import Callable, Dict, Generic, Mapping, MutableMapping, NamedTuple, Optional, Sequence, TypeVar

from .codes import EffectKind
from .errors import RefusedError
from .functions import c
from .handles import Handle, HandleSequence
from .parameters import (MutableParameter, MutableParameters, Parameter, ParameterValue, Parameters,
                         mutable_parameter_list, parameter_list, write_value)
from .text import decode, encode


def place_in_chain(index: int) -> int:
    """An index for the library, which appends from beyond the end."""
    if operator.index(index) < 0:
        raise IndexError(f"{index} is no place of a chain")
    return min(operator.index(index), sys.maxsize)  # ctypes would cut a larger number to 64 bits


class Effect(Handle):
    """An effect of a stored style. Ends with its style, and when the style is overwritten."""

    def __init__(self, address: int, owner: Optional[Handle]) -> None:
        super().__init__(address, owner)
        self._names: Optional[Dict[str, Parameter]] = None

    @property
    def id(self) -> str:
        """The identifier, unique within the chain, but for texts of a file that differ behind U+0000 alone."""
        return decode(c.Effect_id(self._handle))

    @property
    def kind(self) -> EffectKind:
        """The chain that it belongs to: EffectKind.AUDIO or EffectKind.MIDI."""
        return EffectKind(c.Effect_type(self._handle))

    @property
    def parameters(self) -> Mapping[str, ParameterValue]:
        """The values of the parameters by name, in the order of names: a live mapping."""
        return Parameters(self)

    @property
    def parameter_list(self) -> Sequence[Parameter]:
        """The parameters as objects, in the order of names."""
        return parameter_list(self)

    def _parameters_by_name(self) -> Dict[str, Parameter]:
        self._handle  # raises when the effect is gone
        if self._names is None:
            self._names = {}
            for parameter in self.parameter_list:
                self._names.setdefault(parameter.name, parameter)
        return self._names

    def __repr__(self) -> str:
        return f"<{type(self).__name__} ended>" if self.ended else f"<{type(self).__name__} {self.id}>"


class MutableEffect(Effect):
    """An effect of a mutable style. Ends with it, or when it is destroyed."""

    @property
    def parameters(self) -> MutableMapping[str, ParameterValue]:
        """The values of the parameters by name; assigning adds or changes one."""
        return MutableParameters(self)

    @property
    def parameter_list(self) -> Sequence[MutableParameter]:
        """The parameters as objects, in the order of names as of the last one that was added."""
        return mutable_parameter_list(self)

    def add_parameter(self, name: str, value: ParameterValue) -> MutableParameter:
        """Adds a parameter, which puts all of them into the order of names. Raises RefusedError when the
        name is empty or there already, and what MutableParameter.value raises."""
        address = c.MutableEffect_addParameter(self._handle, encode(name))
        if not address:
            raise RefusedError(f"a parameter's name is neither empty nor there already: {name!r}")
        try:
            write_value(address, value)
        except BaseException:
            c.MutableParameter_destroy(address)
            raise
        parameter = self._child(MutableParameter, address)
        if self._names is not None:
            self._names[name] = parameter
        return parameter

    def move(self, index: int) -> None:
        """Moves the effect to an index of its chain, from 0; one past the end moves it to the end. Raises
        IndexError for a negative one."""
        c.MutableEffect_move(self._handle, place_in_chain(index))

    def destroy(self) -> None:
        """Takes the effect out of its chain and ends it, with its parameters."""
        self._destroy(c.MutableEffect_destroy, "it was destroyed")

    def _parameters_by_name(self) -> Dict[str, MutableParameter]:  # type: ignore[override]
        return super()._parameters_by_name()  # type: ignore[return-value]

    def _renamed(self) -> None:
        self._names = None

    def _destroyed(self, name: str, parameter: MutableParameter) -> None:
        """A parameter that had this name is gone; another of the name may have stood behind it."""
        if self._names is None or self._names.get(name) is not parameter:
            return
        if len(self._names) == len(self.parameter_list) + 1:
            del self._names[name]
        else:
            self._names = None


class ChainFunctions(NamedTuple):
    """The C functions of one chain."""

    size: Callable[[int], int]
    at: Callable[[int, int], Optional[int]]
    has: Callable[[int, int], bool]
    insert: Optional[Callable[[int, int, bytes], Optional[int]]] = None


def stored_functions(kind: EffectKind) -> ChainFunctions:
    """Those of a stored style."""
    if kind == EffectKind.AUDIO:
        return ChainFunctions(c.Style_numAudioEffect, c.Style_audioEffect, c.Style_hasAudioEffect)
    return ChainFunctions(c.Style_numMidiEffect, c.Style_midiEffect, c.Style_hasMidiEffect)


def mutable_functions(kind: EffectKind) -> ChainFunctions:
    """Those of a mutable style."""
    if kind == EffectKind.AUDIO:
        return ChainFunctions(c.Style_numAudioEffect, c.MutableStyle_audioEffect, c.Style_hasAudioEffect,
                              c.MutableStyle_insertAudioEffect)
    return ChainFunctions(c.Style_numMidiEffect, c.MutableStyle_midiEffect, c.Style_hasMidiEffect,
                          c.MutableStyle_insertMidiEffect)


E = TypeVar("E", bound=Effect)


class _AnyChain(HandleSequence[E], Generic[E]):
    """The effects of one chain of a style, in their order."""

    def __init__(self, style: Handle, effect: Callable[[int], E], functions: ChainFunctions) -> None:
        super().__init__(lambda: int(functions.size(style._handle)),
                         lambda index: effect(functions.at(style._handle, index) or 0))
        self._style = style
        self._functions = functions

    def find(self, id: str) -> Optional[E]:
        """The first effect with an identifier; None when there is none. Looks at one after the other."""
        return next((effect for effect in self if effect.id == id), None)

    def __contains__(self, effect: object) -> bool:
        if not isinstance(effect, Effect) or effect.ended:
            return False
        return bool(self._functions.has(self._style._handle, effect._handle))


class Chain(_AnyChain[Effect]):
    """The effects of one chain of a stored style."""

    def __init__(self, style: Handle, kind: EffectKind) -> None:
        super().__init__(style, lambda address: style._child(Effect, address), stored_functions(kind))


class MutableChain(_AnyChain[MutableEffect]):
    """The effects of one chain of a mutable style, which can be added and moved.

    >>> with manager.create_mutable_style() as style:
    ...     reverb = style.audio_effects.append("Reverb")
    ...     gate = style.audio_effects.insert(0, "Gate")
    ...     reverb.move(0)
    ...     style.audio_effects
    <2: <MutableEffect Reverb>, <MutableEffect Gate>>
    """

    def __init__(self, style: Handle, kind: EffectKind) -> None:
        super().__init__(style, lambda address: style._child(MutableEffect, address), mutable_functions(kind))

    def insert(self, index: int, id: str) -> MutableEffect:
        """Puts a new effect without parameters in front of the index; past the end it is appended. Raises
        RefusedError when the identifier is empty or another effect of the chain has it, and IndexError for a
        negative index."""
        assert self._functions.insert is not None
        address = self._functions.insert(self._style._handle, place_in_chain(index), encode(id))
        if not address:
            raise RefusedError(f"an effect's identifier is neither empty nor there already: {id!r}")
        return self._style._child(MutableEffect, address)

    def append(self, id: str) -> MutableEffect:
        """Puts a new effect without parameters at the end, as insert() does."""
        return self.insert(len(self), id)
