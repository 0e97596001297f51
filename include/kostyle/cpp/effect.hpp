/*
 * KoStyle for C++: effects. An effect is one link of a style's audio or MIDI chain.
 */
#ifndef KOSTYLE_CPP_EFFECT_HPP
#define KOSTYLE_CPP_EFFECT_HPP

#include <cstddef>
#include <iterator>
#include <utility>

#include "../codes.h"
#include "../effect.h"
#include "../mutable_effect.h"
#include "parameter.hpp"
#include "range.hpp"
#include "text.hpp"
#include "view.hpp"

namespace kostyle {

class MutableStyle;
class StoredStyle;

namespace detail {

struct StoredParameterList {
  using Owner = KoStyleEffect;
  using Value = StoredParameter;
  static std::size_t count(Owner* effect) noexcept { return Effect_numParameter(effect); }
  static Value at(Owner* effect, std::size_t index) noexcept {
    return Value(Effect_parameter(effect, index));
  }
};

struct MutableParameterList {
  using Owner = KoStyleEffect;
  using Value = MutableParameter;
  static std::size_t count(Owner* effect) noexcept { return Effect_numParameter(effect); }
  static Value at(Owner* effect, std::size_t index) noexcept {
    return Value(MutableEffect_parameter(effect, index));
  }
};

}  // namespace detail

/** The parameters of a stored effect, in the order of names. */
using StoredParameters = IndexRange<detail::StoredParameterList, std::random_access_iterator_tag>;

/** The parameters of a mutable effect, in the order of names as of the last addParameter(). */
using MutableParameters = LinkedRange<detail::MutableParameterList>;

/** An effect of either chain, of a stored or of a mutable style, which owns it. */
class Effect : public View<KoStyleEffect> {
 public:
  /** Those of View: empty, or of a handle of the C interface, which must be of this kind, or NULL. */
  using View::View;

  /** The kind, of enum KoStyleEffectKind; KOSTYLE_EFFECT_NONE for an empty view. */
  int type() const noexcept { return Effect_type(handle()); }

  /** The identifier; unique within its chain, but for texts of a file that differ behind U+0000 alone. */
  Text id() const noexcept { return Text(Effect_id(handle())); }
};

/** An effect of a system or user style. It ends with its style, and when the style is overwritten. */
class StoredEffect : public Effect {
 public:
  /** Those of View: empty, or of a handle of the C interface, which must be of this kind, or NULL. */
  using Effect::Effect;

  /** The style that owns the effect; empty for an empty view. */
  StoredStyle style() const noexcept;

  /** The parameters, in the order of names. */
  StoredParameters parameters() const noexcept { return StoredParameters(handle()); }

  /** Whether a parameter is one of the effect's. It is only compared, so it may have ended. */
  bool has(StoredParameter parameter) const noexcept {
    return Effect_hasParameter(handle(), parameter.handle());
  }
};

/** An effect of the audio chain of a system or user style. */
class AudioEffect : public StoredEffect {
 public:
  /** Those of View: empty, or of a handle of the C interface, which must be of this kind, or NULL. */
  using StoredEffect::StoredEffect;

  /** The effect after this one in its chain; empty at the end. */
  AudioEffect next() const noexcept { return AudioEffect(AudioEffect_next(handle())); }

  /** The effect before this one in its chain; empty at the front. */
  AudioEffect previous() const noexcept { return AudioEffect(AudioEffect_prev(handle())); }
};

/** An effect of the MIDI chain of a system or user style. */
class MidiEffect : public StoredEffect {
 public:
  /** Those of View: empty, or of a handle of the C interface, which must be of this kind, or NULL. */
  using StoredEffect::StoredEffect;

  /** The effect after this one in its chain; empty at the end. */
  MidiEffect next() const noexcept { return MidiEffect(MidiEffect_next(handle())); }

