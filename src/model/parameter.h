// Parameter: a parameter of a stored style's effect.
#pragma once

#include "model/parameter_base.h"

namespace Tesk::KoStyle {

class Parameter final : public IParameter, public ParameterBase {
 public:
  explicit Parameter(EffectBase* parent) : ParameterBase(parent) {}

  IEffect* parent() const override;
  IParameter* next() const override { return dynamic_cast<IParameter*>(following()); }
  IParameter* prev() const override { return dynamic_cast<IParameter*>(preceding()); }
};

}  // namespace Tesk::KoStyle
