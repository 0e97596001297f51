#include "model/style_copy.h"

#include <cstddef>

#include "model/style_builder.h"

namespace Tesk::KoStyle {
namespace {

std::size_t countParameters(const MutableChain& chain) {
  std::size_t count = 0;
  for (const MutableEffect& effect : chain) count += effect.parameters().size();
  return count;
}

void copyChain(EffectKind kind, const MutableChain& chain, StyleBuilder& builder) {
  for (const MutableEffect& effect : chain) {
    builder.addEffect(kind, effect.wholeId());
    for (const MutableParameter& parameter : effect.parameters())
      builder.addParameter(parameter.wholeName(), parameter.value());
  }
}

}  // namespace

StoredContent copyFromMutableStyle(const MutableStyle& style, const Style& target, TextView id,
                                   TextView path) {
  StyleBuilder builder;
  builder.setId(id);
  builder.setPath(path);
  builder.setName(style.wholeName());
  for (std::size_t i = 0; i < style.numLanguage(); ++i) builder.addLanguage(style.language(i));
  for (const Attribute attribute : textAttributes) {
    for (const TextView text : style.attributes()[attribute]) builder.addText(attribute, text);
  }
  const MutableChain& audio = style.audioEffects();
  const MutableChain& midi = style.midiEffects();
  builder.reserve(audio.size() + midi.size(), countParameters(audio) + countParameters(midi));
  copyChain(EffectKind::audio, audio, builder);
  copyChain(EffectKind::midi, midi, builder);
  return builder.freeze(target);
}

}  // namespace Tesk::KoStyle
