"""Records: what a style or a file holds, as plain data that can be kept, compared, pickled and sent."""
from __future__ import annotations

import dataclasses
from typing import Callable, Optional, Tuple

from .codes import Code, Kind, ParseError, code_text, parse_error_text
from .functions import c
from .parameters import ParameterValue, read_value
from .places import find_line
from .styles import Style
from .text import PathLike, decode


# Of what follows an offset, so many bytes are enough to know its character and the file's encoding.
_BEHIND = 8


Parameters = Tuple[Tuple[str, ParameterValue], ...]


@dataclasses.dataclass
class EffectRecord:
    """An effect of a StyleRecord."""

    id: str
    """The identifier, unique within the chain."""
    parameters: Parameters
    """Names and values, in the order of names; dict() makes a mapping of them."""


@dataclasses.dataclass
class StyleRecord:
    """All that a style holds. Texts are those that a host sees, up to a U+0000 in them."""

    id: str
    """The identifier; empty for a mutable style."""
    name: str
    """The display name; empty when the file's is too long."""
    vendor: str
    """Who made the style; empty when the file does not say."""
    languages: Tuple[int, ...]
    """Numbers from Limit.MIN_LANGUAGE to Limit.MAX_LANGUAGE, ascending."""
    singer_groups: Tuple[str, ...]
    """The singer groups, ascending by UTF-16 units, as all lists of texts."""
    singer_ids: Tuple[str, ...]
    """The singer identifiers, each of Limit.SINGER_ID_LENGTH UTF-16 units."""
    genres: Tuple[str, ...]
    """The genres."""
    sub_genres: Tuple[str, ...]
    """The sub-genres."""
    colors: Tuple[str, ...]
    """The colours: any texts."""
    audio_effects: Tuple[EffectRecord, ...]
    """The audio chain, in its order."""
    midi_effects: Tuple[EffectRecord, ...]
    """The MIDI chain, in its order."""


@dataclasses.dataclass
class Refusal:
    """Why a file's style was not taken."""

    code: Optional[int]
    """A value of Code; None when the file could not be read at all, and `sentence` says why."""
    sentence: str
    """The code in words."""
    json_path: str = ""
    """Where in the document: "/", "/id" or "/name"; empty when that says nothing."""
    parse_error: int = int(ParseError.OK)
    """A value of ParseError when the code is Code.JSON_SYNTAX."""
    offset: int = 0
    """After Code.JSON_SYNTAX, the bytes of the file up to and including the character at fault."""
    line: Optional[int] = None
    """After Code.JSON_SYNTAX, the line of the character at fault, from 1; None if the file is gone since."""
    column: Optional[int] = None
    """Its column in code points, from 1."""

    def __str__(self) -> str:
        """All of it in one line."""
        parts = [self.sentence + (f" at {self.json_path}" if self.json_path else "")]
        if self.parse_error != ParseError.OK:
            parts[0] += f": {parse_error_text(self.parse_error)}"
            parts.append(f"line {self.line}, column {self.column}" if self.line else f"byte offset {self.offset}")
        return ", ".join(parts)


@dataclasses.dataclass
class FileRecord:
    """What reading one file gave: a style or a refusal."""

    path: str
    """The path as the caller gave it."""
    style: Optional[StyleRecord] = None
    """What the file holds; None when it was refused."""
    refusal: Optional[Refusal] = None
    """Why it was refused; None when it was not."""


def record_of(style: Style) -> StyleRecord:
    """The record of a stored or a mutable style; raises TypeError for anything else.

    >>> kostyle.record_of(manager.system_styles.find("concrete-club")).genres
    ('House', 'Techno')
    """
    if not isinstance(style, Style):
        raise TypeError(f"a style is needed, not {style!r}")
    return read_style(style._handle)


def read_style(address: int) -> StyleRecord:
    """The record of the style at an address."""
    mutable = c.Style_type(address) == Kind.MUTABLE
    audio, midi = (c.MutableStyle_audioEffect, c.MutableStyle_midiEffect) if mutable else (c.Style_audioEffect,
                                                                                           c.Style_midiEffect)
    parameter = c.MutableEffect_parameter if mutable else c.Effect_parameter
    return StyleRecord(
        decode(c.Style_id(address)),
        decode(c.Style_name(address)),
        decode(c.Style_vendor(address)),
        tuple([c.Style_language(address, index) for index in range(c.Style_numLanguage(address))]),
        _texts(address, c.Style_numSingerGroup, c.Style_singerGroup),
        _texts(address, c.Style_numSingerID, c.Style_singerID),
        _texts(address, c.Style_numGenre, c.Style_genre),
        _texts(address, c.Style_numSubGenre, c.Style_subGenre),
        _texts(address, c.Style_numColor, c.Style_color),
        _effects(address, c.Style_numAudioEffect, audio, parameter),
        _effects(address, c.Style_numMidiEffect, midi, parameter))


def _texts(address: int, count: Callable[[int], int], at: Callable[[int, int], int]) -> Tuple[str, ...]:
    return tuple([decode(at(address, index)) for index in range(count(address))])


def _effects(style: int, count: Callable[[int], int], at: Callable[[int, int], int],
             parameter: Callable[[int, int], int]) -> Tuple[EffectRecord, ...]:
    records = []
    for index in range(count(style)):
        effect = at(style, index)
        places = [parameter(effect, place) for place in range(c.Effect_numParameter(effect))]
        records.append(EffectRecord(decode(c.Effect_id(effect)),
                                    tuple([(decode(c.Parameter_name(place)), read_value(place)) for place in places])))
    return tuple(records)


def read_refusal(result: int, path: PathLike) -> Refusal:
    """Why the style of a creation result was refused; `path` is the file, for line and column."""
    code = c.StyleCreationResult_error(result)
    refusal = Refusal(code, code_text(code), decode(c.StyleCreationResult_jsonPath(result)))
    if code == Code.JSON_SYNTAX:
        refusal.parse_error = c.StyleCreationResult_parseError(result)
        refusal.offset = c.StyleCreationResult_parseErrorOffset(result)
        try:
            with open(path, "rb") as file:
                refusal.line, refusal.column = find_line(file.read(refusal.offset + _BEHIND), refusal.offset)
        except OSError:
            pass  # gone since it was read; the offset says enough
    return refusal
