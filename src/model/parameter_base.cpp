#include "model/parameter_base.h"

#include "model/effect_base.h"

namespace Tesk::KoStyle {

void ParameterBase::assignInt(std::int32_t value) noexcept {
  type_ = integer;
  valueInt_ = value;
  valueFloat_ = 0;
  valueString_.clear();
}

void ParameterBase::assignFloat(float value) noexcept {
  type_ = real;
  valueInt_ = 0;
  valueFloat_ = value;
  valueString_.clear();
}

void ParameterBase::assignString(Text value) noexcept {
  type_ = text;
  valueInt_ = 0;
  valueFloat_ = 0;
  valueString_.swap(value);
}

void ParameterBase::assignValueOf(const ParameterBase& other) {
  switch (other.type_) {
    case integer:
      return assignInt(other.valueInt_);
    case real:
      return assignFloat(other.valueFloat_);
    case text:
      return assignString(other.valueString_);
  }
}

ParameterBase* ParameterBase::following() const {
  return parent_ ? parent_->parameters().next(this) : nullptr;
}

ParameterBase* ParameterBase::preceding() const {
  return parent_ ? parent_->parameters().previous(this) : nullptr;
}

}  // namespace Tesk::KoStyle
