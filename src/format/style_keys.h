// The names that stand in a style document. Whoever reads or writes one takes them from here.
#pragma once

#include <array>
#include <cstddef>

#include "model/attributes.h"
#include "model/effect_kind.h"
#include "platform/text.h"

namespace Tesk::KoStyle {

inline constexpr TextView styleFileExtension = KOSTYLE_TEXT(".kostyle");

/// Whether a file is read as a style, by its path.
inline bool hasStyleExtension(TextView path) {
  const std::size_t lastDot = path.rfind(Char('.'));
  return lastDot != TextView::npos && path.substr(lastDot) == styleFileExtension;
}

}  // namespace Tesk::KoStyle

namespace Tesk::KoStyle::key {

inline constexpr TextView id = KOSTYLE_TEXT("id");
inline constexpr TextView name = KOSTYLE_TEXT("name");
inline constexpr TextView vendor = KOSTYLE_TEXT("vendor");
inline constexpr TextView filter = KOSTYLE_TEXT("filter");

/// The chain of a kind.
constexpr TextView chain(EffectKind kind) {
  return kind == EffectKind::audio ? KOSTYLE_TEXT("audioEffect") : KOSTYLE_TEXT("midiEffect");
}

// In an effect object.
inline constexpr TextView parameter = KOSTYLE_TEXT("parameter");

/// The name of the parameter with a key: one is read as another.
constexpr TextView parameterName(TextView parameterKey) {
  return parameterKey == KOSTYLE_TEXT("Tarn") ? KOSTYLE_TEXT("Tarn630") : parameterKey;
}

// In the filter object, the languages first.
inline constexpr TextView languages = KOSTYLE_TEXT("languages");
constexpr TextView list(Attribute attribute) {
  constexpr std::array<TextView, textAttributes.size()> keys = {
      KOSTYLE_TEXT("singerGroups"), KOSTYLE_TEXT("singerIDs"), KOSTYLE_TEXT("genres"),
      KOSTYLE_TEXT("subGenres"), KOSTYLE_TEXT("colors")};
  return keys[static_cast<std::size_t>(attribute)];
}

}  // namespace Tesk::KoStyle::key
