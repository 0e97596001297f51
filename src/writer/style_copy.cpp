#include "writer/style_copy.h"

#include <memory>
#include <utility>

#include "model/effect.h"
#include "model/parameter.h"

namespace Tesk::KoStyle {
namespace {

template <class Source, class Copy>
void copyChain(const EffectChain& chain, Style& target, EffectChain& copies) {
  for (const EffectBase& effect : chain) {
    if (!dynamic_cast<const Source*>(&effect)) continue;
    auto copy = std::make_unique<Copy>(&target);
    copy->assignId(effect.wholeId());
    for (const ParameterBase& parameter : effect.parameters()) {
      auto parameterCopy = std::make_unique<Parameter>(copy.get());
      parameterCopy->assignName(parameter.wholeName());
      parameterCopy->assignValueOf(parameter);
      copy->parameters().append(std::move(parameterCopy));
    }
    copies.append(EffectChain::prepare(std::move(copy)));
  }
}

}  // namespace

StyleContent copyFromMutableStyle(const MutableStyle& style, Style& target) {
  StyleContent content;
  content.id = style.wholeId();
  content.name = style.wholeName();
  content.path = style.path();
  content.attributes = StyleAttributes(style.attributes());
  copyChain<IMutableAudioEffect, AudioEffect>(style.chain(EffectKind::audio), target,
                                              content.audioEffects);
  copyChain<IMutableMidiEffect, MidiEffect>(style.chain(EffectKind::midi), target, content.midiEffects);
  return content;
}

}  // namespace Tesk::KoStyle
