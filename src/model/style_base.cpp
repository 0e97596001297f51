#include "model/style_base.h"

#include <utility>

#include "api/exports.h"
#include "manager/style_manager.h"

namespace Tesk::KoStyle {
namespace {

const Char* textAt(const SortedSet<Text>& texts, std::size_t index) {
  const Text* text = texts.at(index);
  return text ? text->c_str() : nullptr;
}

}  // namespace

void StyleContent::swap(StyleContent& other) noexcept {
  id.swap(other.id);
  name.swap(other.name);
  path.swap(other.path);
  std::swap(attributes, other.attributes);
  audioEffects.swap(other.audioEffects);
  midiEffects.swap(other.midiEffects);
}

IStyleManager* StyleBase::parent() const { return parent_; }

std::int32_t StyleBase::language(const std::size_t& index) const {
  const int* language = attributes().languages.at(index);
  return language ? *language : -1;
}

int StyleBase::minLangID() const { return Style_minLangID(); }
int StyleBase::maxLangID() const { return Style_maxLangID(); }
int StyleBase::singerIDLength() const { return Style_singerIDLength(); }

const Char* StyleBase::singerGroup(const std::size_t& index) const {
  return textAt(attributes().singerGroups, index);
}
const Char* StyleBase::singerID(const std::size_t& index) const {
  return textAt(attributes().singerIDs, index);
}
const Char* StyleBase::genre(const std::size_t& index) const {
  return textAt(attributes().genres, index);
}
const Char* StyleBase::subGenre(const std::size_t& index) const {
  return textAt(attributes().subGenres, index);
}
const Char* StyleBase::color(const std::size_t& index) const {
  return textAt(attributes().colors, index);
}

bool StyleBase::appendEffect(std::unique_ptr<EffectBase> effect) {
  if (!effect) return false;
  EffectChain& effects = chain(effect->kind());
  if (effects.findKey(effect->wholeId())) return false;
  effects.append(EffectChain::prepare(std::move(effect)));
  return true;
}

}  // namespace Tesk::KoStyle
