/*
 * KoStyle: styles for music applications.
 *
 * A style is a named set of attributes (languages, singer groups, singer identifiers, genres,
 * sub-genres, colours, a vendor text) with an audio and a MIDI chain of effects. It is stored as one
 * JSON document in a ".kostyle" file. A manager reads the styles of a system and a user directory;
 * the host walks them, builds new ones as mutable styles, and saves, overwrites, edits and removes
 * user styles.
 *
 * Conventions, which hold for every function unless its own text says otherwise:
 *
 *  1. Handles. A handle is borrowed: the library owns the object behind it, and the handle stays valid
 *     until its owner destroys the object. A manager owns its styles and creation results, a style
 *     its effects, an effect its parameters, a user style its property editor. Reading a style set
 *     again destroys that set's styles and creation results. A handle whose object is gone must not be
 *     passed to any function but HasStyleManager(), the StyleManager_has*Style() functions (as the
 *     style), Style_hasAudioEffect(), Style_hasMidiEffect() (as the effect) and Effect_hasParameter()
 *     (as the parameter), which only compare it; they answer true when a new object of that place has
 *     taken the address.
 *  2. Null handles and wrong kinds. A function given a null handle, or a handle of its family but of
 *     the wrong kind, changes nothing and returns a fixed default outside the valid range of its
 *     result. Each function names its default; where it names none it is NULL for pointers and false
 *     for bool.
 *  3. Text is UTF-16 and NUL-terminated. Lengths count UTF-16 units, not characters. Texts are equal
 *     when all their units are; they sort ascending by unit. Nothing is normalised, and letter case
 *     matters.
 *  4. Returned text is owned by the object that returned it. It stays in place while that object lives
 *     and that value is not changed; changing another value moves nothing. A text of a file may hold
 *     U+0000: it ends there for the host, while effects, parameters and attribute values are told
 *     apart by the whole of it. So two of them may look the same, and one may look empty or short.
 *  5. Text arguments are copied. A function behaves as if its text arguments had been copied on
 *     entry, so a text that the library returned may be passed back to change its own object. A null
 *     text is refused like an empty one, unless the function says otherwise.
 *  6. Indices are zero-based. An index at or past the end gives NULL (-1 for a language).
 *  7. Codes are the values of enum KoStyleCode, returned as int.
 *  8. Threads. Managers are created and destroyed under a lock of the library. Everything else takes
 *     no lock: a manager and all that it owns are used by one thread at a time. Different managers may
 *     be used by different threads at the same time. The library starts no thread.
 *  9. Memory. When memory runs out, a function throws std::bad_alloc out of the library and leaves the
 *     manager valid; an operation on files that had not started to write has changed nothing but
 *     that the user directory may exist now. Only MutableEffect_destroy(), MutableParameter_destroy(),
 *     MutableStyle_destroy(), UserStyle_remove() and the StyleManager_has*Style() functions let no
 *     exception out. Only C++ code of the compiler that built the library can catch it, and a host in C
 *     only through such code, compiled so that extern "C" functions may throw (Microsoft's compiler:
 *     /EHs, not /EHsc); any other host ends.
 * 10. Paths are passed to the operating system as they are given. On Windows all but the opening for
 *     writing and the renaming put the prefix for long paths, \\?\, in front of a path that does not
 *     start with a backslash. The system takes a path with that prefix literally: it must be absolute,
 *     with single backslashes, without "." and ".." as steps, and a directory without a backslash at
 *     its end: a system style directory given with one is missing; a user style directory is accepted,
 *     but reading it gives KOSTYLE_ERROR_DIRECTORY_MISSING, and what is saved there can be neither
 *     overwritten nor removed. Network paths get no prefix: beyond 260 units they need the form
 *     \\?\UNC\server\share. Files are opened for writing and renamed by the path as it is, so saving,
 *     overwriting and editing beyond 260 units need a directory given with the prefix, or a host that
 *     is aware of long paths. Elsewhere paths are UTF-16 forms of the system's UTF-8 paths; a byte b
 *     that is not valid UTF-8 stands as the unit 0xDC00 + b.
 * 11. Writing a file is not watched once the file is open. A full disk, a text with a lone surrogate
 *     or a parameter that is infinite or NaN gives no error: the file holds the blocks of 256 bytes
 *     that were written before, often none. A host that must know reads the file again.
 * 12. Overwriting and editing write the whole file anew and keep no copy of the old one. What the style
 *     holds already can therefore spoil the file: a number that was too large for a float and became
 *     infinite, a lone surrogate, or effects that all lost their parameters when they were read, after
 *     which the file holds no effect for the next read. A process that is killed meanwhile leaves the
 *     file empty or cut short (PropertyEditor_save()), or no file but the new one in the user style
 *     directory, under a UUID without extension (MutableStyle_overwrite()). A careful host copies the
 *     file first, under a name that does not end in ".kostyle", then reads the directory with a second
 *     manager, of another application identifier, and puts the copy back when the style is not there.
 */
#ifndef KOSTYLE_KOSTYLE_H
#define KOSTYLE_KOSTYLE_H

/* IWYU pragma: begin_exports */
#include "codes.h"
#include "creation_result.h"
#include "effect.h"
#include "manager.h"
#include "mutable_effect.h"
#include "mutable_style.h"
#include "parameter.h"
#include "property_editor.h"
#include "style.h"
#include "types.h"
#include "version.h"
/* IWYU pragma: end_exports */

#endif
