#include "model/effect.h"

#include "model/style_base.h"

namespace Tesk::KoStyle {

IStyle* Effect::parent() const { return dynamic_cast<IStyle*>(owner()); }

IParameter* Effect::parameter(const std::size_t& index) const {
  return dynamic_cast<IParameter*>(parameters().at(index));
}

}  // namespace Tesk::KoStyle