  /** The effect before this one in its chain; empty at the front. */
  MidiEffect previous() const noexcept { return MidiEffect(MidiEffect_prev(handle())); }
};

/** An effect of a mutable style. It ends with its style, and by destroy(). */
class MutableEffect : public Effect {
 public:
  /** Those of View: empty, or of a handle of the C interface, which must be of this kind, or NULL. */
  using Effect::Effect;

  /** The style that owns the effect; empty for an empty view. */
  MutableStyle style() const noexcept;

  /** The parameters, in the order of names as of the last addParameter(). */
  MutableParameters parameters() const noexcept { return MutableParameters(handle()); }

  /** Whether a parameter is one of the effect's. It is only compared, so it may have ended. */
  bool has(MutableParameter parameter) const noexcept {
    return Effect_hasParameter(handle(), parameter.handle());
  }

  /**
   * Adds an integer parameter of value 0, and sorts the parameters by name.
   *
   * @param name the parameter's name; not empty; not the name of a parameter of this effect. "Tarn" is
   *        written as it is, but reading the file gives "Tarn630"; of the two only the first is read.
   * @return the parameter, owned by the effect; empty when the name is refused.
   */
  MutableParameter addParameter(const TextArgument& name) const {
    return MutableParameter(MutableEffect_addParameter(handle(), name.c_str()));
  }

  /**
   * Adds a parameter with a value, and sorts the parameters by name. When memory runs out for the value, the
   * parameter may be there with the value 0.
   *
   * @param name as above.
   * @param value whatever MutableParameter::setValue() takes: an int, a float, a text, a ParameterValue.
   * @return the parameter, owned by the effect; empty when the name is refused.
   */
  template <class Value,
            class = decltype(std::declval<MutableParameter>().setValue(std::declval<const Value&>()))>
  MutableParameter addParameter(const TextArgument& name, const Value& value) const {
    const MutableParameter parameter = addParameter(name);
    parameter.setValue(value);
    return parameter;
  }

  /**
   * Moves the effect within its own chain.
   *
   * @param index zero-based, and the effect's own afterwards; one past the end moves it to the end.
   * @return true, also when the effect is there already; false for an empty view.
   */
  bool move(std::size_t index) const { return MutableEffect_move(handle(), index); }

  /**
   * Takes the effect out of its chain and destroys it with its parameters; all their views and texts end.
   */
  void destroy() const noexcept { MutableEffect_destroy(handle()); }
};

/** An effect of the audio chain of a mutable style. */
class MutableAudioEffect : public MutableEffect {
 public:
  /** Those of View: empty, or of a handle of the C interface, which must be of this kind, or NULL. */
  using MutableEffect::MutableEffect;

  /** The effect after this one in its chain; empty at the end. */
  MutableAudioEffect next() const noexcept {
    return MutableAudioEffect(MutableAudioEffect_next(handle()));
  }

  /** The effect before this one in its chain; empty at the front. */
  MutableAudioEffect previous() const noexcept {
    return MutableAudioEffect(MutableAudioEffect_prev(handle()));
  }
};

/** An effect of the MIDI chain of a mutable style. */
class MutableMidiEffect : public MutableEffect {
 public:
  /** Those of View: empty, or of a handle of the C interface, which must be of this kind, or NULL. */
  using MutableEffect::MutableEffect;

  /** The effect after this one in its chain; empty at the end. */
  MutableMidiEffect next() const noexcept {
    return MutableMidiEffect(MutableMidiEffect_next(handle()));
  }

  /** The effect before this one in its chain; empty at the front. */
  MutableMidiEffect previous() const noexcept {
    return MutableMidiEffect(MutableMidiEffect_prev(handle()));
  }
};

inline StoredEffect StoredParameter::effect() const noexcept {
  return StoredEffect(Parameter_parent(handle()));
}

inline MutableEffect MutableParameter::effect() const noexcept {
  return MutableEffect(MutableParameter_parent(handle()));
}

}  // namespace kostyle

#endif
