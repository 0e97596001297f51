#include "model/style.h"

namespace Tesk::KoStyle {

IAudioEffect* Style::audioEffect(const std::size_t& index) const {
  return dynamic_cast<IAudioEffect*>(chain(EffectKind::audio).at(index));
}

IMidiEffect* Style::midiEffect(const std::size_t& index) const {
  return dynamic_cast<IMidiEffect*>(chain(EffectKind::midi).at(index));
}

}  // namespace Tesk::KoStyle
