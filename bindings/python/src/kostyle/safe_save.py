"""Saving with care: what would not come back is refused before anything is written, what was written is read
again, and whatever fails leaves the old file as it was."""
from __future__ import annotations

import contextlib
import dataclasses
import filecmp
import math
import os
import pathlib
import shutil
import sys
import uuid
from typing import Callable, Dict, Iterable, Iterator, Tuple

from .attributes import LISTS
from .errors import CodeError, Finding, NotSavedError, UnsafeError
from .mutable import MutableStyle
from .parameters import ParameterValue
from .property_editor import PropertyEditor
from .records import EffectRecord, Parameters, StyleRecord, record_of
from .scan import scan
from .styles import Style, UserStyle
from .text import has_lone_surrogate

_SURROGATE = "a lone surrogate cannot be written"


def check(style: Style) -> Tuple[Finding, ...]:
    """All that would not come back from a file if the style were written as it is: effects without
    parameters, infinities and NaN, lone surrogates, parameters called "Tarn" and parameters of one name. Of a
    stored style it tells whether its file could be written again, as a property editor does.

    >>> with manager.create_mutable_style() as style:
    ...     style.audio_effects.append("Gate")
    ...     for finding in kostyle.check(style):
    ...         print(finding)
    <MutableEffect Gate>
    audio effect 'Gate': no effect without parameters comes back
    """
    return tuple(_findings(record_of(style)))


def _findings(record: StyleRecord) -> Iterator[Finding]:
    if has_lone_surrogate(record.name):
        yield Finding(f"name {record.name!r}", _SURROGATE)
    for name in LISTS[1:]:
        for text in getattr(record, name):
            if has_lone_surrogate(text):
                yield Finding(f"{name} {text!r}", _SURROGATE)
    for kind, effects in (("audio", record.audio_effects), ("MIDI", record.midi_effects)):
        for effect in effects:
            yield from _effect_findings(f"{kind} effect {effect.id!r}", effect)


def _effect_findings(place: str, effect: EffectRecord) -> Iterator[Finding]:
    if has_lone_surrogate(effect.id):
        yield Finding(place, _SURROGATE)
    if not effect.parameters:
        yield Finding(place, "no effect without parameters comes back", is_loss=True)
    seen = set()
    for name, value in effect.parameters:
        here = f"{place}, parameter {name!r}"
        for reason in _parameter_reasons(name, value):
            yield Finding(here, reason)
        if name == "Tarn":
            yield Finding(here, "it comes back as Tarn630", is_loss=True)
        if name in seen:
            yield Finding(here, "of two parameters with one name only the first comes back", is_loss=True)
        seen.add(name)


def _parameter_reasons(name: str, value: ParameterValue) -> Iterator[str]:
    if has_lone_surrogate(name) or (isinstance(value, str) and has_lone_surrogate(value)):
        yield _SURROGATE
    if isinstance(value, float) and not math.isfinite(value):
        yield "an infinity and NaN cannot be written"


def _require_safe(findings: Iterable[Finding], accept_losses: bool = False) -> None:
    found = list(findings)
    if not all(accept_losses and finding.is_loss for finding in found):
        raise UnsafeError(found)


def _as_read(record: StyleRecord) -> StyleRecord:
    """What reading a file of the style gives: without what is lost."""
    return dataclasses.replace(record, audio_effects=_chain_as_read(record.audio_effects),
                               midi_effects=_chain_as_read(record.midi_effects))


def _chain_as_read(effects: Tuple[EffectRecord, ...]) -> Tuple[EffectRecord, ...]:
    return tuple(EffectRecord(effect.id, _parameters_as_read(effect.parameters))
                 for effect in effects if effect.parameters)


def _parameters_as_read(parameters: Parameters) -> Parameters:
    first: Dict[str, ParameterValue] = {}
    for name, value in parameters:
        first.setdefault("Tarn630" if name == "Tarn" else name, value)
    return tuple(first.items())


class _Backup:
    """A second name for a file, or a copy of one that is written in place. It lies beside the file, so that
    putting it back takes no space, and its name is none that a read takes."""

    def __init__(self, file: pathlib.Path, in_place: bool) -> None:
        self.file = file
        self.in_place = in_place
        self.path = file.with_name(f"kostyle-backup-{uuid.uuid4()}")
        if in_place or not self._link():
            self._copy()

    def _link(self) -> bool:
        try:
            os.link(self.file, self.path)
        except OSError:
            return False  # not every file system has links
        return True

    def _copy(self) -> None:
        try:
            shutil.copy2(self.file, self.path)
        except OSError as error:
            self.discard()
            raise NotSavedError(self.file, f"no backup can be made: {error.strerror}") from error

    def discard(self) -> None:
        try:
            self.path.unlink()
        except OSError:
            pass  # a backup too many does no harm

    def restore(self) -> bool:
        if not (self.in_place and self._write_back()) and not self._put_in_place():
            return False
        self.discard()  # two names of one file are not replaced
        return True

    def _write_back(self) -> bool:
        """Into the file itself, which may have other names, and links that lead to it."""
        try:
            if not filecmp.cmp(self.path, self.file, shallow=False):
                shutil.copyfile(self.path, self.file)
        except OSError:
            return False
        return True

    def _put_in_place(self) -> bool:
        try:
            os.replace(self.path, self.file)
        except OSError:
            return False
        return True


