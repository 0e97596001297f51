#include "model/content_freezer.h"

namespace Tesk::KoStyle {

void freezeIdentity(StoredContent& content, TextView id, TextView path) {
  FrozenTextBlock block(0, unitsOf(id) + unitsOf(path));
  content.id = block.add(id);
  content.path = block.add(path);
}

EffectFreezer::EffectFreezer(const Style& style, const EffectSizes& sizes)
    : style_(style),
      block_(sizes.parameters * sizeof(Parameter) + sizes.audioEffects * sizeof(AudioEffect) +
             sizes.midiEffects * sizeof(MidiEffect) + sizes.units * sizeof(Char)),
      parameters_(block_.take<Parameter>(sizes.parameters)),
      audioEffects_(block_.take<AudioEffect>(sizes.audioEffects)),
      midiEffects_(block_.take<MidiEffect>(sizes.midiEffects)),
      texts_(block_.take<Char>(sizes.units)) {}

void EffectFreezer::addEffect(EffectKind kind, TextView id, std::size_t numParameters) noexcept {
  const TextView copy = appendText(texts_, id);
  const FrozenRange<Parameter> parameters(parameters_.end(), numParameters);
  if (kind == EffectKind::audio) {
    effect_ = &audioEffects_.emplace(style_, copy, parameters);
  } else {
    effect_ = &midiEffects_.emplace(style_, copy, parameters);
  }
}

void EffectFreezer::addParameter(TextView name, const ParameterValue& value) noexcept {
  const TextView copy = appendText(texts_, name);
  ParameterValue copied = value;
  if (value.type == ParameterType::text) copied.text = appendText(texts_, value.text);
  parameters_.emplace(*effect_, copy, copied);
}

void EffectFreezer::moveTo(StoredContent& content) noexcept {
  content.audioEffects = audioEffects_.range();
  content.midiEffects = midiEffects_.range();
  content.block.swap(block_);
}

}  // namespace Tesk::KoStyle
