"""The C functions with their signatures. `c` holds them; the library is loaded when it is first used.

A handle is an address, a text the bytes that kostyle.text.encode() gives; a returned text is an address for
kostyle.text.decode(). Nothing here checks what it is given: a handle whose object is gone ends the process.
"""
from __future__ import annotations

import ctypes
import os
import threading
from typing import Any, Callable, Dict, Tuple

from .errors import LibraryError
from .library import load

BOOL = ctypes.c_bool
COUNT = ctypes.c_size_t
FLOAT = ctypes.c_float
INT = ctypes.c_int
INT_PLACE = ctypes.POINTER(ctypes.c_int)
HANDLE = ctypes.c_void_p
TEXT = ctypes.c_void_p
TEXT_ARGUMENT = ctypes.c_char_p
TEXTS_ARGUMENT = ctypes.POINTER(ctypes.c_char_p)

Signature = Tuple[Any, ...]

_CREATE = (HANDLE, TEXT_ARGUMENT, TEXT_ARGUMENT, TEXT_ARGUMENT, TEXTS_ARGUMENT, INT, TEXTS_ARGUMENT, INT, INT_PLACE)

_MANAGER: Dict[str, Signature] = {
    "CreateStyleManager": _CREATE,
    "Module_createStyleManager": _CREATE,
    "HasStyleManager": (BOOL, HANDLE),
    "Module_hasStyleManager": (BOOL, HANDLE),
    "StyleManager_destroy": (BOOL, HANDLE),
    "StyleManager_appID": (TEXT, HANDLE),
    "StyleManager_systemStyleDirPath": (TEXT, HANDLE),
    "StyleManager_userStyleDirPath": (TEXT, HANDLE),
    "StyleManager_readSystemStyles": (INT, HANDLE),
    "StyleManager_readUserStyles": (INT, HANDLE),
    "StyleManager_numSystemStyleCreationResult": (COUNT, HANDLE),
    "StyleManager_systemStyleCreationResult": (HANDLE, HANDLE, COUNT),
    "StyleManager_numUserStyleCreationResult": (COUNT, HANDLE),
    "StyleManager_userStyleCreationResult": (HANDLE, HANDLE, COUNT),
    "StyleManager_numSystemStyle": (COUNT, HANDLE),
    "StyleManager_systemStyle": (HANDLE, HANDLE, COUNT),
    "StyleManager_numUserStyle": (COUNT, HANDLE),
    "StyleManager_userStyle": (HANDLE, HANDLE, COUNT),
    "StyleManager_hasSystemStyle": (BOOL, HANDLE, HANDLE),
    "StyleManager_hasUserStyle": (BOOL, HANDLE, HANDLE),
    "StyleManager_hasMutableStyle": (BOOL, HANDLE, HANDLE),
    "StyleManager_createMutableStyle": (HANDLE, HANDLE),
}

_CREATION_RESULT: Dict[str, Signature] = {
    "StyleCreationResult_next": (HANDLE, HANDLE),
    "StyleCreationResult_prev": (HANDLE, HANDLE),
    "StyleCreationResult_error": (INT, HANDLE),
    "StyleCreationResult_filePath": (TEXT, HANDLE),
    "StyleCreationResult_id": (TEXT, HANDLE),
    "StyleCreationResult_type": (INT, HANDLE),
    "StyleCreationResult_jsonPath": (TEXT, HANDLE),
    "StyleCreationResult_parseError": (INT, HANDLE),
    "StyleCreationResult_parseErrorOffset": (COUNT, HANDLE),
}

