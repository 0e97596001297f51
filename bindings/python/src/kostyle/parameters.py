"""Parameters: the named values of an effect."""
from __future__ import annotations

import struct
from typing import Iterator, Mapping, MutableMapping, TYPE_CHECKING, Union

from .codes import ParameterType
from .errors import RefusedError
from .functions import c
from .handles import Handle, HandleSequence
from .text import decode, encode

if TYPE_CHECKING:
    from .effects import Effect, MutableEffect

ParameterValue = Union[int, float, str]
"""An int of 32 bits, a float of 32 bits or a text. The type of the value is the type of the parameter."""

_INTS = range(-(2 ** 31), 2 ** 31)


def read_value(address: int) -> ParameterValue:
    """The value of the parameter at an address."""
    kind = c.Parameter_type(address)
    if kind == ParameterType.INT:
        return int(c.Parameter_valueInt(address))
    if kind == ParameterType.FLOAT:
        return float(c.Parameter_valueFloat(address))
    return decode(c.Parameter_valueString(address))


def write_value(address: int, value: ParameterValue) -> None:
    """Gives the parameter at an address a value, and with it the value's type."""
    if isinstance(value, bool) or not isinstance(value, (int, float, str)):
        raise TypeError(f"a parameter is an int, a float or a str, not {value!r}")
    if isinstance(value, str):
        c.MutableParameter_setValueString(address, encode(value))
    elif isinstance(value, float):
        struct.pack("<f", value)  # raises OverflowError for what is finite and beyond 32 bits
        c.MutableParameter_setValueFloat(address, value)
    elif value in _INTS:
        c.MutableParameter_setValueInt(address, value)
    else:
        raise OverflowError(f"{value} is beyond the 32 bits of an int parameter")


class Parameter(Handle):
    """A parameter of a stored effect. Ends with its effect."""

    @property
    def name(self) -> str:
        """The name. The name "Tarn" of a file is read as "Tarn630"."""
        return decode(c.Parameter_name(self._handle))

    @property
    def value(self) -> ParameterValue:
        """The value, in its own type."""
        return read_value(self._handle)

    @property
    def type(self) -> ParameterType:
        """The type of the value: ParameterType.INT, FLOAT or STRING."""
        return ParameterType(c.Parameter_type(self._handle))

    def __repr__(self) -> str:
        return f"<{type(self).__name__} ended>" if self.ended else f"<{type(self).__name__} {self.name}={self.value!r}>"


class MutableParameter(Parameter):
    """A parameter of a mutable effect. Ends with it, or when it is destroyed."""

    @property
    def name(self) -> str:
        """The name; not empty. One that another parameter of the effect has is taken, but of the two only
        the first comes back from a file. Raises RefusedError."""
        return decode(c.Parameter_name(self._handle))

    @name.setter
    def name(self, name: str) -> None:
        if not c.MutableParameter_setName(self._handle, encode(name)):
            raise RefusedError("a parameter's name is not empty")
        self._effect._renamed()

    @property
    def value(self) -> ParameterValue:
        """The value; setting it sets its type too. A float is rounded to 32 bits. Raises OverflowError
        for a number beyond 32 bits, TypeError for another type, also bool, and RefusedError for a text with
        U+0000. An infinity and NaN are taken, but cannot be written."""
        return read_value(self._handle)

    @value.setter
    def value(self, value: ParameterValue) -> None:
        write_value(self._handle, value)

    def destroy(self) -> None:
        """Takes the parameter out of its effect and ends it."""
        name = self.name
        self._destroy(c.MutableParameter_destroy, "it was destroyed")
        self._effect._destroyed(name, self)

    @property
    def _effect(self) -> MutableEffect:
        effect: MutableEffect = self._owner  # type: ignore[assignment]
        return effect


class Parameters(Mapping[str, ParameterValue]):
    """The parameters of an effect, by name: a mapping from names to values. Of equal names, which only a
    text with U+0000 or a renaming makes, it knows the first; Effect.parameter_list has them all.

    >>> gate = manager.system_styles.find("concrete-club").audio_effects.find("Gate")
    >>> dict(gate.parameters)
    {'holdMs': 40, 'threshold': -36.5}
    """

    def __init__(self, effect: Effect) -> None:
        self._effect = effect

    def _places(self) -> Mapping[str, Parameter]:
        return self._effect._parameters_by_name()

    def __getitem__(self, name: str) -> ParameterValue:
        return read_value(self._places()[name]._handle)

    def __iter__(self) -> Iterator[str]:
        return iter(self._places())

    def __len__(self) -> int:
        return len(self._places())

    def __repr__(self) -> str:
        return repr(dict(self))


class MutableParameters(Parameters, MutableMapping[str, ParameterValue]):
    """The parameters of a mutable effect: a mapping that adds, changes and takes out. Raises RefusedError
    for an empty name, and what MutableParameter.value raises.

    >>> with manager.create_mutable_style() as style:
    ...     delay = style.audio_effects.append("Delay")
    ...     delay.parameters.update(time=0.375, feedback=2)
    ...     delay.parameters["mode"] = "ping-pong"
    ...     del delay.parameters["feedback"]
    ...     delay.parameters
    {'mode': 'ping-pong', 'time': 0.375}
    """

    _effect: MutableEffect

    def __iter__(self) -> Iterator[str]:
        return iter(dict.fromkeys(parameter.name for parameter in self._effect.parameter_list))

    def __setitem__(self, name: str, value: ParameterValue) -> None:
        known = self._places().get(name)
        if known is None:
            self._effect.add_parameter(name, value)
        else:
            write_value(known._handle, value)

    def __delitem__(self, name: str) -> None:
        self._effect._parameters_by_name()[name].destroy()

    def clear(self) -> None:
        """Takes all of them out."""
        for parameter in list(self._effect.parameter_list):
            parameter.destroy()


def parameter_list(effect: Effect) -> HandleSequence[Parameter]:
    """The parameters of a stored effect."""
    return HandleSequence(lambda: int(c.Effect_numParameter(effect._handle)),
                          lambda index: effect._child(Parameter, c.Effect_parameter(effect._handle, index)))


def mutable_parameter_list(effect: MutableEffect) -> HandleSequence[MutableParameter]:
    """The parameters of a mutable effect."""
    at = c.MutableEffect_parameter
    return HandleSequence(lambda: int(c.Effect_numParameter(effect._handle)),
                          lambda index: effect._child(MutableParameter, at(effect._handle, index)))
