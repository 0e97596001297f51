#include <cfloat>
#include <climits>

#include "api/exports.h"
#include "api/handle.h"

using namespace Tesk::KoStyle;

int Parameter_type(KoStyleParameter* parameter) {
  return direct<int>(parameter, &IParameterBase::type, KOSTYLE_PARAMETER_NONE);
}

int Parameter_valueInt(KoStyleParameter* parameter) {
  return direct(parameter, &IParameterBase::valueInt, INT_MIN);
}

float Parameter_valueFloat(KoStyleParameter* parameter) {
  return direct(parameter, &IParameterBase::valueFloat, FLT_MIN);
}

KoStyleEffect* Parameter_parent(KoStyleParameter* parameter) {
  return converted<IParameter, KoStyleEffect>(parameter, &IParameter::parent);
}
KoStyleParameter* Parameter_next(KoStyleParameter* parameter) {
  return converted<IParameter, KoStyleParameter>(parameter, &IParameter::next);
}
KoStyleParameter* Parameter_prev(KoStyleParameter* parameter) {
  return converted<IParameter, KoStyleParameter>(parameter, &IParameter::prev);
}

void MutableParameter_destroy(KoStyleParameter* parameter) try {
  checkedVoid<IMutableParameter>(parameter, &IMutableParameter::destroy);
} catch (...) {
}

KoStyleEffect* MutableParameter_parent(KoStyleParameter* parameter) {
  return converted<IMutableParameter, KoStyleEffect>(parameter, &IMutableParameter::parent);
}
KoStyleParameter* MutableParameter_next(KoStyleParameter* parameter) {
  return converted<IMutableParameter, KoStyleParameter>(parameter, &IMutableParameter::next);
}
KoStyleParameter* MutableParameter_prev(KoStyleParameter* parameter) {
  return converted<IMutableParameter, KoStyleParameter>(parameter, &IMutableParameter::prev);
}

bool MutableParameter_setName(KoStyleParameter* parameter, const Char* name) {
  return checked<IMutableParameter>(parameter, &IMutableParameter::setName, false, name);
}
void MutableParameter_setValueInt(KoStyleParameter* parameter, int value) {
  checkedVoid<IMutableParameter>(parameter, &IMutableParameter::setValueInt, value);
}
void MutableParameter_setValueFloat(KoStyleParameter* parameter, float value) {
  checkedVoid<IMutableParameter>(parameter, &IMutableParameter::setValueFloat, value);
}
void MutableParameter_setValueString(KoStyleParameter* parameter, const Char* value) {
  checkedVoid<IMutableParameter>(parameter, &IMutableParameter::setValueString, value);
}
