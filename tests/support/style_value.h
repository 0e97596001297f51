// What a style says of itself through the exported functions, as plain values to compare and print.
#pragma once

#include <array>
#include <cstdint>
#include <cstring>
#include <ostream>
#include <string>
#include <tuple>
#include <vector>

#include "support/kostyle.h"
#include "support/text.h"

namespace test {

inline std::int64_t bitsOf(float value) {
  std::uint32_t bits;
  std::memcpy(&bits, &value, sizeof bits);
  return bits;
}

struct ParameterValue {
  Text name;
  int type = KOSTYLE_PARAMETER_INT;
  int integer = 0;
  float real = 0;
  Text string;
  /// Whether `real` must be met to the bit; else its neighbours serve too.
  bool exact = true;

  static ParameterValue ofInt(Text name, int value) {
    return {std::move(name), KOSTYLE_PARAMETER_INT, value, 0, {}, true};
  }
  static ParameterValue ofFloat(Text name, float value, bool exact = true) {
    return {std::move(name), KOSTYLE_PARAMETER_FLOAT, 0, value, {}, exact};
  }
  static ParameterValue ofString(Text name, Text value) {
    return {std::move(name), KOSTYLE_PARAMETER_STRING, 0, 0, std::move(value), true};
  }

  friend bool operator==(const ParameterValue& a, const ParameterValue& b) {
    const std::int64_t distance = bitsOf(a.real) - bitsOf(b.real);
    const std::int64_t allowed = a.exact && b.exact ? 0 : 1;
    return std::tie(a.name, a.type, a.integer, a.string) ==
               std::tie(b.name, b.type, b.integer, b.string) &&
           -allowed <= distance && distance <= allowed;
  }
};

struct EffectValue {
  Text id;
  std::vector<ParameterValue> parameters;

  friend bool operator==(const EffectValue& a, const EffectValue& b) {
    return std::tie(a.id, a.parameters) == std::tie(b.id, b.parameters);
  }
};

/// The functions of one attribute list of texts.
struct TextList {
  const char* name;
  std::size_t (*count)(KoStyleStyle*);
  const KoStyleChar* (*at)(KoStyleStyle*, std::size_t);
  bool (*add)(KoStyleStyle*, const KoStyleChar*);
  bool (*remove)(KoStyleStyle*, const KoStyleChar*);
};

enum ListIndex : std::size_t { singerGroups, singerIDs, genres, subGenres, colors };

inline const std::array<TextList, 5>& textLists() {
  static const std::array<TextList, 5> lists{
      {{"singerGroups", Style_numSingerGroup, Style_singerGroup, MutableStyle_addSingerGroup,
        MutableStyle_deleteSingerGroup},
       {"singerIDs", Style_numSingerID, Style_singerID, MutableStyle_addSingerID,
        MutableStyle_deleteSingerID},
       {"genres", Style_numGenre, Style_genre, MutableStyle_addGenre, MutableStyle_deleteGenre},
       {"subGenres", Style_numSubGenre, Style_subGenre, MutableStyle_addSubGenre,
        MutableStyle_deleteSubGenre},
       {"colors", Style_numColor, Style_color, MutableStyle_addColor, MutableStyle_deleteColor}}};
  return lists;
}

/// The functions of one effect chain.
struct Chain {
  int type;
  std::size_t (*count)(KoStyleStyle*);
  bool (*has)(KoStyleStyle*, KoStyleEffect*);
  KoStyleEffect* (*at)(KoStyleStyle*, std::size_t);
  KoStyleEffect* (*next)(KoStyleEffect*);
  KoStyleEffect* (*prev)(KoStyleEffect*);
  KoStyleEffect* (*mutableAt)(KoStyleStyle*, std::size_t);
  KoStyleEffect* (*mutableNext)(KoStyleEffect*);
  KoStyleEffect* (*mutablePrev)(KoStyleEffect*);
  KoStyleEffect* (*insert)(KoStyleStyle*, std::size_t, const KoStyleChar*);
};

inline const std::array<Chain, 2>& chains() {
  static const std::array<Chain, 2> both{
      {{KOSTYLE_EFFECT_AUDIO, Style_numAudioEffect, Style_hasAudioEffect, Style_audioEffect,
        AudioEffect_next, AudioEffect_prev, MutableStyle_audioEffect, MutableAudioEffect_next,
        MutableAudioEffect_prev, MutableStyle_insertAudioEffect},
       {KOSTYLE_EFFECT_MIDI, Style_numMidiEffect, Style_hasMidiEffect, Style_midiEffect,
        MidiEffect_next, MidiEffect_prev, MutableStyle_midiEffect, MutableMidiEffect_next,
        MutableMidiEffect_prev, MutableStyle_insertMidiEffect}}};
  return both;
}

struct StyleValue {
  Text name;
  std::vector<int> languages;
  std::array<std::vector<Text>, 5> lists;
  std::array<std::vector<EffectValue>, 2> chains;

