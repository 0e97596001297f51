/*
 * KoStyle: editing mutable styles. StyleManager_createMutableStyle() makes one; all Style_* functions
 * that take any kind read it. On a stored style these functions change nothing and return their
 * default.
 */
#ifndef KOSTYLE_MUTABLE_STYLE_H
#define KOSTYLE_MUTABLE_STYLE_H

#include "types.h"

/**
 * Destroys the style with its effects and their parameters; all its handles and texts end. Lets no
 * exception out.
 */
KOSTYLE_API void MutableStyle_destroy(KoStyleStyle* style);

/** The effect at an index of the audio chain. */
KOSTYLE_API KoStyleEffect* MutableStyle_audioEffect(KoStyleStyle* style, size_t index);

/** The effect at an index of the MIDI chain. */
KOSTYLE_API KoStyleEffect* MutableStyle_midiEffect(KoStyleStyle* style, size_t index);

/**
 * Sets the name, of 1 to KOSTYLE_MAX_NAME_LENGTH units; the old name's text ends. false when the name
 * is refused and the old one stays.
 */
KOSTYLE_API bool MutableStyle_setName(KoStyleStyle* style, const KoStyleChar* name);

/** Adds a language; false when it is below Style_minLangID(), above Style_maxLangID() or present. */
KOSTYLE_API bool MutableStyle_addLanguage(KoStyleStyle* style, int language);

/** Deletes a language; false when it is not present. */
KOSTYLE_API bool MutableStyle_deleteLanguage(KoStyleStyle* style, int language);

/** Adds a singer group; false when it is null, empty or present. */
KOSTYLE_API bool MutableStyle_addSingerGroup(KoStyleStyle* style, const KoStyleChar* singerGroup);

/** Deletes a singer group; false when it is null or not present. */
KOSTYLE_API bool MutableStyle_deleteSingerGroup(KoStyleStyle* style, const KoStyleChar* singerGroup);

/** Adds a singer identifier; false when it is null, not Style_singerIDLength() units, or present. */
KOSTYLE_API bool MutableStyle_addSingerID(KoStyleStyle* style, const KoStyleChar* singerID);

/** Deletes a singer identifier; false when it is null or not present. */
KOSTYLE_API bool MutableStyle_deleteSingerID(KoStyleStyle* style, const KoStyleChar* singerID);

/** Adds a genre; false when it is null, empty or present. */
KOSTYLE_API bool MutableStyle_addGenre(KoStyleStyle* style, const KoStyleChar* genre);

/** Deletes a genre; false when it is null or not present. */
KOSTYLE_API bool MutableStyle_deleteGenre(KoStyleStyle* style, const KoStyleChar* genre);

/** Adds a sub-genre; false when it is null, empty or present. */
KOSTYLE_API bool MutableStyle_addSubGenre(KoStyleStyle* style, const KoStyleChar* subGenre);

/** Deletes a sub-genre; false when it is null or not present. */
KOSTYLE_API bool MutableStyle_deleteSubGenre(KoStyleStyle* style, const KoStyleChar* subGenre);

/** Adds a colour; false when it is null, empty or present. */
KOSTYLE_API bool MutableStyle_addColor(KoStyleStyle* style, const KoStyleChar* color);

/** Deletes a colour; false when it is null or not present. */
KOSTYLE_API bool MutableStyle_deleteColor(KoStyleStyle* style, const KoStyleChar* color);

/**
 * Inserts a new effect without parameters into the audio chain.
 *
 * @param index position of the new effect; at or past the end it is appended.
 * @param id the effect's identifier; not empty; not the identifier of another effect of the chain.
 * @return the effect, owned by the style; NULL when the identifier is refused.
 */
KOSTYLE_API KoStyleEffect* MutableStyle_insertAudioEffect(KoStyleStyle* style, size_t index,
                                                          const KoStyleChar* id);

/** Inserts a new effect into the MIDI chain, as MutableStyle_insertAudioEffect() does. */
KOSTYLE_API KoStyleEffect* MutableStyle_insertMidiEffect(KoStyleStyle* style, size_t index,
                                                         const KoStyleChar* id);

/**
 * Writes the style as a new file of the user style directory, under a new UUID as identifier and file
 * name, and adds it at the end of the manager's user styles, without a creation result. On success the
 * mutable style is destroyed: its handle, those of its effects and parameters, and all their texts end.
 * On failure nothing changes, but that the user directory may exist now.
 *
 * An effect without parameters is written, but reading the file again skips it, and refuses a style
 * whose effects are all so. A parameter "Tarn" is read again as "Tarn630". What goes wrong while the
 * file is being written, a full disk for instance, gives no error (see the conventions).
 *
 * @param pretty true for one line per member, indented by 4 spaces; false for no white space.
 * @param error receives KOSTYLE_OK, or the first that applies of KOSTYLE_ERROR_ARGUMENT_MISSING (the
 *        style has no name), KOSTYLE_ERROR_USER_DIRECTORY_NOT_CREATABLE, KOSTYLE_ERROR_OPEN_FAILED and
 *        KOSTYLE_ERROR_NO_EFFECT. When it is NULL nothing is done. Not written for an invalid handle.
 * @return the new user style; NULL on failure.
 */
KOSTYLE_API KoStyleStyle* MutableStyle_save(KoStyleStyle* style, bool pretty, int* error);

/**
 * Writes the style over the file of a user style, which takes the new content. On failure nothing
 * changes in memory, and every handle and text of both styles stays; on disk only the user directory
 * may be new. On success
 *
 *  - stay: the user style's handle and its place among the user styles; the texts of its Style_id(),
 *    Style_path() and Style_vendor(), at their addresses, and those of a name and of whole attribute
 *    lists that the mutable style has alike; its property editor with what it collected;
 *  - end: the texts of a name and of attribute lists that change, and the handles and texts of its
 *    effects and their parameters; the mutable style, with all its handles and texts.
 *
 * The new file is written into the user style directory under a UUID without extension, the old file is
 * deleted, and the new one is renamed to its path. The result of the renaming is not looked at: when it
 * fails, the code is KOSTYLE_OK, the style in memory is the new one, the old file is gone, and the new
 * one stays under its UUID, where no read finds it. That happens on Linux for a style of a further
 * directory on another file system; on Windows the renaming copies to another volume. What goes wrong
 * while the file is being written gives no error either; see the conventions for what a careful host
 * does.
 *
 * @param targetID the identifier of the user style to overwrite; an empty one finds none.
 * @param pretty as for MutableStyle_save().
 * @param error receives KOSTYLE_OK, or the first that applies of KOSTYLE_ERROR_ARGUMENT_MISSING
 *        (targetID is null), KOSTYLE_ERROR_USER_STYLE_NOT_FOUND,
 *        KOSTYLE_ERROR_USER_DIRECTORY_NOT_CREATABLE, KOSTYLE_ERROR_OPEN_FAILED (of the new file),
 *        KOSTYLE_ERROR_WRITE_EMPTY_NAME (the style has no name), KOSTYLE_ERROR_NO_EFFECT and
 *        KOSTYLE_ERROR_TARGET_NOT_REPLACEABLE. When it is NULL nothing is done. Not written for an
 *        invalid handle.
 * @return the overwritten user style; NULL on failure.
 */
KOSTYLE_API KoStyleStyle* MutableStyle_overwrite(KoStyleStyle* style, const KoStyleChar* targetID,
                                                 bool pretty, int* error);

#endif
