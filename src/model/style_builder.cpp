#include "model/style_builder.h"

#include <algorithm>
#include <unordered_set>

namespace Tesk::KoStyle {

void StyleBuilder::clear() noexcept {
  id_ = path_ = vendor_ = name_ = {};
  languages_ = {};
  for (auto& texts : texts_) texts.clear();
  effects_.clear();
  parameters_.clear();
  parameterKeys_.clear();
}

StyleBuilder::Adding StyleBuilder::addText(Attribute attribute, TextView text) {
  if (!isAttributeText(attribute, text)) return Adding::unfit;
  std::vector<Named>& texts = texts_[static_cast<std::size_t>(attribute)];
  if (!texts.empty() && equalTexts(texts.back().name, text)) return Adding::repeated;
  texts.push_back({text});
  return Adding::added;
}

void StyleBuilder::reserve(std::size_t effects, std::size_t parameters) {
  effects_.reserve(effects);
  parameters_.reserve(parameters);
  parameterKeys_.reserve(parameters);
}

bool StyleBuilder::addEffect(EffectKind kind, TextView id) {
  if (!effects_.empty() && effects_.back().kind == kind && equalTexts(effects_.back().name, id))
    return false;
  effects_.push_back({{id}, kind, parameters_.size()});
  return true;
}

StoredContent StyleBuilder::freeze(const Style& style) {
  StoredContent content;
  freezeTexts(content);
  takeEffects(EffectKind::audio);
  takeEffects(EffectKind::midi);
  orderParameters();
  freezeEffects(content, style);
  return content;
}

void StyleBuilder::freezeTexts(StoredContent& content) {
  listed_.clear();
  std::array<std::size_t, textAttributes.size()> ends = {};
  for (std::size_t list = 0; list < texts_.size(); ++list) {
    keys_.clear();
    addKeys(keys_, texts_[list].begin(), texts_[list].end());
    sortDistinct(keys_, 0);
    for (const NameKey& key : keys_) listed_.push_back(key.item->name);
    ends[list] = listed_.size();
  }
  FrozenTextBlock identity(0, unitsOf(id_) + unitsOf(path_));
  content.id = identity.add(id_);
  content.path = identity.add(path_);

  std::size_t units = unitsOf(vendor_) + unitsOf(name_);
  for (const TextView text : listed_) units += unitsOf(text);
  FrozenTextBlock block(listed_.size(), units);
  content.vendor = block.add(vendor_);
  content.name = block.add(name_);
  content.attributes.languages = languages_;
  const TextView* texts = listed_.data();
  for (std::size_t list = 0; list < ends.size(); ++list) {
    const TextView* const end = listed_.data() + ends[list];
    content.attributes.lists[list] =
        block.addList(FrozenRange(texts, static_cast<std::size_t>(end - texts)));
    texts = end;
  }
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
    effect.firstKey = parameterKeys_.size();
    addKeys(parameterKeys_, parameters_.data() + effect.firstParameter,
            parameters_.data() + endOfParameters(i));
    sortDistinct(parameterKeys_, effect.firstKey);
    effect.numKeys = parameterKeys_.size() - effect.firstKey;
  }
}

std::size_t StyleBuilder::endOfParameters(std::size_t effect) const noexcept {
  return effect + 1 < effects_.size() ? effects_[effect + 1].firstParameter : parameters_.size();
}

std::vector<std::size_t> StyleBuilder::repeatedEffects() const {
  std::vector<std::size_t> repeated;
  for (std::size_t i = 0; i < effects_.size(); ++i) {
    if (!effects_[i].taken) repeated.push_back(i);
  }
  return repeated;
}

std::vector<std::size_t> StyleBuilder::repeatedParameters() const {
  std::vector<bool> kept(parameters_.size());
  for (const NameKey& key : parameterKeys_) {
    const auto index = static_cast<const ParameterEntry*>(key.item) - parameters_.data();
    kept[static_cast<std::size_t>(index)] = true;
  }
  std::vector<std::size_t> repeated;
  for (std::size_t effect = 0; effect < effects_.size(); ++effect) {
    if (!effects_[effect].taken) continue;
    for (std::size_t i = effects_[effect].firstParameter; i < endOfParameters(effect); ++i) {
      if (!kept[i]) repeated.push_back(i);
    }
  }
  return repeated;
}

// A text is told by where it lies.
std::vector<std::size_t> StyleBuilder::repeatedTexts(Attribute attribute) const {
  std::unordered_set<const Char*> kept;
  for (const TextView text : listed_) kept.insert(text.data());
  const std::vector<Named>& texts = texts_[static_cast<std::size_t>(attribute)];
  std::vector<std::size_t> repeated;
  for (std::size_t i = 0; i < texts.size(); ++i) {
    if (kept.count(texts[i].name.data()) == 0) repeated.push_back(i);
  }
  return repeated;
}

void StyleBuilder::freezeEffects(StoredContent& content, const Style& style) {
  const std::size_t numParameters = parameterKeys_.size();
  const std::size_t numAudio = countTaken(EffectKind::audio);
  const std::size_t numMidi = countTaken(EffectKind::midi);
  const std::size_t numUnits = countEffectUnits();
  FrozenBlock block(numParameters * sizeof(Parameter) + numAudio * sizeof(AudioEffect) +
                    numMidi * sizeof(MidiEffect) + numUnits * sizeof(Char));
  FrozenArray parameters(block.take<Parameter>(numParameters));
  FrozenArray audioEffects(block.take<AudioEffect>(numAudio));
  FrozenArray midiEffects(block.take<MidiEffect>(numMidi));
  Char* texts = block.take<Char>(numUnits);
  content.audioEffects = freezeChain(EffectKind::audio, style, audioEffects, parameters, texts);
  content.midiEffects = freezeChain(EffectKind::midi, style, midiEffects, parameters, texts);
  content.block.swap(block);
}

std::size_t StyleBuilder::countTaken(EffectKind kind) const noexcept {
  const auto isTaken = [kind](const EffectEntry& effect) {
    return effect.taken && effect.kind == kind;
  };
  return static_cast<std::size_t>(std::count_if(effects_.begin(), effects_.end(), isTaken));
}

std::size_t StyleBuilder::countEffectUnits() const noexcept {
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
FrozenRange<EffectType> StyleBuilder::freezeChain(EffectKind kind, const Style& style,
                                                  FrozenArray<EffectType> chain,
                                                  FrozenArray<Parameter>& parameters,
                                                  Char*& texts) const {
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
  return chain.range();
}

}  // namespace Tesk::KoStyle