_STYLE: Dict[str, Signature] = {
    "Style_parent": (HANDLE, HANDLE),
    "Style_type": (INT, HANDLE),
    "Style_id": (TEXT, HANDLE),
    "Style_path": (TEXT, HANDLE),
    "Style_name": (TEXT, HANDLE),
    "Style_vendor": (TEXT, HANDLE),
    "Style_numLanguage": (COUNT, HANDLE),
    "Style_language": (INT, HANDLE, COUNT),
    "Style_minLangID": (INT,),
    "Style_maxLangID": (INT,),
    "Style_numSingerGroup": (COUNT, HANDLE),
    "Style_singerGroup": (TEXT, HANDLE, COUNT),
    "Style_numSingerID": (COUNT, HANDLE),
    "Style_singerID": (TEXT, HANDLE, COUNT),
    "Style_singerIDLength": (INT,),
    "Style_numGenre": (COUNT, HANDLE),
    "Style_genre": (TEXT, HANDLE, COUNT),
    "Style_numSubGenre": (COUNT, HANDLE),
    "Style_subGenre": (TEXT, HANDLE, COUNT),
    "Style_numColor": (COUNT, HANDLE),
    "Style_color": (TEXT, HANDLE, COUNT),
    "Style_numAudioEffect": (COUNT, HANDLE),
    "Style_audioEffect": (HANDLE, HANDLE, COUNT),
    "Style_numMidiEffect": (COUNT, HANDLE),
    "Style_midiEffect": (HANDLE, HANDLE, COUNT),
    "Style_hasAudioEffect": (BOOL, HANDLE, HANDLE),
    "Style_hasMidiEffect": (BOOL, HANDLE, HANDLE),
    "SystemStyle_next": (HANDLE, HANDLE),
    "SystemStyle_prev": (HANDLE, HANDLE),
    "UserStyle_next": (HANDLE, HANDLE),
    "UserStyle_prev": (HANDLE, HANDLE),
    "UserStyle_remove": (INT, HANDLE),
    "UserStyle_createPropertyEditor": (HANDLE, HANDLE),
    "UserStyle_destroyPropertyEditor": (None, HANDLE),
}

_PROPERTY_EDITOR: Dict[str, Signature] = {
    "PropertyEditor_setStyleName": (BOOL, HANDLE, TEXT_ARGUMENT),
    "PropertyEditor_addSubGenre": (BOOL, HANDLE, TEXT_ARGUMENT),
    "PropertyEditor_addColor": (BOOL, HANDLE, TEXT_ARGUMENT),
    "PropertyEditor_save": (BOOL, HANDLE, BOOL),
}

_MUTABLE_STYLE: Dict[str, Signature] = {
    "MutableStyle_destroy": (None, HANDLE),
    "MutableStyle_audioEffect": (HANDLE, HANDLE, COUNT),
    "MutableStyle_midiEffect": (HANDLE, HANDLE, COUNT),
    "MutableStyle_setName": (BOOL, HANDLE, TEXT_ARGUMENT),
    "MutableStyle_addLanguage": (BOOL, HANDLE, INT),
    "MutableStyle_deleteLanguage": (BOOL, HANDLE, INT),
    "MutableStyle_addSingerGroup": (BOOL, HANDLE, TEXT_ARGUMENT),
    "MutableStyle_deleteSingerGroup": (BOOL, HANDLE, TEXT_ARGUMENT),
    "MutableStyle_addSingerID": (BOOL, HANDLE, TEXT_ARGUMENT),
    "MutableStyle_deleteSingerID": (BOOL, HANDLE, TEXT_ARGUMENT),
    "MutableStyle_addGenre": (BOOL, HANDLE, TEXT_ARGUMENT),
    "MutableStyle_deleteGenre": (BOOL, HANDLE, TEXT_ARGUMENT),
    "MutableStyle_addSubGenre": (BOOL, HANDLE, TEXT_ARGUMENT),
    "MutableStyle_deleteSubGenre": (BOOL, HANDLE, TEXT_ARGUMENT),
    "MutableStyle_addColor": (BOOL, HANDLE, TEXT_ARGUMENT),
    "MutableStyle_deleteColor": (BOOL, HANDLE, TEXT_ARGUMENT),
    "MutableStyle_insertAudioEffect": (HANDLE, HANDLE, COUNT, TEXT_ARGUMENT),
    "MutableStyle_insertMidiEffect": (HANDLE, HANDLE, COUNT, TEXT_ARGUMENT),
    "MutableStyle_save": (HANDLE, HANDLE, BOOL, INT_PLACE),
    "MutableStyle_overwrite": (HANDLE, HANDLE, TEXT_ARGUMENT, BOOL, INT_PLACE),
}

