#include "model/parameter.h"

#include "model/effect_base.h"

namespace Tesk::KoStyle {

IEffect* Parameter::parent() const { return dynamic_cast<IEffect*>(owner()); }

}  // namespace Tesk::KoStyle
