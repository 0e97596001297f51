// Parameter: a parameter of a stored style's effect. It lies in an array beside those of its effect,
// and its texts in the same block, the value behind the name.
#pragma once

#include <cstddef>
#include <cstdint>

#include "interfaces/interfaces.h"
#include "model/parameter_value.h"

namespace Tesk::KoStyle {

class Effect;

class Parameter final : public IParameter {
 public:
  /// `name` has U+0000 behind it; so has a text value, which follows there.
  Parameter(const Effect& parent, TextView name, const ParameterValue& value) noexcept
      : parent_(parent),
        name_(name.data()),
        nameLength_(name.size()),
        textLength_(value.text.size()),
        type_(value.type),
        number_(value) {}

  std::uint32_t type() const override { return static_cast<std::uint32_t>(type_); }
  const Char* name() const override { return name_; }
  std::int32_t valueInt() const override {
    return type_ == ParameterType::integer ? number_.integer : 0;
  }
  float valueFloat() const override { return type_ == ParameterType::real ? number_.real : 0; }
  const Char* valueString() const override { return text().data(); }

  IEffect* parent() const override;
  IParameter* next() const override;
  IParameter* prev() const override;

  /// The name whole, where the host's view ends at the first U+0000.
  TextView wholeName() const noexcept { return {name_, nameLength_}; }

  /// The value whole, likewise.
  ParameterValue value() const noexcept { return {type_, valueInt(), valueFloat(), text()}; }

 private:
  // Without a text value the end of the name serves as the empty one.
  TextView text() const noexcept {
    return {name_ + nameLength_ + (type_ == ParameterType::text ? 1 : 0), textLength_};
  }

  union Number {
    explicit Number(const ParameterValue& value) noexcept : integer(value.integer) {
      if (value.type == ParameterType::real) real = value.real;
    }
    std::int32_t integer;
    float real;
  };

  const Effect& parent_;
  const Char* const name_;
  const std::size_t nameLength_;
  const std::size_t textLength_;
  const ParameterType type_;
  const Number number_;
};

}  // namespace Tesk::KoStyle
