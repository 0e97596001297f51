"""Styles for music applications: reads, builds and saves `.kostyle` files by the KoStyle library.

A Manager reads the styles of a system and a user directory. They are walked as ordinary sequences, parameters
are mappings; new styles are built as mutable ones and saved; scan() reads any files without a manager.

    with kostyle.Manager("my-host", "/usr/share/my-host/styles", pathlib.Path.home() / "styles") as manager:
        manager.read()
        for style in manager.system_styles:
            print(style.name, style.genres)

Lifetimes. An object stands for one in the library, and ends with it: a manager's when it is closed, those of a
style set when it is read again, a mutable style when it is saved. Using one that has ended raises EndedError.
What it gave before - texts, numbers, tuples, records - is Python's own and stays.

Threads. A manager and all that it owns are used by one thread at a time; different managers may be used by
different threads at the same time. scan() may run on any number of threads.

Errors. All exceptions are of the class Error: CodeError with the library's code, RefusedError for a value that is
not taken, UnsafeError and NotSavedError from saving with care. When memory runs out inside the library, the
process ends.

Text is Python's str; lengths count UTF-16 units. A text with U+0000 is refused. A lone surrogate is taken, but
cannot be written.
"""
from .codes import (VERSION, Code, EffectKind, Kind, Limit, ParameterType, ParseError, ProblemKind, code_text,
                    parse_error_text, problem_text)
from .creation_results import CreationResult
from .effects import Chain, Effect, MutableChain, MutableEffect
from .errors import CodeError, EndedError, Error, LibraryError, NotSavedError, Problem, RefusedError, UnsafeError
from .find_problems import find_problems
from .manager import Manager, StyleSet
from .mutable import MutableStyle
from .attributes import MutableAttributes
from .parameters import MutableParameter, Parameter, ParameterValue
from .places import find_line
from .property_editor import PropertyEditor
from .records import EffectRecord, FileRecord, Refusal, StyleRecord, record_of
from .scan import scan
from .styles import StoredStyle, Style, SystemStyle, UserStyle

__version__ = VERSION

__all__ = [
    "Chain", "Code", "CodeError", "CreationResult", "Effect", "EffectKind", "EffectRecord", "EndedError", "Error",
    "FileRecord", "Kind", "LibraryError", "Limit", "Manager", "MutableAttributes", "MutableChain", "MutableEffect",
    "MutableParameter", "MutableStyle", "NotSavedError", "Parameter", "ParameterType", "ParameterValue", "ParseError",
    "Problem", "ProblemKind", "PropertyEditor", "Refusal", "RefusedError", "StoredStyle", "Style", "StyleRecord",
    "StyleSet", "SystemStyle", "UnsafeError", "UserStyle", "VERSION", "code_text", "find_line", "find_problems",
    "parse_error_text", "problem_text", "record_of", "scan",
]
