/*
 * KoStyle: the property editor of a user style. It collects a name, sub-genres and colours, and
 * writes the style back to its own file. It starts empty: what the style has is replaced, not
 * extended. UserStyle_createPropertyEditor() makes one.
 */
#ifndef KOSTYLE_PROPERTY_EDITOR_H
#define KOSTYLE_PROPERTY_EDITOR_H

#include "types.h"

/**
 * Sets the name to be given to the style, in place of one that was set before.
 *
 * @param name not empty. PropertyEditor_save() refuses more than KOSTYLE_MAX_NAME_LENGTH units.
 * @return true; false when the name is null or empty, or the handle is null.
 */
KOSTYLE_API bool PropertyEditor_setStyleName(KoStylePropertyEditor* editor, const KoStyleChar* name);

/** Adds a sub-genre; false when it is null, empty or in the editor already, or the handle is null. */
KOSTYLE_API bool PropertyEditor_addSubGenre(KoStylePropertyEditor* editor, const KoStyleChar* subGenre);

/** Adds a colour; false when it is null, empty or in the editor already, or the handle is null. */
KOSTYLE_API bool PropertyEditor_addColor(KoStylePropertyEditor* editor, const KoStyleChar* color);

/**
 * Gives the style the collected name, sub-genres and colours, and writes it over its own file, in place
 * and indented; a file that was deleted is made again. The editor keeps what it collected, and its
 * handle stays valid. The file loses its vendor text. What goes wrong while the file is being written
 * gives no error (see the conventions, also for what a careful host does).
 *
 * On success the texts of the style's old name, sub-genres and colours end, each of the three only when
 * it changes. Everything else stays, at its address: the style, its identifier, path, vendor text and
 * other attributes, its effects and parameters with their texts. On failure everything stays, but for a
 * style without a name, whose file has one longer than KOSTYLE_MAX_NAME_LENGTH units: when its file cannot
 * be opened, it keeps the new name, and the text of the empty one ends.
 *
 * @param pretty not used.
 * @return true; false when the editor has no name of 1 to KOSTYLE_MAX_NAME_LENGTH units (nothing is
 *         written), when the file cannot be opened (it stays as it is), or when the handle is null.
 */
KOSTYLE_API bool PropertyEditor_save(KoStylePropertyEditor* editor, bool pretty);

#endif
