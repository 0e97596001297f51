// MutableParameter: a parameter of a mutable style's effect.
#pragma once

#include <cstdint>
#include <utility>

#include "containers/pooled_text.h"
#include "interfaces/interfaces.h"
#include "model/parameter_value.h"

namespace Tesk::KoStyle {

class MutableEffect;

class MutableParameter final : public IMutableParameter {
 public:
  MutableParameter(MutableEffect& parent, PooledText name) noexcept
      : parent_(parent), name_(std::move(name)) {}

  std::uint32_t type() const override { return static_cast<std::uint32_t>(type_); }
  const Char* name() const override { return name_.data(); }
  std::int32_t valueInt() const override { return valueInt_; }
  float valueFloat() const override { return valueFloat_; }
  const Char* valueString() const override { return valueString_.data(); }

  void destroy() override;
  IMutableEffect* parent() const override;
  IMutableParameter* next() const override;
  IMutableParameter* prev() const override;
  bool setName(const Char* name) override;
  void setValueInt(const std::int32_t& value) override { assign(ParameterValue::of(value), {}); }
  void setValueFloat(const float& value) override { assign(ParameterValue::of(value), {}); }
  void setValueString(const Char* value) override;

  TextView wholeName() const noexcept { return name_; }
  ParameterValue value() const noexcept { return {type_, valueInt_, valueFloat_, valueString_}; }

  /// Must not be called while the parameter is in a list.
  void assignName(PooledText name) noexcept { name_ = std::move(name); }

 private:
  void assign(const ParameterValue& value, PooledText text) noexcept;

  MutableEffect& parent_;
  PooledText name_;
  PooledText valueString_;
  ParameterType type_ = ParameterType::integer;
  std::int32_t valueInt_ = 0;
  float valueFloat_ = 0;
};

template <>
inline constexpr bool goesWithPool<MutableParameter> = true;

}  // namespace Tesk::KoStyle
