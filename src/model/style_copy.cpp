#include "model/style_copy.h"

#include "model/style_builder.h"

namespace Tesk::KoStyle {

StoredContent copyFromMutableStyle(const MutableStyle& style, const Style& target, TextView id,
                                   TextView path) {
  StyleBuilder builder;
  builder.setId(id);
  builder.setPath(path);
  builder.setName(style.wholeName());
  for (std::size_t i = 0; i < style.numLanguage(); ++i) builder.addLanguage(style.language(i));
  for (const Attribute attribute : textAttributes) {
    for (const Text& text : style.attributes()[attribute]) builder.addText(attribute, text);
  }
  const auto copyChain = [&builder](EffectKind kind, const MutableChain& effects) {
    for (const MutableEffect& effect : effects) {
      builder.addEffect(kind, effect.wholeId());
      for (const MutableParameter& parameter : effect.parameters())
        builder.addParameter(parameter.wholeName(), parameter.value());
    }
  };
  copyChain(EffectKind::audio, style.audioEffects());
  copyChain(EffectKind::midi, style.midiEffects());
  return builder.freeze(target);
}

}  // namespace Tesk::KoStyle
