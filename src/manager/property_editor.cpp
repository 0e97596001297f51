#include "manager/property_editor.h"

#include "format/style_serializer.h"

namespace Tesk::KoStyle {

bool PropertyEditor::setStyleName(const Char* name) {
  if (!name || *name == 0) return false;
  name_ = name;
  return true;
}

bool PropertyEditor::addSubGenre(const Char* subGenre) {
  return subGenre && *subGenre != 0 && subGenres_.insert(TextView(subGenre));
}

bool PropertyEditor::addColor(const Char* color) {
  return color && *color != 0 && colors_.insert(TextView(color));
}

// Writes in place and always indented, whatever the argument.
bool PropertyEditor::save(const bool&) {
  if (!isStyleName(name_)) return false;
  StyleProperties properties{FrozenText(name_), FrozenTexts(subGenres_), FrozenTexts(colors_)};
  const platform::NativePath path = platform::nativePath(style_.path());
  style_.exchangeProperties(properties);
  bool written = false;
  try {
    written = writeTo(path);
  } catch (...) {
    style_.exchangeProperties(properties);
    throw;
  }
  if (!written) restore(properties);
  return written;
}

// Opening empties the file, also for a style that then cannot be written.
bool PropertyEditor::writeTo(const platform::NativePath& path) const {
  const StyleDocument document(style_);
  platform::FileBuffer buffer;
  const platform::File file = platform::openForWriting(path);
  if (!file) return false;
  platform::setBuffer(file, buffer);
  return writeStyleFile(document, true, file.get()) == KOSTYLE_OK;
}

// A style without a name of its own, which a file with too long a name gives, keeps the new one.
void PropertyEditor::restore(StyleProperties& properties) noexcept {
  style_.exchangeProperties(properties);
  if (!isStyleName(style_.wholeName())) style_.exchangeName(properties.name);
}

}  // namespace Tesk::KoStyle
