// StoredContent: all of a stored style that an overwrite replaces, frozen into a few blocks of exactly
// their size. StyleBuilder makes it.
#pragma once

#include <memory>
#include <utility>

#include "containers/frozen_array.h"
#include "containers/frozen_texts.h"
#include "model/attributes.h"
#include "model/effect.h"
#include "model/parameter.h"
#include "platform/text.h"

namespace Tesk::KoStyle {

struct StoredContent {
  Text name;
  Attributes<FrozenTexts> attributes;
  std::unique_ptr<Char[]> texts;  // of effects and parameters
  FrozenArray<Parameter> parameters;
  FrozenArray<AudioEffect> audioEffects;
  FrozenArray<MidiEffect> midiEffects;
};

}  // namespace Tesk::KoStyle
