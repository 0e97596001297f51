/*
 * KoStyle: the property editor of a user style. It collects a name, sub-genres and colours, and
 * writes the style back to its own file. It starts empty: what the style has is replaced, not
 * extended. UserStyle_createPropertyEditor() makes one.
 */
#ifndef KOSTYLE_PROPERTY_EDITOR_H
#define KOSTYLE_PROPERTY_EDITOR_H

#include "types.h"

/**
 * Sets the name to be given to the style.
 *
 * @param name not empty. PropertyEditor_save() refuses more than KOSTYLE_MAX_NAME_LENGTH units.
 * @return true; false when the name is null or empty, or the handle is null.
 */
KOSTYLE_API bool PropertyEditor_setStyleName(KoStylePropertyEditor* editor, const KoStyleChar* name);

/** Adds a sub-genre; false when it is null, empty or added already, or the handle is null. */
KOSTYLE_API bool PropertyEditor_addSubGenre(KoStylePropertyEditor* editor, const KoStyleChar* subGenre);

/** Adds a colour; false when it is null, empty or added already, or the handle is null. */
KOSTYLE_API bool PropertyEditor_addColor(KoStylePropertyEditor* editor, const KoStyleChar* color);

/**
 * Gives the style the collected name, sub-genres and colours, and writes it over its own file, in
 * place and indented. The editor keeps what it collected. The file loses its vendor text. What goes
 * wrong while the file is being written gives no error (see the conventions).
 *
 * @param pretty not used.
 * @return true; false when no name of 1 to KOSTYLE_MAX_NAME_LENGTH units was set (nothing happens),
 * when the file cannot be opened (it stays as it is), or when the style cannot be written (the file is
 * left empty). After a failure the style in memory is as before, except that a style without a name
 * keeps the new one.
 */
KOSTYLE_API bool PropertyEditor_save(KoStylePropertyEditor* editor, bool pretty);

#endif
