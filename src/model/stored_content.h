// StoredContent: all that a stored style holds, frozen into three blocks: identifier and path, which
// creation results share; the texts that an overwrite leaves in place where they keep their value; and
// what it replaces as a whole. content_freezer.h fills it.
#pragma once

#include "containers/frozen_array.h"
#include "containers/frozen_range.h"
#include "containers/frozen_texts.h"
#include "model/attributes.h"
#include "model/effect.h"

namespace Tesk::KoStyle {

struct StoredContent {
  FrozenText id;
  FrozenText path;
  FrozenText vendor;
  FrozenText name;
  Attributes<FrozenTexts> attributes;
  FrozenBlock block;  // effects, their parameters, and the texts of both
  FrozenRange<AudioEffect> audioEffects;
  FrozenRange<MidiEffect> midiEffects;
};

}  // namespace Tesk::KoStyle
