#include "model/system_style.h"

#include "manager/style_manager.h"

namespace Tesk::KoStyle {

ISystemStyle* SystemStyle::next() const {
  return owner() ? dynamic_cast<ISystemStyle*>(owner()->styles(StyleKind::system).next(this)) : nullptr;
}

ISystemStyle* SystemStyle::prev() const {
  return owner() ? dynamic_cast<ISystemStyle*>(owner()->styles(StyleKind::system).previous(this))
                 : nullptr;
}

}  // namespace Tesk::KoStyle
