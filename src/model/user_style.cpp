#include "model/user_style.h"

#include "manager/file_system.h"
#include "manager/style_manager.h"
#include "writer/property_editor.h"

namespace Tesk::KoStyle {

IUserStyle* UserStyle::next() const {
  return owner() ? dynamic_cast<IUserStyle*>(owner()->styles(StyleKind::user).next(this)) : nullptr;
}

IUserStyle* UserStyle::prev() const {
  return owner() ? dynamic_cast<IUserStyle*>(owner()->styles(StyleKind::user).previous(this)) : nullptr;
}

int UserStyle::remove() {
  if (!owner()) return KOSTYLE_ERROR_NO_MANAGER;
  StyleSequence& styles = owner()->styles(StyleKind::user);
  if (!styles.contains(this)) return KOSTYLE_ERROR_USER_STYLE_NOT_FOUND;
  if (!removePath(path(), false)) return KOSTYLE_ERROR_DELETE_FAILED;
  styles.destroy(this);
  return KOSTYLE_OK;
}

IPropertyEditor* UserStyle::createPropertyEditor() {
  propertyEditor_ = std::make_unique<PropertyEditor>(*this);
  return propertyEditor_.get();
}

}  // namespace Tesk::KoStyle
