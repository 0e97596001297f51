/*
 * KoStyle for C++: the property editor of a user style.
 */
#ifndef KOSTYLE_CPP_PROPERTY_EDITOR_HPP
#define KOSTYLE_CPP_PROPERTY_EDITOR_HPP

#include "../property_editor.h"
#include "style.hpp"
#include "text.hpp"
#include "view.hpp"

namespace kostyle {

/**
 * Collects a name, sub-genres and colours, and writes the style back to its own file. It starts empty: what
 * the style has is replaced, not extended. UserStyle::edit() makes one.
 *
 * The style owns it, and has one at a time: it ends with the next UserStyle::edit() of the style, with
 * UserStyle::endEdit(), and with the style, as when that is removed or its set is read again.
 *
 * What writes the file takes no care: a full disk or a style that holds what cannot be written spoils it
 * without an error, and the vendor text is lost. findProblems() tells of the second before; a host that
 * wants all care makes a mutable copy of the style and overwrites it by safeOverwrite().
 */
class PropertyEditor : public View<KoStylePropertyEditor> {
 public:
  /** Those of View: empty, or of a handle of the C interface, which must be of this kind, or NULL. */
  using View::View;

  /**
   * Sets the name to be given to the style, in place of one that was set before.
   *
   * @param name not empty. save() refuses more than KOSTYLE_MAX_NAME_LENGTH UTF-16 units.
   * @return true; false when the name is empty, or the view.
   */
  bool setName(const TextArgument& name) const {
    return PropertyEditor_setStyleName(handle(), name.c_str());
  }

  /** Adds a sub-genre; false when it is empty or in the editor already, and for an empty view. */
  bool addSubGenre(const TextArgument& subGenre) const {
    return PropertyEditor_addSubGenre(handle(), subGenre.c_str());
  }

  /** Adds a colour; false when it is empty or in the editor already, and for an empty view. */
  bool addColor(const TextArgument& color) const {
    return PropertyEditor_addColor(handle(), color.c_str());
  }

  /**
   * Gives the style what was collected, and writes it over its own file, in place and indented; a file that
   * was deleted is made again. The editor keeps what it collected. On success the texts of the style's old
   * name, sub-genres and colours end, each of the three only when it changes.
   *
   * @return true; false for an empty view, when the editor has no name of 1 to KOSTYLE_MAX_NAME_LENGTH UTF-16
   *         units, or when the file cannot be opened: then the file stays as it is, and so does the style, but
   *         for one that had no name, which keeps the new one.
   */
  bool save() const { return PropertyEditor_save(handle(), true); }
};

inline PropertyEditor UserStyle::edit() const {
  return PropertyEditor(UserStyle_createPropertyEditor(handle()));
}

}  // namespace kostyle

#endif
