"""Temporary folders: one on disk, and one on a file system in memory when there is one."""

import contextlib
import os
import shutil
import tempfile
from dataclasses import dataclass
from pathlib import Path

MEMORY = Path("/dev/shm")
ROOM = 4 << 30  # bytes that the data and what is written may take, with some to spare


@dataclass(frozen=True)
class Places:
    disk: Path
    memory: Path | None
    data: Path  # in memory when there is room: some file systems take minutes to delete it again


def is_roomy() -> bool:
    available = os.sysconf("SC_AVPHYS_PAGES") * os.sysconf("SC_PAGE_SIZE")
    return min(available, shutil.disk_usage(MEMORY).free) > ROOM


@contextlib.contextmanager
def temporary_places():
    with contextlib.ExitStack() as stack:
        def make(parent=None) -> Path:
            return Path(stack.enter_context(tempfile.TemporaryDirectory(prefix="kostyle-bench-", dir=parent)))
        disk = make()
        memory = make(MEMORY) if MEMORY.is_dir() and os.access(MEMORY, os.W_OK) else None
        yield Places(disk, memory, (memory if memory and is_roomy() else disk) / "data")
