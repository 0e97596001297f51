#include "model/mutable_parameter.h"

#include <utility>

#include "model/mutable_effect.h"

namespace Tesk::KoStyle {

void MutableParameter::destroy() {
  if (auto* effect = dynamic_cast<MutableEffect*>(owner())) effect->parameters().destroy(*this);
}

IMutableEffect* MutableParameter::parent() const { return dynamic_cast<IMutableEffect*>(owner()); }

bool MutableParameter::setName(const Char* name) {
  if (!name || *name == 0) return false;
  Text copy(name);
  if (owner()) {
    owner()->parameters().rename(*this, std::move(copy));
  } else {
    assignName(std::move(copy));
  }
  return true;
}

void MutableParameter::setValueString(const Char* value) { assignString(value ? Text(value) : Text()); }

}  // namespace Tesk::KoStyle
