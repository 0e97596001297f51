#include "model/effect_base.h"

#include "model/style_base.h"

namespace Tesk::KoStyle {

EffectBase* EffectBase::following() const {
  return parent_ ? parent_->chain(kind_).next(this) : nullptr;
}

EffectBase* EffectBase::preceding() const {
  return parent_ ? parent_->chain(kind_).previous(this) : nullptr;
}

}  // namespace Tesk::KoStyle
