/*
 * KoStyle for C++: the property editor of a user style.
 */
#ifndef KOSTYLE_CPP_PROPERTY_EDITOR_HPP
#define KOSTYLE_CPP_PROPERTY_EDITOR_HPP

#include <utility>

#include "../property_editor.h"
#include "style.hpp"
#include "text.hpp"

namespace kostyle {

/**
 * Collects a name, sub-genres and colours, and writes the style back to its own file. It starts empty: what
 * the style has is replaced, not extended. UserStyle::edit() makes one.
 *
 * The editor ends with its object. A style has one editor at a time, so another one of the same style ends
 * this one; and the object must be gone before the style is removed, its set is read again or its manager
 * is destroyed.
 *
 * What writes the file takes no care: a full disk or a style that holds what cannot be written spoils it
 * without an error, and the vendor text is lost. findProblems() tells of the second before; a host that
 * wants all care makes a mutable copy of the style and overwrites it by safeOverwrite().
 */
class PropertyEditor {
 public:
  /** Takes over an editor; the other object has none then. */
  PropertyEditor(PropertyEditor&& other) noexcept
      : style_(std::exchange(other.style_, {})), editor_(std::exchange(other.editor_, nullptr)) {}
  PropertyEditor(const PropertyEditor&) = delete;
  PropertyEditor& operator=(const PropertyEditor&) = delete;
  /** Destroys the editor with what it collected. */
  ~PropertyEditor() { UserStyle_destroyPropertyEditor(style_.handle()); }

  /**
   * Sets the name to be given to the style, in place of one that was set before.
   *
   * @param name not empty. save() refuses more than KOSTYLE_MAX_NAME_LENGTH units.
   * @return true; false when the name is empty.
   */
  bool setName(const TextArgument& name) const {
    return PropertyEditor_setStyleName(editor_, name.c_str());
  }

  /** Adds a sub-genre; false when it is empty or in the editor already. */
  bool addSubGenre(const TextArgument& subGenre) const {
    return PropertyEditor_addSubGenre(editor_, subGenre.c_str());
  }

  /** Adds a colour; false when it is empty or in the editor already. */
  bool addColor(const TextArgument& color) const {
    return PropertyEditor_addColor(editor_, color.c_str());
  }

  /**
   * Gives the style what was collected, and writes it over its own file, in place and indented; a file that
   * was deleted is made again. The editor keeps what it collected. On success the texts of the style's old
   * name, sub-genres and colours end, each of the three only when it changes.
   *
   * @return true; false when the editor has no name of 1 to KOSTYLE_MAX_NAME_LENGTH units, or when the file
   *         cannot be opened: then the file stays as it is, and so does the style, but for one that had no
   *         name, which keeps the new one.
   */
  bool save() const { return PropertyEditor_save(editor_, true); }

 private:
  friend class UserStyle;
  explicit PropertyEditor(UserStyle style)
      : style_(style), editor_(UserStyle_createPropertyEditor(style.handle())) {}

  UserStyle style_;
  KoStylePropertyEditor* editor_;
};

inline PropertyEditor UserStyle::edit() const { return PropertyEditor(*this); }

}  // namespace kostyle

#endif
