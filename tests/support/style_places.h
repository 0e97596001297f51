// Where a stored style's objects and texts are, for what must stay where it is.
#pragma once

#include <cstddef>
#include <vector>

#include "support/kostyle.h"

namespace test {

/// The addresses of what neither an editor nor an overwrite of the same values moves: identifier, path,
/// vendor, and the lists that an editor does not change.
inline std::vector<const void*> fixedTextsOf(KoStyleStyle* style) {
  std::vector<const void*> places{Style_id(style), Style_path(style), Style_vendor(style)};
  for (std::size_t i = 0; i < Style_numSingerGroup(style); ++i)
    places.push_back(Style_singerGroup(style, i));
  for (std::size_t i = 0; i < Style_numSingerID(style); ++i) places.push_back(Style_singerID(style, i));
  for (std::size_t i = 0; i < Style_numGenre(style); ++i) places.push_back(Style_genre(style, i));
  return places;
}

/// The addresses of name, sub-genres and colours.
inline std::vector<const void*> propertyTextsOf(KoStyleStyle* style) {
  std::vector<const void*> places{Style_name(style)};
  for (std::size_t i = 0; i < Style_numSubGenre(style); ++i) places.push_back(Style_subGenre(style, i));
  for (std::size_t i = 0; i < Style_numColor(style); ++i) places.push_back(Style_color(style, i));
  return places;
}

/// The handles of effects and parameters and the addresses of their texts.
inline std::vector<const void*> effectsOf(KoStyleStyle* style) {
  std::vector<const void*> places;
  const auto addEffect = [&](KoStyleEffect* effect) {
    places.insert(places.end(), {effect, Effect_id(effect)});
    for (std::size_t i = 0; i < Effect_numParameter(effect); ++i) {
      KoStyleParameter* const parameter = Effect_parameter(effect, i);
      places.insert(places.end(),
                    {parameter, Parameter_name(parameter), Parameter_valueString(parameter)});
    }
  };
  for (std::size_t i = 0; i < Style_numAudioEffect(style); ++i) addEffect(Style_audioEffect(style, i));
  for (std::size_t i = 0; i < Style_numMidiEffect(style); ++i) addEffect(Style_midiEffect(style, i));
  return places;
}

inline std::vector<const void*> placesOf(KoStyleStyle* style) {
  std::vector<const void*> places = fixedTextsOf(style);
  for (const auto& more : {propertyTextsOf(style), effectsOf(style)})
    places.insert(places.end(), more.begin(), more.end());
  return places;
}

}  // namespace test
