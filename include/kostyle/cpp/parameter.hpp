/*
 * KoStyle for C++: parameters: named, typed values of an effect.
 */
#ifndef KOSTYLE_CPP_PARAMETER_HPP
#define KOSTYLE_CPP_PARAMETER_HPP

#include <type_traits>
#include <variant>

#include "../codes.h"
#include "../parameter.h"
#include "text.hpp"
#include "view.hpp"

namespace kostyle {

class MutableEffect;
class StoredEffect;

/** A parameter's value: a 32-bit integer, a 32-bit float, or a text, which the parameter owns. */
using ParameterValue = std::variant<int, float, Text>;

/** A parameter of a stored or of a mutable style. */
class Parameter : public View<KoStyleParameter> {
 public:
  /** Empty, or of a handle, as View. */
  using View::View;

  /** The value's type, of enum KoStyleParameterType; KOSTYLE_PARAMETER_NONE for an empty view. */
  int type() const noexcept { return Parameter_type(handle()); }

  /**
   * The name. Unique within a stored effect; MutableParameter::setName() can repeat one. The name "Tarn" of
   * a file is read as "Tarn630".
   */
  Text name() const noexcept { return Text(Parameter_name(handle())); }

  /** The value, with its type. A text is valid until the parameter ends or its value is set anew. */
  ParameterValue value() const noexcept {
    switch (type()) {
      case KOSTYLE_PARAMETER_INT:
        return Parameter_valueInt(handle());
      case KOSTYLE_PARAMETER_FLOAT:
        return Parameter_valueFloat(handle());
      default:
        return Text(Parameter_valueString(handle()));
    }
  }
};

/** A parameter of a system or user style. */
class StoredParameter : public Parameter {
 public:
  /** Empty, or of a handle, as View. */
  using Parameter::Parameter;

  /** The effect that owns the parameter. */
  StoredEffect effect() const noexcept;

  /** The parameter after this one in its effect, in the order of names; empty at the end. */
  StoredParameter next() const noexcept { return StoredParameter(Parameter_next(handle())); }

  /** The parameter before this one in its effect; empty at the front. */
  StoredParameter previous() const noexcept { return StoredParameter(Parameter_prev(handle())); }
};

/** A parameter of a mutable style. */
class MutableParameter : public Parameter {
 public:
  /** Empty, or of a handle, as View. */
  using Parameter::Parameter;

  /** The effect that owns the parameter. */
  MutableEffect effect() const noexcept;

  /** The parameter after this one in its effect; empty at the end. */
  MutableParameter next() const noexcept { return MutableParameter(MutableParameter_next(handle())); }

  /** The parameter before this one in its effect; empty at the front. */
  MutableParameter previous() const noexcept {
    return MutableParameter(MutableParameter_prev(handle()));
  }

  /**
   * Renames the parameter; the old name's text ends. The name of another parameter of the effect is
   * accepted, and saving keeps the first of the two; the parameter keeps its place until
   * MutableEffect::addParameter() sorts the parameters again.
   *
   * @param name the new name; not empty. "Tarn" comes back as "Tarn630" from the file.
   * @return true; false when the name is refused.
   */
  bool setName(const TextArgument& name) const {
    return MutableParameter_setName(handle(), name.c_str());
  }

  /** Makes the parameter an integer; the text of an earlier value ends. */
  void setValue(int value) const { MutableParameter_setValueInt(handle(), value); }

  /**
   * Makes the parameter a float; the text of an earlier value ends. An infinity or a NaN is kept in memory,
   * but a file cannot hold it: a plain save is then cut short without an error, a safe save is refused.
   */
  void setValue(float value) const { MutableParameter_setValueFloat(handle(), value); }

  /** Makes the parameter a text, which may be empty; the text of an earlier value ends. */
  void setValue(const TextArgument& value) const {
    MutableParameter_setValueString(handle(), value.c_str());
  }
  /** The same. */
  void setValue(Text value) const { MutableParameter_setValueString(handle(), value.c_str()); }

  /** Takes over a value with its type, of this or of any other parameter. */
  void setValue(const ParameterValue& value) const {
    std::visit([this](auto each) { setValue(each); }, value);
  }

  /** A bool, a character, a double, any number that is neither int nor float is converted by the host. */
  template <class Number,
            class = std::enable_if_t<std::is_arithmetic_v<Number> && !std::is_same_v<Number, int> &&
                                     !std::is_same_v<Number, float>>>
  void setValue(Number) const = delete;

  /** Takes the parameter out of its effect and destroys it; its handle and its texts end. */
  void destroy() const noexcept { MutableParameter_destroy(handle()); }
};

}  // namespace kostyle

#endif
