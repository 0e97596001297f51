"""Finding and loading the dynamic library."""
from __future__ import annotations

import ctypes
import os
import pathlib
import sys

from .codes import VERSION
from .errors import LibraryError

ENVIRONMENT_VARIABLE = "KOSTYLE_LIBRARY"


def library_name() -> str:
    """The name by which the system's loader knows the library; on Linux it holds the major version."""
    return "KoStyle.dll" if sys.platform == "win32" else f"libKoStyle.so.{VERSION.split('.')[0]}"


def library_path() -> str:
    """The library beside this module, where a wheel has it; else the one that the environment variable
    KOSTYLE_LIBRARY names; else the name alone, which the system's loader looks up."""
    beside = pathlib.Path(__file__).resolve().parent / library_name()
    if beside.is_file():
        return str(beside)
    given = os.environ.get(ENVIRONMENT_VARIABLE)
    return os.path.abspath(given) if given else library_name()


def load() -> ctypes.CDLL:
    """Loads the library, or raises LibraryError."""
    path = library_path()
    try:
        return ctypes.CDLL(path)
    except OSError as error:
        raise LibraryError(f"{path} cannot be loaded ({error}); {ENVIRONMENT_VARIABLE} may name the library") from error
