// MutableParameter: a parameter of a mutable style's effect.
#pragma once

#include <cstdint>

#include "model/parameter_base.h"

namespace Tesk::KoStyle {

class MutableParameter final : public IMutableParameter, public ParameterBase {
 public:
  explicit MutableParameter(EffectBase* parent) : ParameterBase(parent) {}

  void destroy() override;
  IMutableEffect* parent() const override;
  IMutableParameter* next() const override { return dynamic_cast<IMutableParameter*>(following()); }
  IMutableParameter* prev() const override { return dynamic_cast<IMutableParameter*>(preceding()); }
  bool setName(const Char* name) override;
  void setValueInt(const std::int32_t& value) override { assignInt(value); }
  void setValueFloat(const float& value) override { assignFloat(value); }
  void setValueString(const Char* value) override;
};

}  // namespace Tesk::KoStyle
