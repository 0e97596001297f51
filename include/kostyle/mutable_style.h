/*
 * KoStyle: editing mutable styles. StyleManager_createMutableStyle() makes one; all Style_* functions
 * that take any kind read it. On a stored style these functions change nothing and return their
 * default.
 */
#ifndef KOSTYLE_MUTABLE_STYLE_H
#define KOSTYLE_MUTABLE_STYLE_H

#include "types.h"

/** Destroys the style with its effects and their parameters. Lets no exception out. */
KOSTYLE_API void MutableStyle_destroy(KoStyleStyle* style);

/** The effect at an index of the audio chain. */
KOSTYLE_API KoStyleEffect* MutableStyle_audioEffect(KoStyleStyle* style, size_t index);

/** The effect at an index of the MIDI chain. */
KOSTYLE_API KoStyleEffect* MutableStyle_midiEffect(KoStyleStyle* style, size_t index);

/** Sets the name, of 1 to KOSTYLE_MAX_NAME_LENGTH units; false when it is refused. */
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
 * Writes the style as a new file of the user style directory, under a new identifier, and adds it to
 * the manager's user styles. On success the mutable style is destroyed; on failure nothing changes,
 * but that the user directory may exist now.
 *
 * An effect without parameters is written, but reading the file again skips it. What goes wrong while
 * the file is being written, a full disk for instance, gives no error (see the conventions).
 *
 * @param pretty true for one line per member, indented by 4 spaces; false for no white space.
 * @param error receives KOSTYLE_OK, KOSTYLE_ERROR_ARGUMENT_MISSING (the style has no name),
 *        KOSTYLE_ERROR_NO_MANAGER, KOSTYLE_ERROR_FOREIGN_MUTABLE_STYLE,
 *        KOSTYLE_ERROR_USER_DIRECTORY_NOT_CREATABLE, KOSTYLE_ERROR_OPEN_FAILED, or a code of the
 *        writer: KOSTYLE_ERROR_NO_EFFECT or KOSTYLE_ERROR_WRITE_*. When it is NULL nothing is done.
 *        Not written for an invalid handle.
 * @return the new user style; NULL on failure.
 */
KOSTYLE_API KoStyleStyle* MutableStyle_save(KoStyleStyle* style, bool pretty, int* error);

/**
 * Writes the style over the file of a user style, which keeps its identifier, its file name and its
 * handle and takes the new contents. On success the mutable style is destroyed; on failure nothing
 * changes, but that the user directory may exist now. The handles of the user style's old effects and
 * parameters become invalid.
 *
 * The new file is written into the user style directory, the old one is deleted and the new one takes
 * its name. When the system refuses that, as it does for a style of a further directory on another
 * volume, the call still succeeds, but the file stays in the user style directory under a bare UUID,
 * where no read finds it. What goes wrong while the file is being written gives no error either.
 *
 * @param targetID the identifier of the user style to overwrite; an empty one finds none.
 * @param pretty as for MutableStyle_save().
 * @param error receives KOSTYLE_OK, KOSTYLE_ERROR_ARGUMENT_MISSING (targetID is null),
 *        KOSTYLE_ERROR_NO_MANAGER, KOSTYLE_ERROR_USER_STYLE_NOT_FOUND,
 *        KOSTYLE_ERROR_FOREIGN_MUTABLE_STYLE, KOSTYLE_ERROR_USER_DIRECTORY_NOT_CREATABLE,
 *        KOSTYLE_ERROR_OPEN_FAILED, KOSTYLE_ERROR_TARGET_NOT_REPLACEABLE, or a code of the writer as
 *        for MutableStyle_save(). When it is NULL nothing is done. Not written for an invalid handle.
 * @return the overwritten user style; NULL on failure.
 */
KOSTYLE_API KoStyleStyle* MutableStyle_overwrite(KoStyleStyle* style, const KoStyleChar* targetID,
                                                 bool pretty, int* error);

#endif