  friend bool operator==(const StyleValue& a, const StyleValue& b) {
    return std::tie(a.name, a.languages, a.lists, a.chains) ==
           std::tie(b.name, b.languages, b.lists, b.chains);
  }
  friend bool operator!=(const StyleValue& a, const StyleValue& b) { return !(a == b); }
};

/// The value of a system or user style with what mutable styles do not have.
struct StoredValue : StyleValue {
  Text id;
  Text vendor;

  friend bool operator==(const StoredValue& a, const StoredValue& b) {
    return static_cast<const StyleValue&>(a) == b &&
           std::tie(a.id, a.vendor) == std::tie(b.id, b.vendor);
  }
  friend bool operator!=(const StoredValue& a, const StoredValue& b) { return !(a == b); }
};

inline ParameterValue valueOf(KoStyleParameter* parameter) {
  return {Parameter_name(parameter),        Parameter_type(parameter),
          Parameter_valueInt(parameter),    Parameter_valueFloat(parameter),
          Parameter_valueString(parameter), true};
}

inline EffectValue valueOf(KoStyleEffect* effect) {
  EffectValue value;
  value.id = Effect_id(effect);
  const bool isMutable = MutableEffect_parent(effect) != nullptr;
  for (std::size_t i = 0; i < Effect_numParameter(effect); ++i) {
    value.parameters.push_back(
        valueOf(isMutable ? MutableEffect_parameter(effect, i) : Effect_parameter(effect, i)));
  }
  return value;
}

inline StyleValue valueOf(KoStyleStyle* style) {
  StyleValue value;
  value.name = Style_name(style);
  for (std::size_t i = 0; i < Style_numLanguage(style); ++i)
    value.languages.push_back(Style_language(style, i));
  for (std::size_t list = 0; list < value.lists.size(); ++list) {
    for (std::size_t i = 0; i < textLists()[list].count(style); ++i)
      value.lists[list].emplace_back(textLists()[list].at(style, i));
  }
  const bool isMutable = Style_type(style) == KOSTYLE_KIND_MUTABLE;
  for (std::size_t kind = 0; kind < value.chains.size(); ++kind) {
    const Chain& chain = chains()[kind];
    for (std::size_t i = 0; i < chain.count(style); ++i)
      value.chains[kind].push_back(valueOf((isMutable ? chain.mutableAt : chain.at)(style, i)));
  }
  return value;
}

inline StoredValue storedValueOf(KoStyleStyle* style) {
  return {valueOf(style), Style_id(style), Style_vendor(style)};
}

inline void PrintTo(const ParameterValue& value, std::ostream* out) {
  *out << utf8(value.name) << '=';
  if (value.type == KOSTYLE_PARAMETER_INT) *out << value.integer;
  if (value.type == KOSTYLE_PARAMETER_FLOAT) *out << value.real << 'f' << bitsOf(value.real);
  if (value.type == KOSTYLE_PARAMETER_STRING) *out << '"' << utf8(value.string) << '"';
}

inline void PrintTo(const EffectValue& effect, std::ostream* out) {
  *out << utf8(effect.id) << '(';
  for (const ParameterValue& parameter : effect.parameters) {
    PrintTo(parameter, out);
    *out << ' ';
  }
  *out << ')';
}

inline void PrintTo(const StyleValue& value, std::ostream* out) {
  *out << "{name " << utf8(value.name) << "; languages";
  for (const int language : value.languages) *out << ' ' << language;
  for (std::size_t list = 0; list < value.lists.size(); ++list) {
    *out << "; " << textLists()[list].name;
    for (const Text& each : value.lists[list]) *out << " [" << utf8(each) << ']';
  }
  for (std::size_t kind = 0; kind < value.chains.size(); ++kind) {
    *out << (kind == 0 ? "; audio" : "; midi");
    for (const EffectValue& effect : value.chains[kind]) {
      *out << ' ';
      PrintTo(effect, out);
    }
  }
  *out << '}';
}

inline void PrintTo(const StoredValue& value, std::ostream* out) {
  *out << "id " << utf8(value.id) << "; vendor " << utf8(value.vendor) << ' ';
  PrintTo(static_cast<const StyleValue&>(value), out);
}

}  // namespace test
