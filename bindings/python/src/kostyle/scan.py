"""Reading many files without a manager of the caller's: the part of a large job that can be shared out.

The library reads directories. So the files are shown to it as links with numbers for names in a folder of
their own, under a manager of their own.
"""
from __future__ import annotations

import collections
import contextlib
import ctypes
import errno
import os
import shutil
import stat
import sys
import tempfile
import uuid
from typing import Dict, Iterable, Iterator, List

from .codes import Code
from .errors import CodeError
from .functions import c, registry
from .records import FileRecord, Refusal, read_refusal, read_style
from .text import PathLike, decode, encode, encode_path, several

# Of making a link or a copy: no fault of the file's.
_NO_ROOM = {errno.ENOSPC, errno.EDQUOT}
# So many files lie in one folder, and so many styles in memory, at a time.
_BATCH = 1000
PREFIX = "kostyle-scan-"


def scan(paths: Iterable[PathLike]) -> List[FileRecord]:
    """Reads style files, and gives a record for each path, in the order of the paths.

    A file is read by itself: whatever its name and extension, and also when another has the same identifier.
    One that is missing, cannot be opened or is no regular file has a refusal without a code. Links are
    followed. `path` of a record is the path as it was given, so a relative one is relative to the working
    directory of the process that scans.

    The function and the records can be pickled, so any pool of processes or machines may run it, and any
    number of threads at a time. It writes links (on Windows hard links, or copies where those cannot be made)
    into a folder of its own and removes them: below the folder that the environment variable TMPDIR names, else in
    memory, below /dev/shm, else below tempfile.gettempdir(). Raises OSError when that folder cannot be made or has no
    room, and TypeError when `paths` is a single path. A process that is killed meanwhile leaves the folder behind.

    >>> for record in kostyle.scan([system_directory / "concrete_club.kostyle", "missing.kostyle"]):
    ...     print(record.style.name if record.style else record.refusal)
    Concrete club
    No such file or directory
    """
    given = [os.fsdecode(path) for path in several(paths)]
    records: List[FileRecord] = []
    for start in range(0, len(given), _BATCH):
        records += _scan_batch(given[start:start + _BATCH])
    return records


def _scan_batch(paths: List[str]) -> List[FileRecord]:
    records = [FileRecord(path) for path in paths]
    rounds = [records]
    while rounds:
        # Of files with one identifier a manager takes the first. Each of the others goes into another round,
        # so that no file is read more than twice.
        rounds += _rounds_of_distinct(_scan_round(rounds.pop()))
    for record in records:
        if record.style is None and record.refusal is None:
            record.refusal = Refusal(None, _why_not_opened(record.path))
    return records


def _rounds_of_distinct(repeated: Dict[str, List[FileRecord]]) -> List[List[FileRecord]]:
    rounds: List[List[FileRecord]] = []
    for records in repeated.values():
        for place, record in enumerate(records):
            if place == len(rounds):
                rounds.append([])
            rounds[place].append(record)
    return rounds


def _scan_round(records: List[FileRecord]) -> Dict[str, List[FileRecord]]:
    """Fills the records in; gives those of repeated identifiers, by identifier."""
    repeated: Dict[str, List[FileRecord]] = collections.defaultdict(list)
    with _folder_of_links(records) as folder, _manager(folder) as manager:
        code = c.StyleManager_readSystemStyles(manager)
        if code != Code.OK:
            raise CodeError(code, folder)
        result = c.StyleManager_systemStyleCreationResult(manager, 0)
        style = c.StyleManager_systemStyle(manager, 0)
        while result:
            name = os.path.basename(decode(c.StyleCreationResult_filePath(result)))
            record = records[int(name[:name.index(".")])]
            error = c.StyleCreationResult_error(result)
            if error == Code.OK:
                record.style = read_style(style)
                style = c.SystemStyle_next(style)
            elif error == Code.DUPLICATE_ID:
                repeated[decode(c.StyleCreationResult_id(result))].append(record)
            else:
                record.refusal = read_refusal(result, record.path)
            result = c.StyleCreationResult_next(result)
    return repeated


@contextlib.contextmanager
def _manager(folder: str) -> Iterator[int]:
    path = encode_path(folder)
    code = ctypes.c_int(Code.OK)
    create = c.CreateStyleManager
    with registry:
        manager = create(encode(f"{PREFIX}{uuid.uuid4()}"), path, path, None, 0, None, 0, ctypes.byref(code))
    if not manager:
        raise CodeError(code.value, folder)
    try:
        yield manager
    finally:
        with registry:
            c.StyleManager_destroy(manager)


@contextlib.contextmanager
def _folder_of_links(records: List[FileRecord]) -> Iterator[str]:
    """A folder where each file is there under its number; a file that cannot be shown is not."""
    folder = _make_folder()
    links = [os.path.join(folder, f"{number}.kostyle") for number in range(len(records))]
    try:
        for record, link in zip(records, links):
            try:
                _show(_absolute(record.path), link)
            except (OSError, ValueError) as error:
                if isinstance(error, OSError) and error.errno in _NO_ROOM:
                    raise
                # It has no creation result then, and _why_not_opened() finds out.
        yield folder
    finally:
        for link in links:
            with contextlib.suppress(FileNotFoundError):
                os.unlink(link)
        os.rmdir(folder)


def _make_folder() -> str:
    if "TMPDIR" not in os.environ:
        # In memory where the system has such a place: making a link on a disk can take longer than reading a file.
        with contextlib.suppress(OSError):
            return tempfile.mkdtemp(prefix=PREFIX, dir="/dev/shm")
    return tempfile.mkdtemp(prefix=PREFIX)


def _absolute(path: str) -> str:
    """For a link elsewhere. Behind a link to a folder, ".." is not the folder that holds the link, as
    os.path.abspath() would have it."""
    if sys.platform == "win32":
        return os.path.abspath(path)
    return path if os.path.isabs(path) else os.path.join(os.getcwd(), path)


def _show(path: str, link: str) -> None:
    if sys.platform != "win32":
        try:
            return os.symlink(path, link)
        except OSError as error:  # not every file system has links
            if error.errno in _NO_ROOM:
                raise
    elif os.access(path, os.W_OK):  # a link to a file that is read-only could not be removed
        with contextlib.suppress(OSError):  # not to another volume
            return os.link(path, link)
    if stat.S_ISREG(os.stat(path).st_mode):
        shutil.copyfile(path, link)


def _why_not_opened(path: str) -> str:
    try:
        mode = os.stat(path).st_mode
        if not stat.S_ISREG(mode):
            return "it is a directory" if stat.S_ISDIR(mode) else "it is no regular file"
        with open(path, "rb"):
            return "the file could not be opened when it was read"
    except OSError as error:
        return error.strerror or str(error)
    except ValueError:
        return "the system has no such paths"
