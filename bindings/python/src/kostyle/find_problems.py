"""What a file could not give back of a style, found before it is written."""
from __future__ import annotations

import math
from typing import Iterator, Set, Tuple

from .attributes import IN_FILES, LISTS
from .codes import ProblemKind
from .errors import Problem
from .mutable import MutableStyle
from .parameters import ParameterValue
from .records import EffectRecord, StyleRecord, record_of
from .styles import Style
from .text import has_lone_surrogate, shown


def find_problems(style: Style) -> Tuple[Problem, ...]:
    """All that would not come back from a file if the style were written as it is: no name, effects without
    parameters or no others, infinities and NaN, lone surrogates, parameters called "Tarn" and parameters of one
    name. Of a stored style it tells whether its file could be written again, as a property editor does, and with the
    loss of its vendor text. Nothing is written.

    >>> with manager.create_mutable_style() as style:
    ...     style.name = "Loud"
    ...     style.audio_effects.append("Gate")
    ...     for problem in kostyle.find_problems(style):
    ...         print(problem)
    <MutableEffect Gate>
    audio/Gate: an effect without parameters is not read again
    the style has no effect with a parameter
    """
    record = record_of(style)
    return (*problem_of_vendor(record), *problems_of(record, isinstance(style, MutableStyle)))


def problem_of_vendor(record: StyleRecord) -> Tuple[Problem, ...]:
    """The loss of a vendor text, if there is one."""
    return (Problem(ProblemKind.VENDOR_LOST, "vendor"),) if record.vendor else ()


def problems_of(record: StyleRecord, is_mutable: bool) -> Iterator[Problem]:
    """Those of all but the vendor. Names of parameters repeat in a mutable style; those of a stored one only look
    alike, because a U+0000 hides what stands behind it."""
    if not record.name:
        yield Problem(ProblemKind.NAME_MISSING, "name")
    yield from _surrogates("name", record.name)
    for name in LISTS[1:]:
        for text in getattr(record, name):
            yield from _surrogates(place(IN_FILES[name], text), text)
    for chain, effects in (("audio", record.audio_effects), ("midi", record.midi_effects)):
        for effect in effects:
            yield from _problems_of_effect(chain, effect, is_mutable)
    if not any(effect.parameters for effect in (*record.audio_effects, *record.midi_effects)):
        yield Problem(ProblemKind.NO_EFFECT, "")


def place(*steps: str) -> str:
    """Where in a style something is."""
    return "/".join(map(shown, steps))


def name_as_read(name: str) -> str:
    """The name that is read for a parameter's."""
    return "Tarn630" if name == "Tarn" else name


def _problems_of_effect(chain: str, effect: EffectRecord, is_mutable: bool) -> Iterator[Problem]:
    yield from _surrogates(place(chain, effect.id), effect.id)
    if not effect.parameters:
        yield Problem(ProblemKind.EFFECT_WITHOUT_PARAMETERS, place(chain, effect.id))
    names: Set[str] = set()
    for name, value in effect.parameters:
        where = place(chain, effect.id, name)
        if name_as_read(name) != name:
            yield Problem(ProblemKind.PARAMETER_RENAMED, where)
        if is_mutable and name_as_read(name) in names:
            yield Problem(ProblemKind.PARAMETER_REPEATED, where)
        names.add(name_as_read(name))
        yield from _surrogates(where, name)
        yield from _problems_of_value(where, value)


def _problems_of_value(where: str, value: ParameterValue) -> Iterator[Problem]:
    if isinstance(value, str):
        yield from _surrogates(where, value)
    elif math.isinf(value):
        yield Problem(ProblemKind.INFINITE, where)
    elif math.isnan(value):
        yield Problem(ProblemKind.NOT_A_NUMBER, where)


def _surrogates(where: str, text: str) -> Iterator[Problem]:
    if has_lone_surrogate(text):
        yield Problem(ProblemKind.LONE_SURROGATE, where)
