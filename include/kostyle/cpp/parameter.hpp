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

/** A parameter of a stored or of a mutable style. Its effect owns it and, with it, its texts. */
class Parameter : public View<KoStyleParameter> {
 public:
  /** Those of View: empty, or of a handle of the C interface, which must be of this kind, or NULL. */
  using View::View;

  /** The value's type, of enum KoStyleParameterType; KOSTYLE_PARAMETER_NONE for an empty view. */
  int type() const noexcept { return Parameter_type(handle()); }

  /**
   * The name. Unique within a stored effect, but for texts of a file that differ behind U+0000 alone;
   * MutableParameter::setName() can repeat one. The name "Tarn" of a file is read as "Tarn630".
   */
  Text name() const noexcept { return Text(Parameter_name(handle())); }

  /**
   * The value, with its type; the empty text for an empty view. A text is valid until the parameter ends or
   * its value is set anew.
   */
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

/** A parameter of a system or user style. It ends with its effect. */
class StoredParameter : public Parameter {
 public:
  /** Those of View: empty, or of a handle of the C interface, which must be of this kind, or NULL. */
  using Parameter::Parameter;

  /** The effect that owns the parameter; empty for an empty view. */
  StoredEffect effect() const noexcept;

  /** The parameter after this one in its effect, in the order of names; empty at the end. */
  StoredParameter next() const noexcept { return StoredParameter(Parameter_next(handle())); }

  /** The parameter before this one in its effect; empty at the front. */
  StoredParameter previous() const noexcept { return StoredParameter(Parameter_prev(handle())); }
};

/** A parameter of a mutable style. It ends with its effect, and by destroy(). */
class MutableParameter : public Parameter {
 public:
  /** Those of View: empty, or of a handle of the C interface, which must be of this kind, or NULL. */
  using Parameter::Parameter;

  /** The effect that owns the parameter; empty for an empty view. */
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

  /**
   * Makes the parameter a text, which may be empty; the text of an earlier value ends. A lone
   * surrogate is kept in memory, but a file cannot hold it, as it cannot hold an infinity.
   */
  void setValue(const TextArgument& value) const {
    MutableParameter_setValueString(handle(), value.c_str());
  }
  /** Makes the parameter a text that the library returned, also one of its own. */
  void setValue(Text value) const { MutableParameter_setValueString(handle(), value.c_str()); }

  /** Takes over a value with its type, that of any parameter: `to.setValue(from.value())`. */
  void setValue(const ParameterValue& value) const {
    std::visit([this](auto each) { setValue(each); }, value);
  }

  /**
   * Not for a bool, a character, a double or any other number than int and float: the host converts them.
   */
  template <class Number,
            class = std::enable_if_t<std::is_arithmetic_v<Number> && !std::is_same_v<Number, int> &&
                                     !std::is_same_v<Number, float>>>
  void setValue(Number) const = delete;

  /** Takes the parameter out of its effect and destroys it; all its views and its texts end. */
  void destroy() const noexcept { MutableParameter_destroy(handle()); }
};

}  // namespace kostyle

#endif
