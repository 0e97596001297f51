// Freezing lays what a stored style holds into blocks of exactly its size. What is handed in follows
// the rules of stored styles already, and is copied.
#pragma once

#include <array>
#include <cstddef>

#include "model/attributes.h"
#include "model/effect_kind.h"
#include "model/parameter_value.h"
#include "model/stored_content.h"

namespace Tesk::KoStyle {

void freezeIdentity(StoredContent& content, TextView id, TextView path);

/// `List` is a range of texts.
template <class List>
void freezeTexts(StoredContent& content, TextView vendor, TextView name,
                 const std::array<List, textAttributes.size()>& lists) {
  std::size_t listed = 0;
  std::size_t units = unitsOf(vendor) + unitsOf(name);
  for (const List& list : lists) {
    listed += list.size();
    for (const TextView text : list) units += unitsOf(text);
  }
  FrozenTextBlock block(listed, units);
  content.vendor = block.add(vendor);
  content.name = block.add(name);
  for (std::size_t i = 0; i < lists.size(); ++i) content.attributes.lists[i] = block.addList(lists[i]);
}

/// Counts what the effects of a style take.
struct EffectSizes {
  void addEffect(EffectKind kind, TextView id) noexcept {
    ++(kind == EffectKind::audio ? audioEffects : midiEffects);
    units += unitsOf(id);
  }
  void addParameter(TextView name, const ParameterValue& value) noexcept {
    ++parameters;
    units += unitsOf(name);
    if (value.type == ParameterType::text) units += unitsOf(value.text);
  }

  std::size_t audioEffects = 0;
  std::size_t midiEffects = 0;
  std::size_t parameters = 0;
  std::size_t units = 0;
};

/// Takes the effects that were counted, each followed by its parameters.
class EffectFreezer {
 public:
  EffectFreezer(const Style& style, const EffectSizes& sizes);

  void addEffect(EffectKind kind, TextView id, std::size_t numParameters) noexcept;
  void addParameter(TextView name, const ParameterValue& value) noexcept;

  /// Gives the effects to the style's content.
  void moveTo(StoredContent& content) noexcept;

 private:
  const Style& style_;
  FrozenBlock block_;
  FrozenArray<Parameter> parameters_;
  FrozenArray<AudioEffect> audioEffects_;
  FrozenArray<MidiEffect> midiEffects_;
  Char* texts_;
  const Effect* effect_ = nullptr;  // the last one
};

}  // namespace Tesk::KoStyle
