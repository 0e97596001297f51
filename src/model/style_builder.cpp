#include "model/style_builder.h"

#include <algorithm>
#include <memory>

#include "containers/text_block.h"

namespace Tesk::KoStyle {

void StyleBuilder::clear() noexcept {
  name_ = {};
  languages_ = {};
  for (auto& texts : texts_) texts.clear();
  effects_.clear();
  parameters_.clear();
  parameterKeys_.clear();
}

void StyleBuilder::addText(Attribute attribute, TextView text) {
  if (!isAttributeText(attribute, text)) return;
  std::vector<Named>& texts = texts_[static_cast<std::size_t>(attribute)];
  if (texts.empty() || texts.back().name != text) texts.push_back({text});
}

bool StyleBuilder::addEffect(EffectKind kind, TextView id) {
  if (!effects_.empty() && effects_.back().kind == kind && effects_.back().name == id) return false;
  effects_.push_back({{id}, kind, parameters_.size()});
  return true;
}

StoredContent StyleBuilder::freeze(const Style& style) {
  takeEffects(EffectKind::audio);
  takeEffects(EffectKind::midi);
  orderParameters();
  const auto count = [this](EffectKind kind) {
    return static_cast<std::size_t>(std::count_if(
        effects_.begin(), effects_.end(),
        [kind](const EffectEntry& effect) { return effect.taken && effect.kind == kind; }));
  };

  StoredContent content;
  content.name = name_;
  content.attributes.languages = languages_;
  for (const Attribute attribute : textAttributes)
    content.attributes[attribute] = freezeTexts(attribute);
  content.texts.reset(new Char[countUnits()]);
  content.parameters = FrozenArray<Parameter>(parameterKeys_.size());
  content.audioEffects = FrozenArray<AudioEffect>(count(EffectKind::audio));
  content.midiEffects = FrozenArray<MidiEffect>(count(EffectKind::midi));
  Char* texts = content.texts.get();
  freezeChain(EffectKind::audio, style, content.audioEffects, content.parameters, texts);
  freezeChain(EffectKind::midi, style, content.midiEffects, content.parameters, texts);
  return content;
}

// Takes the first effect of each identifier into a chain.
void StyleBuilder::takeEffects(EffectKind kind) {
  keys_.clear();
  for (const EffectEntry& effect : effects_) {
    if (effect.kind == kind) keys_.emplace_back(effect);
  }
  sortDistinct(keys_, 0);
  for (const NameKey& key : keys_) {
    const auto index = static_cast<const EffectEntry*>(key.item) - effects_.data();
    effects_[static_cast<std::size_t>(index)].taken = true;
  }
}

void StyleBuilder::orderParameters() {
  parameterKeys_.clear();
  for (std::size_t i = 0; i < effects_.size(); ++i) {
    EffectEntry& effect = effects_[i];
    if (!effect.taken) continue;
    const std::size_t end =
        i + 1 < effects_.size() ? effects_[i + 1].firstParameter : parameters_.size();
    effect.firstKey = parameterKeys_.size();
    for (std::size_t p = effect.firstParameter; p < end; ++p)
      parameterKeys_.emplace_back(parameters_[p]);
    sortDistinct(parameterKeys_, effect.firstKey);
    effect.numKeys = parameterKeys_.size() - effect.firstKey;
  }
}

std::size_t StyleBuilder::countUnits() const noexcept {
  std::size_t units = 0;
  for (const EffectEntry& effect : effects_) {
    if (effect.taken) units += unitsOf(effect.name);
  }
  for (const NameKey& key : parameterKeys_) {
    const ParameterValue& value = static_cast<const ParameterEntry*>(key.item)->value;
    units += unitsOf(key.item->name) + value.text.size() + (value.type == ParameterType::text ? 1 : 0);
  }
  return units;
}

template <class EffectType>
void StyleBuilder::freezeChain(EffectKind kind, const Style& style, FrozenArray<EffectType>& chain,
                               FrozenArray<Parameter>& parameters, Char*& texts) const {
  for (const EffectEntry& entry : effects_) {
    if (!entry.taken || entry.kind != kind) continue;
    const FrozenRange<Parameter> range(parameters.end(), entry.numKeys);
    const Effect& effect = chain.emplace(style, appendText(texts, entry.name), range);
    for (std::size_t i = entry.firstKey; i < entry.firstKey + entry.numKeys; ++i) {
      const auto& parameter = *static_cast<const ParameterEntry*>(parameterKeys_[i].item);
      const TextView name = appendText(texts, parameter.name);
      ParameterValue value = parameter.value;
      if (value.type == ParameterType::text) value.text = appendText(texts, value.text);
      parameters.emplace(effect, name, value);
    }
  }
}

FrozenTexts StyleBuilder::freezeTexts(Attribute attribute) {
  keys_.clear();
  for (const Named& text : texts_[static_cast<std::size_t>(attribute)]) keys_.emplace_back(text);
  sortDistinct(keys_, 0);
  distinctTexts_.clear();
  for (const NameKey& key : keys_) distinctTexts_.push_back(key.item->name);
  return FrozenTexts(distinctTexts_);
}

}  // namespace Tesk::KoStyle
