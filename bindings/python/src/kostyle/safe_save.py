"""Saving with care: what would not come back is refused before anything is written, what was written is read
again, and whatever fails leaves the old file as it was."""
from __future__ import annotations

import contextlib
import dataclasses
import filecmp
import os
import pathlib
import shutil
import stat
import sys
import uuid
from typing import Callable, Dict, Iterable, Iterator, Optional, Tuple

from .attributes import LISTS
from .codes import ProblemKind
from .errors import CodeError, NotSavedError, Problem, UnsafeError
from .find_problems import name_as_read, problem_of_vendor, problems_of
from .mutable import MutableStyle
from .parameters import ParameterValue
from .property_editor import PropertyEditor
from .records import EffectRecord, Parameters, StyleRecord, record_of
from .scan import scan
from .styles import UserStyle

def _require_safe(problems: Iterable[Problem], accept_losses: bool = False) -> None:
    found = list(problems)
    if not all(accept_losses and problem.is_loss for problem in found):
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
        first.setdefault(name_as_read(name), value)
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
            raise _not_saved(ProblemKind.BACKUP_FAILED, self.file, error.strerror) from error

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
                raise _not_restored(backup.file, error, backup.path, backup.path) from error
        raise
    backup.discard()


def save_safely(style: MutableStyle, pretty: bool, accept_losses: bool) -> UserStyle:
    """Does what MutableStyle.save_safely() says."""
    written = record_of(style)
    _require_safe(problems_of(written, is_mutable=True), accept_losses)
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
    lost = problem_of_vendor(record_of(target))
    _require_safe([*problems_of(written, is_mutable=True), *lost], accept_losses)
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


def edit_safely(editor: PropertyEditor, style: UserStyle) -> Tuple[Problem, ...]:
    """Does what PropertyEditor.save_safely() says."""
    editor._require_name()
    before = record_of(style)
    wanted = dataclasses.replace(before, name=editor.name, sub_genres=editor.sub_genres, colors=editor.colors)
    _require_safe(problems_of(wanted, is_mutable=False))

    def put_back() -> None:
        if record_of(style) != before:
            editor._put_back(before)

    with _restored_when_it_fails(_Backup(style.path, in_place=True), put_back):
        editor.save()
        _read_back(style, wanted)
    return problem_of_vendor(before)


def _require_replaceable(target: UserStyle) -> None:
    cause = _why_not_replaceable(target.path, target.manager.user_directory)
    if cause:
        raise UnsafeError([Problem(ProblemKind.NOT_REPLACEABLE, str(target.path), cause)])


def _why_not_replaceable(file: pathlib.Path, directory: pathlib.Path) -> str:
    try:
        if not stat.S_ISREG(os.stat(file).st_mode):
            return "it is no regular file"
    except OSError as error:
        return error.strerror or str(error)
    if sys.platform == "win32" or not directory.exists() or os.stat(directory).st_dev == os.lstat(file).st_dev:
        return ""
    # Outside Windows a file is not replaced from another file system.
    return "it lies on another file system than the user directory"


def _overwrite_again(previous: MutableStyle, target: UserStyle) -> None:
    """For what is in memory: over the file comes its backup."""
    if all(problem.kind == ProblemKind.VENDOR_LOST for problem in previous.not_copied):
        try:
            previous.overwrite(target)
        except CodeError:
            pass  # it shows what was to be written, until it is read again


def _remove(saved: UserStyle, error: BaseException) -> None:
    try:
        saved.remove()
    except CodeError:
        raise _not_restored(saved.path, error, saved.path) from error


def _not_saved(kind: ProblemKind, file: pathlib.Path, cause: str = "") -> NotSavedError:
    return NotSavedError(file, [Problem(kind, str(file), cause)])


def _not_restored(file: pathlib.Path, error: BaseException, left: pathlib.Path,
                  backup: Optional[pathlib.Path] = None) -> NotSavedError:
    """Of a failure after which something else is left than there was before."""
    problems = error.problems if isinstance(error, NotSavedError) else (
        Problem(ProblemKind.NOT_READ_BACK, str(file), str(error) or type(error).__name__),)
    return NotSavedError(file, [*problems, Problem(ProblemKind.NOT_RESTORED, str(left))], backup)


def _read_back(saved: UserStyle, written: StyleRecord) -> None:
    path = saved.path
    try:
        [file] = scan([path])
    except (OSError, CodeError) as error:
        raise _not_saved(ProblemKind.NOT_READ_BACK, path, str(error)) from error
    if file.style is None:
        raise _not_saved(ProblemKind.NOT_READ_BACK, path, str(file.refusal))
    expected = dataclasses.replace(_as_read(written), id=saved.id, vendor="")
    if _comparable(file.style) != _comparable(expected):
        raise _not_saved(ProblemKind.READ_BACK_DIFFERS, path)


def _comparable(record: StyleRecord) -> str:
    """Tells 1 from 1.0, and takes names and lists in any order."""
    chains = {name: [(effect.id, sorted(effect.parameters)) for effect in getattr(record, name)]
              for name in ("audio_effects", "midi_effects")}
    lists = {name: sorted(getattr(record, name)) for name in LISTS}
    return repr((record.id, record.name, record.vendor, lists, chains))
