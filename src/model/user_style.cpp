#include "model/user_style.h"

namespace Tesk::KoStyle {

IUserStyle* UserStyle::next() const { return owner() ? owner()->next(*this) : nullptr; }

IUserStyle* UserStyle::prev() const { return owner() ? owner()->previous(*this) : nullptr; }

int UserStyle::remove() { return owner() ? owner()->remove(*this) : KOSTYLE_ERROR_NO_MANAGER; }

IPropertyEditor* UserStyle::createPropertyEditor() {
  if (!owner()) return nullptr;
  propertyEditor_ = owner()->makePropertyEditor(*this);
  return propertyEditor_.get();
}

}  // namespace Tesk::KoStyle
