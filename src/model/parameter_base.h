// ParameterBase: a named value that is an integer, a float or a text.
#pragma once

#include <kostyle/codes.h>

#include <cstdint>

#include "api/interfaces.h"

namespace Tesk::KoStyle {

class EffectBase;

class ParameterBase : public virtual IParameterBase {
 public:
  enum Type : std::uint32_t {
    integer = KOSTYLE_PARAMETER_INT,
    real = KOSTYLE_PARAMETER_FLOAT,
    text = KOSTYLE_PARAMETER_STRING
  };

  virtual ~ParameterBase() = default;

  std::uint32_t type() const final { return type_; }
  const Char* name() const final { return name_.c_str(); }
  std::int32_t valueInt() const final { return valueInt_; }
  float valueFloat() const final { return valueFloat_; }
  const Char* valueString() const final { return valueString_.c_str(); }

  /// The name and the text value whole, where the host's view ends at the first U+0000.
  const Text& wholeName() const { return name_; }
  const Text& wholeValueString() const { return valueString_; }

  void assignName(Text name) noexcept { name_.swap(name); }

  // The values that do not belong to the type are zero or empty.
  void assignInt(std::int32_t value) noexcept;
  void assignFloat(float value) noexcept;
  void assignString(Text value) noexcept;

  /// Takes type and value of another parameter.
  void assignValueOf(const ParameterBase& other);

 protected:
  explicit ParameterBase(EffectBase* parent) : parent_(parent) {}

  EffectBase* owner() const { return parent_; }
  ParameterBase* following() const;
  ParameterBase* preceding() const;

 private:
  EffectBase* const parent_;
  Type type_ = integer;
  Text name_;
  std::int32_t valueInt_ = 0;
  float valueFloat_ = 0;
  Text valueString_;
};

}  // namespace Tesk::KoStyle
