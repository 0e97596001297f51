#include "model/parameter.h"

#include "model/effect.h"

namespace Tesk::KoStyle {

IEffect* Parameter::parent() const { return const_cast<Effect*>(&parent_); }

IParameter* Parameter::next() const { return parent_.parameters().neighbour(*this, 1); }

IParameter* Parameter::prev() const { return parent_.parameters().neighbour(*this, -1); }

}  // namespace Tesk::KoStyle
