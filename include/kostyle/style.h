/*
 * KoStyle: reading styles. The Style_* functions take a style of any kind unless they say otherwise.
 */
#ifndef KOSTYLE_STYLE_H
#define KOSTYLE_STYLE_H

#include "types.h"

/** The manager that owns the style. */
KOSTYLE_API KoStyleManager* Style_parent(KoStyleStyle* style);

/** The style's kind, a value of enum KoStyleKind; KOSTYLE_KIND_NONE for a null handle. */
KOSTYLE_API int Style_type(KoStyleStyle* style);

/**
 * The style's identifier, unique over the manager's system and user styles; empty for a mutable style.
 */
KOSTYLE_API const KoStyleChar* Style_id(KoStyleStyle* style);

/**
 * The path of the style's file: the directory as it was given, a separator and the file's name. Empty
 * for a mutable style.
 */
KOSTYLE_API const KoStyleChar* Style_path(KoStyleStyle* style);

/**
 * The display name; empty when the file's name is longer than KOSTYLE_MAX_NAME_LENGTH units, and for a
 * mutable style that has none yet.
 */
KOSTYLE_API const KoStyleChar* Style_name(KoStyleStyle* style);

/** Number of languages; SIZE_MAX for a null handle. */
KOSTYLE_API size_t Style_numLanguage(KoStyleStyle* style);

/**
 * The language at an index, in ascending order, from Style_minLangID() to Style_maxLangID().
 * -1 for a null handle and for an index at or past the end.
 */
KOSTYLE_API int Style_language(KoStyleStyle* style, size_t index);

/** The smallest language identifier: KOSTYLE_MIN_LANGUAGE. */
KOSTYLE_API int Style_minLangID(void);

/** The largest language identifier: KOSTYLE_MAX_LANGUAGE. */
KOSTYLE_API int Style_maxLangID(void);

/** Number of singer groups; SIZE_MAX for a null handle. */
KOSTYLE_API size_t Style_numSingerGroup(KoStyleStyle* style);

/** The singer group at an index, in ascending order. */
KOSTYLE_API const KoStyleChar* Style_singerGroup(KoStyleStyle* style, size_t index);

/** Number of singer identifiers; SIZE_MAX for a null handle. */
KOSTYLE_API size_t Style_numSingerID(KoStyleStyle* style);

/**
 * The singer identifier at an index, in ascending order; Style_singerIDLength() units long, fewer for
 * the host when a file's holds U+0000 (see the conventions).
 */
KOSTYLE_API const KoStyleChar* Style_singerID(KoStyleStyle* style, size_t index);

/** The length of every singer identifier, in UTF-16 units: KOSTYLE_SINGER_ID_LENGTH. */
KOSTYLE_API int Style_singerIDLength(void);

/** Number of genres; SIZE_MAX for a null handle. */
KOSTYLE_API size_t Style_numGenre(KoStyleStyle* style);

/** The genre at an index, in ascending order. */
KOSTYLE_API const KoStyleChar* Style_genre(KoStyleStyle* style, size_t index);

/** Number of sub-genres; SIZE_MAX for a null handle. */
KOSTYLE_API size_t Style_numSubGenre(KoStyleStyle* style);

/** The sub-genre at an index, in ascending order. */
KOSTYLE_API const KoStyleChar* Style_subGenre(KoStyleStyle* style, size_t index);

/** Number of colours; SIZE_MAX for a null handle. */
KOSTYLE_API size_t Style_numColor(KoStyleStyle* style);

/** The colour at an index, in ascending order: any text that is not empty. */
KOSTYLE_API const KoStyleChar* Style_color(KoStyleStyle* style, size_t index);

/** Number of effects in the audio chain; SIZE_MAX for a null handle. */
KOSTYLE_API size_t Style_numAudioEffect(KoStyleStyle* style);

/** Number of effects in the MIDI chain; SIZE_MAX for a null handle. */
KOSTYLE_API size_t Style_numMidiEffect(KoStyleStyle* style);

/** Whether an effect is in the style's audio chain. The effect is only compared; NULL gives false. */
KOSTYLE_API bool Style_hasAudioEffect(KoStyleStyle* style, KoStyleEffect* effect);

/** Whether an effect is in the style's MIDI chain. The effect is only compared; NULL gives false. */
KOSTYLE_API bool Style_hasMidiEffect(KoStyleStyle* style, KoStyleEffect* effect);

/**
 * The vendor text of a system or user style; empty when the file has none. NULL for a mutable style.
 * The library never writes it: a style that it overwrites or edits loses the text in its file, and
 * keeps it in memory until the set is read again.
 */
KOSTYLE_API const KoStyleChar* Style_vendor(KoStyleStyle* style);

/** The effect at an index of a system or user style's audio chain. NULL for a mutable style. */
KOSTYLE_API KoStyleEffect* Style_audioEffect(KoStyleStyle* style, size_t index);

/** The effect at an index of a system or user style's MIDI chain. NULL for a mutable style. */
KOSTYLE_API KoStyleEffect* Style_midiEffect(KoStyleStyle* style, size_t index);

/** The system style after this one in its manager; NULL at the end and for other kinds. */
KOSTYLE_API KoStyleStyle* SystemStyle_next(KoStyleStyle* style);

/** The system style before this one in its manager; NULL at the front and for other kinds. */
KOSTYLE_API KoStyleStyle* SystemStyle_prev(KoStyleStyle* style);

/** The user style after this one in its manager; NULL at the end and for other kinds. */
KOSTYLE_API KoStyleStyle* UserStyle_next(KoStyleStyle* style);

/** The user style before this one in its manager; NULL at the front and for other kinds. */
KOSTYLE_API KoStyleStyle* UserStyle_prev(KoStyleStyle* style);

/**
 * Deletes a user style's file and the style, with every handle and text reached through it. Creation
 * results stay. A directory in the file's place is removed when it is empty. On any code but KOSTYLE_OK
 * nothing has changed. Lets no exception out.
 *
 * @return KOSTYLE_OK; KOSTYLE_ERROR_INVALID_HANDLE when the handle is null or not a user style, or an
 *         exception was contained; KOSTYLE_ERROR_DELETE_FAILED when the file is missing or the system
 *         refuses.
 */
KOSTYLE_API int UserStyle_remove(KoStyleStyle* style);

/**
 * Creates the property editor of a user style, empty. An editor that the style had is destroyed.
 *
 * @return the editor, owned by the style until UserStyle_destroyPropertyEditor(), the next call of
 *         this function, or the style's end; NULL when the handle is null or not a user style.
 */
KOSTYLE_API KoStylePropertyEditor* UserStyle_createPropertyEditor(KoStyleStyle* style);

/** Destroys the user style's property editor, if it has one, with what it collected. */
KOSTYLE_API void UserStyle_destroyPropertyEditor(KoStyleStyle* style);

#endif
