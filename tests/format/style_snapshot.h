// A style as plain values, whole texts included, to compare and print.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <ostream>
#include <tuple>
#include <vector>

#include "model/style.h"
#include "support/text.h"

namespace test {

struct ParameterSnapshot {
  Text name;
  std::uint32_t type = KOSTYLE_PARAMETER_INT;
  std::int32_t integer = 0;
  float real = 0;
  Text string;
  /// Whether `real` must be met to the bit; else its neighbours serve too.
  bool exact = true;

  static ParameterSnapshot ofInt(Text name, std::int32_t value) {
    return {std::move(name), KOSTYLE_PARAMETER_INT, value, 0, {}, true};
  }
  static ParameterSnapshot ofFloat(Text name, float value, bool exact = true) {
    return {std::move(name), KOSTYLE_PARAMETER_FLOAT, 0, value, {}, exact};
  }
  static ParameterSnapshot ofString(Text name, Text value) {
    return {std::move(name), KOSTYLE_PARAMETER_STRING, 0, 0, std::move(value), true};
  }
};

inline std::int64_t bitsOf(float value) {
  std::uint32_t bits;
  std::memcpy(&bits, &value, sizeof bits);
  return bits;
}

inline bool operator==(const ParameterSnapshot& a, const ParameterSnapshot& b) {
  const std::int64_t distance = bitsOf(a.real) - bitsOf(b.real);
  const std::int64_t allowed = a.exact && b.exact ? 0 : 1;
  return std::tie(a.name, a.type, a.integer, a.string) ==
             std::tie(b.name, b.type, b.integer, b.string) &&
         -allowed <= distance && distance <= allowed;
}

struct EffectSnapshot {
  Text id;
  std::vector<ParameterSnapshot> parameters;
};

inline bool operator==(const EffectSnapshot& a, const EffectSnapshot& b) {
  return std::tie(a.id, a.parameters) == std::tie(b.id, b.parameters);
}

struct StyleSnapshot {
  Text id;
  Text name;
  Text vendor;
  std::vector<int> languages;
  std::vector<Text> singerGroups;
  std::vector<Text> singerIDs;
  std::vector<Text> genres;
  std::vector<Text> subGenres;
  std::vector<Text> colors;
  std::vector<EffectSnapshot> audio;
  std::vector<EffectSnapshot> midi;

  auto tied() const {
    return std::tie(id, name, vendor, languages, singerGroups, singerIDs, genres, subGenres, colors,
                    audio, midi);
  }
};

inline bool operator==(const StyleSnapshot& a, const StyleSnapshot& b) { return a.tied() == b.tied(); }
inline bool operator!=(const StyleSnapshot& a, const StyleSnapshot& b) { return !(a == b); }

template <class Values, class Set>
void copyValues(Values& values, const Set& set) {
  for (const auto& value : set) values.push_back(value);
}

inline std::vector<EffectSnapshot> snapshot(const Tesk::KoStyle::EffectChain& chain) {
  std::vector<EffectSnapshot> effects;
  for (const Tesk::KoStyle::EffectBase& effect : chain) {
    EffectSnapshot& copy = effects.emplace_back();
    copy.id = effect.wholeId();
    for (const Tesk::KoStyle::ParameterBase& parameter : effect.parameters())
      copy.parameters.push_back({parameter.wholeName(), parameter.type(), parameter.valueInt(),
                                 parameter.valueFloat(), parameter.wholeValueString(), true});
  }
  return effects;
}

/// Of a style of any kind. The vendor shows as far as the host sees it.
inline StyleSnapshot snapshot(const Tesk::KoStyle::StyleBase& style) {
  using Tesk::KoStyle::EffectKind;
  StyleSnapshot copy;
  copy.id = style.wholeId();
  copy.name = style.wholeName();
  if (const auto* stored = dynamic_cast<const Tesk::KoStyle::Style*>(&style))
    copy.vendor = stored->vendor();
  copyValues(copy.languages, style.attributes().languages);
  copyValues(copy.singerGroups, style.attributes().singerGroups);
  copyValues(copy.singerIDs, style.attributes().singerIDs);
  copyValues(copy.genres, style.attributes().genres);
  copyValues(copy.subGenres, style.attributes().subGenres);
  copyValues(copy.colors, style.attributes().colors);
  copy.audio = snapshot(style.chain(EffectKind::audio));
  copy.midi = snapshot(style.chain(EffectKind::midi));
  return copy;
}

inline void PrintTo(const ParameterSnapshot& parameter, std::ostream* out) {
  *out << utf8(parameter.name) << '=';
  if (parameter.type == KOSTYLE_PARAMETER_INT) *out << parameter.integer;
  if (parameter.type == KOSTYLE_PARAMETER_FLOAT)
    *out << parameter.real << 'f' << bitsOf(parameter.real);
  if (parameter.type == KOSTYLE_PARAMETER_STRING) *out << '"' << utf8(parameter.string) << '"';
}

inline void PrintTo(const EffectSnapshot& effect, std::ostream* out) {
  *out << utf8(effect.id) << '(';
  for (const ParameterSnapshot& parameter : effect.parameters) {
    PrintTo(parameter, out);
    *out << ' ';
  }
  *out << ')';
}

inline void PrintTo(const StyleSnapshot& style, std::ostream* out) {
  const auto print = [&](const char* title, const auto& values, auto show) {
    if (!values.empty()) *out << "; " << title;
    for (const auto& value : values) show(value);
  };
  const auto showText = [&](const Text& value) { *out << " [" << utf8(value) << ']'; };
  const auto showEffect = [&](const EffectSnapshot& effect) { PrintTo(effect, out); };
  *out << "{id " << utf8(style.id) << "; name " << utf8(style.name) << "; vendor "
       << utf8(style.vendor);
  print("languages", style.languages, [&](int language) { *out << ' ' << language; });
  print("singerGroups", style.singerGroups, showText);
  print("singerIDs", style.singerIDs, showText);
  print("genres", style.genres, showText);
  print("subGenres", style.subGenres, showText);
  print("colors", style.colors, showText);
  print("audio", style.audio, showEffect);
  print("midi", style.midi, showEffect);
  *out << '}';
}

}  // namespace test
