#include "model/mutable_parameter.h"

#include "model/mutable_effect.h"

namespace Tesk::KoStyle {

void MutableParameter::destroy() { parent_.parameters().destroy(*this); }

IMutableEffect* MutableParameter::parent() const { return &parent_; }

IMutableParameter* MutableParameter::next() const { return parent_.parameters().next(this); }

IMutableParameter* MutableParameter::prev() const { return parent_.parameters().previous(this); }

bool MutableParameter::setName(const Char* name) {
  if (!name || *name == 0) return false;
  parent_.parameters().rename(*this, name);
  return true;
}

void MutableParameter::setValueString(const Char* value) {
  assign(ParameterValue::of(TextView()),
         PooledText(parent_.parameters().pool(), value ? TextView(value) : TextView()));
}

void MutableParameter::assign(const ParameterValue& value, PooledText text) noexcept {
  type_ = value.type;
  valueInt_ = value.integer;
  valueFloat_ = value.real;
  valueString_ = std::move(text);
}

}  // namespace Tesk::KoStyle
