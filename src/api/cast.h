// The downcast of a checked export: dynamic_cast in meaning, without its walk through the bases, which
// compares the names of types and costs more than the call it stands before.
//
// What a handle can be is known: each interface has a few classes behind it, all final. A class has one
// type_info in the library, so comparing addresses tells whether the object is one of them.
#pragma once

#include <type_traits>
#include <typeinfo>

#include "model/effect.h"
#include "model/mutable_effect.h"
#include "model/mutable_parameter.h"
#include "model/mutable_style.h"
#include "model/parameter.h"
#include "model/system_style.h"
#include "model/user_style.h"

namespace Tesk::KoStyle {

template <class... Classes>
struct ClassList {};

/// The classes that implement an interface.
template <class Interface>
struct ImplementationsOf;

template <>
struct ImplementationsOf<IParameter> : ClassList<Parameter> {};
template <>
struct ImplementationsOf<IMutableParameter> : ClassList<MutableParameter> {};
template <>
struct ImplementationsOf<IEffect> : ClassList<AudioEffect, MidiEffect> {};
template <>
struct ImplementationsOf<IAudioEffect> : ClassList<AudioEffect> {};
template <>
struct ImplementationsOf<IMidiEffect> : ClassList<MidiEffect> {};
template <>
struct ImplementationsOf<IMutableEffect> : ClassList<MutableAudioEffect, MutableMidiEffect> {};
template <>
struct ImplementationsOf<IMutableAudioEffect> : ClassList<MutableAudioEffect> {};
template <>
struct ImplementationsOf<IMutableMidiEffect> : ClassList<MutableMidiEffect> {};
template <>
struct ImplementationsOf<IStyle> : ClassList<SystemStyle, UserStyle> {};
template <>
struct ImplementationsOf<ISystemStyle> : ClassList<SystemStyle> {};
template <>
struct ImplementationsOf<IUserStyle> : ClassList<UserStyle> {};
template <>
struct ImplementationsOf<IMutableStyle> : ClassList<MutableStyle> {};

template <class Target, class Base, class... Classes>
Target* castAmong(Base& handle, ClassList<Classes...>) {
  static_assert((std::is_final_v<Classes> && ...) && (std::is_base_of_v<Target, Classes> && ...));
  const std::type_info& type = typeid(handle);
  void* const object = dynamic_cast<void*>(&handle);
  Target* target = nullptr;
  static_cast<void>(((&type == &typeid(Classes) && (target = static_cast<Classes*>(object))) || ...));
  return target;
}

/// The handle as a `Target`; null for a null handle and for one of another kind.
template <class Target, class Base>
Target* cast(Base* handle) {
  return handle ? castAmong<Target>(*handle, ImplementationsOf<Target>()) : nullptr;
}

}  // namespace Tesk::KoStyle
