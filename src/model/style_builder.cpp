#include "model/style_builder.h"

#include <algorithm>
#include <unordered_set>

#include "model/content_freezer.h"

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

bool StyleBuilder::addEffect(EffectKind kind, TextView id) {
  if (!effects_.empty() && effects_.back().kind == kind && equalTexts(effects_.back().name, id))
    return false;
  effects_.push_back({{id}, kind, parameters_.size()});
  return true;
}

StoredContent StyleBuilder::freeze(const Style& style) {
  StoredContent content;
  freezeIdentity(content, id_, path_);
  freezeTexts(content, vendor_, name_, orderTexts());
  content.attributes.languages = languages_;
  takeEffects(EffectKind::audio);
  takeEffects(EffectKind::midi);
  orderParameters();
  freezeEffects(content, style);
  return content;
}

StyleBuilder::TextLists StyleBuilder::orderTexts() {
  listed_.clear();
  std::array<std::size_t, textAttributes.size()> sizes = {};
  for (std::size_t list = 0; list < texts_.size(); ++list) {
    keys_.clear();
    addKeys(keys_, texts_[list].begin(), texts_[list].end());
    sortDistinct(keys_, 0);
    for (const NameKey& key : keys_) listed_.push_back(key.item->name);
    sizes[list] = keys_.size();
  }
  TextLists lists;
  const TextView* first = listed_.data();
  for (std::size_t list = 0; list < lists.size(); first += sizes[list++])
    lists[list] = {first, sizes[list]};
  return lists;
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

void StyleBuilder::freezeEffects(StoredContent& content, const Style& style) const {
  EffectSizes sizes;
  for (const EffectEntry& effect : effects_) {
    if (effect.taken) sizes.addEffect(effect.kind, effect.name);
  }
  for (const NameKey& key : parameterKeys_) sizes.addParameter(key.item->name, valueOf(key));

  EffectFreezer freezer(style, sizes);
  for (const EffectEntry& effect : effects_) {
    if (!effect.taken) continue;
    freezer.addEffect(effect.kind, effect.name, effect.numKeys);
    for (std::size_t i = effect.firstKey; i < effect.firstKey + effect.numKeys; ++i)
      freezer.addParameter(parameterKeys_[i].item->name, valueOf(parameterKeys_[i]));
  }
  freezer.moveTo(content);
}

const ParameterValue& StyleBuilder::valueOf(const NameKey& key) noexcept {
  return static_cast<const ParameterEntry*>(key.item)->value;
}

}  // namespace Tesk::KoStyle