_EFFECT: Dict[str, Signature] = {
    "Effect_type": (INT, HANDLE),
    "Effect_id": (TEXT, HANDLE),
    "Effect_numParameter": (COUNT, HANDLE),
    "Effect_hasParameter": (BOOL, HANDLE, HANDLE),
    "Effect_parent": (HANDLE, HANDLE),
    "Effect_parameter": (HANDLE, HANDLE, COUNT),
    "AudioEffect_next": (HANDLE, HANDLE),
    "AudioEffect_prev": (HANDLE, HANDLE),
    "MidiEffect_next": (HANDLE, HANDLE),
    "MidiEffect_prev": (HANDLE, HANDLE),
    "MutableEffect_destroy": (None, HANDLE),
    "MutableEffect_parent": (HANDLE, HANDLE),
    "MutableEffect_parameter": (HANDLE, HANDLE, COUNT),
    "MutableEffect_move": (BOOL, HANDLE, COUNT),
    "MutableEffect_addParameter": (HANDLE, HANDLE, TEXT_ARGUMENT),
    "MutableAudioEffect_next": (HANDLE, HANDLE),
    "MutableAudioEffect_prev": (HANDLE, HANDLE),
    "MutableMidiEffect_next": (HANDLE, HANDLE),
    "MutableMidiEffect_prev": (HANDLE, HANDLE),
}

_PARAMETER: Dict[str, Signature] = {
    "Parameter_type": (INT, HANDLE),
    "Parameter_name": (TEXT, HANDLE),
    "Parameter_valueInt": (INT, HANDLE),
    "Parameter_valueFloat": (FLOAT, HANDLE),
    "Parameter_valueString": (TEXT, HANDLE),
    "Parameter_parent": (HANDLE, HANDLE),
    "Parameter_next": (HANDLE, HANDLE),
    "Parameter_prev": (HANDLE, HANDLE),
    "MutableParameter_destroy": (None, HANDLE),
    "MutableParameter_parent": (HANDLE, HANDLE),
    "MutableParameter_next": (HANDLE, HANDLE),
    "MutableParameter_prev": (HANDLE, HANDLE),
    "MutableParameter_setName": (BOOL, HANDLE, TEXT_ARGUMENT),
    "MutableParameter_setValueInt": (None, HANDLE, INT),
    "MutableParameter_setValueFloat": (None, HANDLE, FLOAT),
    "MutableParameter_setValueString": (None, HANDLE, TEXT_ARGUMENT),
}

SIGNATURES: Dict[str, Signature] = {**_MANAGER, **_CREATION_RESULT, **_STYLE, **_PROPERTY_EDITOR, **_MUTABLE_STYLE,
                                    **_EFFECT, **_PARAMETER}
"""Each exported name with the type of its result and those of its arguments."""


class Functions:
    """The functions by name: c.Style_name(handle)."""

    def __init__(self) -> None:
        self._lock = threading.Lock()

    def __getattr__(self, name: str) -> Callable[..., Any]:
        # Reached for a function only until the library is loaded.
        if name not in SIGNATURES:
            raise AttributeError(name)
        with self._lock:
            if name not in self.__dict__:
                self.__dict__.update(_bind(load()))
        function: Callable[..., Any] = self.__dict__[name]
        return function


def _bind(library: ctypes.CDLL) -> Dict[str, Callable[..., Any]]:
    bound = {}
    for name, (result, *arguments) in SIGNATURES.items():
        try:
            function = getattr(library, name)
        except AttributeError:
            raise LibraryError(f"{library._name} lacks {name}: it is another library, or an older one") from None
        function.restype = result
        function.argtypes = arguments
        bound[name] = function
    return bound


c = Functions()

registry = threading.RLock()
"""Held while a manager is created or destroyed, for which the library takes a lock of its own; and while the process
forks, since the new process would inherit that lock from a thread that it does not have. A handler of signals may
close a manager while it is held."""
if hasattr(os, "register_at_fork"):
    os.register_at_fork(before=registry.acquire, after_in_parent=registry.release, after_in_child=registry.release)
