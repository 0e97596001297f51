#include "writer/property_editor.h"

#include <memory>
#include <utility>

#include "platform/platform.h"
#include "writer/style_serializer.h"

namespace Tesk::KoStyle {

bool PropertyEditor::setStyleName(const Char* name) {
  if (!name || *name == 0) return false;
  pending_.name = name;
  return true;
}

bool PropertyEditor::addSubGenre(const Char* subGenre) {
  return subGenre && *subGenre != 0 && pending_.subGenres.insert(TextView(subGenre));
}

bool PropertyEditor::addColor(const Char* color) {
  return color && *color != 0 && pending_.colors.insert(TextView(color));
}

// Writes in place and always indented, whatever the argument.
bool PropertyEditor::save(const bool&) {
  if (!isStyleName(pending_.name)) return false;
  Properties properties = pending_;
  const platform::NativePath path = platform::nativePath(style_.path());
  exchange(properties);  // the style has the new properties, `properties` the old ones
  std::unique_ptr<StyleDocument> document;
  try {
    document = std::make_unique<StyleDocument>(style_);
  } catch (...) {
    exchange(properties);
    throw;
  }

  // Opening empties the file, also for a style that then cannot be written.
  const platform::File file = platform::openForWriting(path);
  if (file && writeStyleFile(*document, true, file.get()) == KOSTYLE_OK) return true;
  exchange(properties);
  // A style without a name of its own, which a file with too long a name gives, keeps the new one.
  if (!isStyleName(style_.wholeName())) style_.assignName(std::move(properties.name));
  return false;
}

void PropertyEditor::exchange(Properties& properties) noexcept {
  style_.exchangeName(properties.name);
  style_.attributes().subGenres.swap(properties.subGenres);
  style_.attributes().colors.swap(properties.colors);
}

}  // namespace Tesk::KoStyle