@contextlib.contextmanager
def _restored_when_it_fails(backup: _Backup, put_back_in_memory: Callable[[], None]) -> Iterator[None]:
    """Around writing a file and reading it again. Putting back in memory may write the file too."""
    try:
        yield
    except BaseException as error:
        try:
            put_back_in_memory()
        finally:
            if not backup.restore():
                raise NotSavedError(backup.file, _reason(error), backup.path) from error
        raise
    backup.discard()


def save_safely(style: MutableStyle, pretty: bool, accept_losses: bool) -> UserStyle:
    """Does what MutableStyle.save_safely() says."""
    written = record_of(style)
    _require_safe(_findings(written), accept_losses)
    with style.mutable_copy() as spare:  # saving ends what it saves
        saved = spare.save(pretty=pretty)
    try:
        _read_back(saved, written)
    except BaseException as error:
        _remove(saved, error)
        raise
    style.destroy()
    return saved


def overwrite_safely(style: MutableStyle, target: UserStyle, pretty: bool, accept_losses: bool) -> UserStyle:
    """Does what MutableStyle.overwrite_safely() says."""
    if not isinstance(target, UserStyle):
        raise TypeError(f"a user style is needed, not {target!r}")
    written = record_of(style)
    _require_safe([*_vendor_finding(target), *_findings(written)], accept_losses)
    _require_replaceable(target)
    with style.mutable_copy() as spare, target.mutable_copy() as previous:
        def put_back() -> None:
            if spare.ended:
                _overwrite_again(previous, target)

        with _restored_when_it_fails(_Backup(target.path, in_place=False), put_back):
            spare.overwrite(target, pretty=pretty)
            _read_back(target, written)
    style.destroy()
    return target


def edit_safely(editor: PropertyEditor, style: UserStyle) -> Tuple[Finding, ...]:
    """Does what PropertyEditor.save_safely() says."""
    before = record_of(style)
    wanted = dataclasses.replace(before, name=editor.name, sub_genres=editor.sub_genres, colors=editor.colors)
    _require_safe(_findings(wanted))

    def put_back() -> None:
        if record_of(style) != before:
            editor._put_back(before)

    with _restored_when_it_fails(_Backup(style.path, in_place=True), put_back):
        editor.save()
        _read_back(style, wanted)
    return _vendor_finding(style)


def _vendor_finding(style: UserStyle) -> Tuple[Finding, ...]:
    lost = f"a file that is written again has none: {style.vendor!r}"
    return (Finding("vendor", lost, is_loss=True),) if style.vendor else ()


def _require_replaceable(target: UserStyle) -> None:
    """Outside Windows a file is not replaced from another file system."""
    directory = target.manager.user_directory
    if sys.platform == "win32" or not directory.exists() or not target.path.exists():
        return
    if os.stat(directory).st_dev != os.lstat(target.path).st_dev:
        raise UnsafeError([Finding(str(target.path), "it lies on another file system than the user directory")])


def _overwrite_again(previous: MutableStyle, target: UserStyle) -> None:
    """For what is in memory: over the file comes its backup."""
    if all(finding.place == "vendor" for finding in previous.left_out):
        try:
            previous.overwrite(target)
        except CodeError:
            pass  # it shows what was to be written, until it is read again


def _remove(saved: UserStyle, error: BaseException) -> None:
    try:
        saved.remove()
    except CodeError:
        raise NotSavedError(saved.path, f"{_reason(error)}; and it cannot be deleted") from error


def _reason(error: BaseException) -> str:
    return error.reason if isinstance(error, NotSavedError) else str(error) or type(error).__name__


def _read_back(saved: UserStyle, written: StyleRecord) -> None:
    path = saved.path
    try:
        [file] = scan([path])
    except (OSError, CodeError) as error:
        raise NotSavedError(path, f"it cannot be read again: {error}") from error
    if file.style is None:
        raise NotSavedError(path, str(file.refusal))
    expected = dataclasses.replace(_as_read(written), id=saved.id, vendor="")
    if _comparable(file.style) != _comparable(expected):
        raise NotSavedError(path, "the file does not hold what was written")


def _comparable(record: StyleRecord) -> str:
    """Tells 1 from 1.0, and takes names and lists in any order."""
    chains = {name: [(effect.id, sorted(effect.parameters)) for effect in getattr(record, name)]
              for name in ("audio_effects", "midi_effects")}
    lists = {name: sorted(getattr(record, name)) for name in LISTS}
    return repr((record.id, record.name, record.vendor, lists, chains))
