// ParameterValue: an integer, a float or a text. What does not belong to its type is zero or empty.
#pragma once

#include <kostyle/codes.h>

#include <cstdint>

#include "platform/text.h"

namespace Tesk::KoStyle {

enum class ParameterType : std::uint32_t {
  integer = KOSTYLE_PARAMETER_INT,
  real = KOSTYLE_PARAMETER_FLOAT,
  text = KOSTYLE_PARAMETER_STRING
};

struct ParameterValue {
  ParameterType type = ParameterType::integer;
  std::int32_t integer = 0;
  float real = 0;
  TextView text;

  static ParameterValue of(std::int32_t value) { return {ParameterType::integer, value, 0, {}}; }
  static ParameterValue of(float value) { return {ParameterType::real, 0, value, {}}; }
  static ParameterValue of(TextView value) { return {ParameterType::text, 0, 0, value}; }
};

}  // namespace Tesk::KoStyle
