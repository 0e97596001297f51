#include "model/style_copy.h"

#include <cstddef>
#include <vector>

#include "model/content_freezer.h"
#include "model/name_order.h"

namespace Tesk::KoStyle {
namespace {

std::size_t countParameters(const MutableChain& chain) noexcept {
  std::size_t count = 0;
  for (const MutableEffect& effect : chain) count += effect.parameters().size();
  return count;
}

// The effects of a mutable style, and of their parameters those that a stored style takes, as it orders
// them.
class TakenEffects {
 public:
  explicit TakenEffects(const MutableStyle& style) {
    effects_.reserve(style.audioEffects().size() + style.midiEffects().size());
    parameters_.reserve(countParameters(style.audioEffects()) + countParameters(style.midiEffects()));
    addChain(style.audioEffects());
    addChain(style.midiEffects());
  }

  void freeze(const Style& target, StoredContent& content) const {
    EffectFreezer freezer(target, sizes_);
    auto parameter = parameters_.begin();
    for (const Taken& taken : effects_) {
      freezer.addEffect(taken.effect->kind(), taken.effect->wholeId(), taken.numParameters);
      for (std::size_t i = 0; i < taken.numParameters; ++i, ++parameter)
        freezer.addParameter((*parameter)->wholeName(), (*parameter)->value());
    }
    freezer.moveTo(content);
  }

 private:
  struct Taken {
    const MutableEffect* effect;
    std::size_t numParameters;
  };

  void addChain(const MutableChain& chain) {
    for (const MutableEffect& effect : chain) {
      const std::size_t first = parameters_.size();
      addParameters(effect.parameters());
      effects_.push_back({&effect, parameters_.size() - first});
      sizes_.addEffect(effect.kind(), effect.wholeId());
      for (std::size_t i = first; i < parameters_.size(); ++i)
        sizes_.addParameter(parameters_[i]->wholeName(), parameters_[i]->value());
    }
  }

  void addParameters(const ParameterList& parameters) {
    if (parameters.wasRenamed()) return addInOrder(parameters);
    for (const MutableParameter& parameter : parameters) parameters_.push_back(&parameter);
  }

  // Renaming can give several parameters one name, of which the first is taken.
  void addInOrder(const ParameterList& parameters) {
    struct Entry : Named {
      const MutableParameter* parameter;
    };
    std::vector<Entry> entries;
    for (const MutableParameter& parameter : parameters)
      entries.push_back({{parameter.wholeName()}, &parameter});
    NameKeys keys;
    addKeys(keys, entries.begin(), entries.end());
    sortDistinct(keys, 0);
    for (const NameKey& key : keys)
      parameters_.push_back(static_cast<const Entry*>(key.item)->parameter);
  }

  std::vector<Taken> effects_;
  std::vector<const MutableParameter*> parameters_;
  EffectSizes sizes_;
};

}  // namespace

StoredContent copyFromMutableStyle(const MutableStyle& style, const Style& target, TextView id,
                                   TextView path) {
  StoredContent content;
  freezeIdentity(content, id, path);
  freezeTexts(content, TextView(), style.wholeName(), style.attributes().lists);
  content.attributes.languages = style.attributes().languages;
  TakenEffects(style).freeze(target, content);
  return content;
}

}  // namespace Tesk::KoStyle
