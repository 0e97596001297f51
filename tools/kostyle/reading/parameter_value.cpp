#include "reading/parameter_value.h"

namespace tool {

Value valueOf(KoStyleParameter* parameter) {
  switch (Parameter_type(parameter)) {
    case KOSTYLE_PARAMETER_INT:
      return Parameter_valueInt(parameter);
    case KOSTYLE_PARAMETER_FLOAT:
      return Parameter_valueFloat(parameter);
    default:
      return Text(Parameter_valueString(parameter));
  }
}

void setValue(KoStyleParameter* parameter, const Value& value) {
  if (const auto* integer = std::get_if<int>(&value)) {
    MutableParameter_setValueInt(parameter, *integer);
  } else if (const auto* number = std::get_if<float>(&value)) {
    MutableParameter_setValueFloat(parameter, *number);
  } else {
    MutableParameter_setValueString(parameter, std::get<Text>(value).c_str());
  }
}

}  // namespace tool
