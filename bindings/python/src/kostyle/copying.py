"""A mutable copy of any style."""
from __future__ import annotations

from typing import Any, Iterable, List

from .attributes import IN_FILES, LISTS, MutableAttributes
from .codes import ProblemKind
from .effects import MutableChain, MutableEffect
from .errors import Problem, RefusedError
from .find_problems import place, problem_of_vendor
from .mutable import MutableStyle
from .records import EffectRecord, StyleRecord, record_of
from .styles import Style


def mutable_copy(style: Style) -> MutableStyle:
    """A new mutable style of the same manager with all that can be copied; `not_copied` lists the rest."""
    record = record_of(style)
    copy = style.manager.create_mutable_style()
    try:
        copy.not_copied = tuple(_fill(copy, record))
    except BaseException:
        copy.destroy()
        raise
    return copy


def _fill(copy: MutableStyle, record: StyleRecord) -> List[Problem]:
    not_copied = [*problem_of_vendor(record)]
    if record.name:
        copy.name = record.name
    else:
        not_copied.append(Problem(ProblemKind.NAME_MISSING, "name"))
    for name in LISTS:
        not_copied += _fill_list(IN_FILES[name], getattr(copy, name), getattr(record, name))
    not_copied += _fill_chain("audio", copy.audio_effects, record.audio_effects)
    not_copied += _fill_chain("midi", copy.midi_effects, record.midi_effects)
    return not_copied


def _fill_list(name: str, values: MutableAttributes[Any], stored: Iterable[Any]) -> List[Problem]:
    return [_text_lost(name, str(value)) for value in stored if not values._add_new(value)]


def _fill_chain(name: str, chain: MutableChain, effects: Iterable[EffectRecord]) -> List[Problem]:
    not_copied = []
    for effect in effects:
        try:
            not_copied += _fill_effect(name, chain.append(effect.id), effect)
        except RefusedError:
            not_copied.append(_text_lost(name, effect.id))
    return not_copied


def _fill_effect(chain: str, copy: MutableEffect, effect: EffectRecord) -> List[Problem]:
    not_copied = []
    for name, value in effect.parameters:
        try:
            copy.add_parameter(name, value)
        except RefusedError:
            not_copied.append(_text_lost(chain, effect.id, name))
    return not_copied


def _text_lost(*steps: str) -> Problem:
    """A U+0000 of the file cuts a text short, which then is refused or looks repeated."""
    return Problem(ProblemKind.TEXT_LOST, place(*steps))
