"""A mutable copy of any style."""
from __future__ import annotations

from typing import Any, Iterable, List

from .attributes import LISTS, MutableAttributes
from .effects import MutableChain, MutableEffect
from .errors import Finding, RefusedError
from .mutable import MutableStyle
from .records import EffectRecord, StyleRecord, record_of
from .styles import Style

_CUT_SHORT = "refused, because a U+0000 of the file cuts it short or makes it look repeated"


def mutable_copy(style: Style) -> MutableStyle:
    """A new mutable style of the same manager with all that can be copied; `left_out` lists the rest."""
    record = record_of(style)
    copy = style.manager.create_mutable_style()
    try:
        copy.left_out = tuple(_fill(copy, record))
    except BaseException:
        copy.destroy()
        raise
    return copy


def _fill(copy: MutableStyle, record: StyleRecord) -> List[Finding]:
    left_out = [Finding("vendor", f"a mutable style has none: {record.vendor!r}")] if record.vendor else []
    if record.name:
        copy.name = record.name
    for name in LISTS:
        left_out += _fill_list(name, getattr(copy, name), getattr(record, name))
    left_out += _fill_chain("audio effect", copy.audio_effects, record.audio_effects)
    left_out += _fill_chain("MIDI effect", copy.midi_effects, record.midi_effects)
    return left_out


def _fill_list(name: str, values: MutableAttributes[Any], stored: Iterable[Any]) -> List[Finding]:
    left_out = []
    for value in stored:
        if not values._add_new(value):
            left_out.append(Finding(f"{name} {value!r}", _CUT_SHORT))
    return left_out


def _fill_chain(kind: str, chain: MutableChain, effects: Iterable[EffectRecord]) -> List[Finding]:
    left_out = []
    for effect in effects:
        place = f"{kind} {effect.id!r}"
        try:
            left_out += _fill_effect(place, chain.append(effect.id), effect)
        except RefusedError:
            left_out.append(Finding(place, _CUT_SHORT))
    return left_out


def _fill_effect(place: str, copy: MutableEffect, effect: EffectRecord) -> List[Finding]:
    left_out = []
    for name, value in effect.parameters:
        try:
            copy.add_parameter(name, value)
        except RefusedError:
            left_out.append(Finding(f"{place}, parameter {name!r}", _CUT_SHORT))
    return left_out
