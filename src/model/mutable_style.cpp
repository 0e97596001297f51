#include "model/mutable_style.h"

namespace Tesk::KoStyle {

void MutableStyle::destroy() {
  if (owner()) owner()->destroy(*this);
}

// A chain holds effects of its own kind alone.
IMutableAudioEffect* MutableStyle::audioEffect(const std::size_t& index) const {
  return static_cast<MutableAudioEffect*>(audioEffects().at(index));
}
IMutableMidiEffect* MutableStyle::midiEffect(const std::size_t& index) const {
  return static_cast<MutableMidiEffect*>(midiEffects().at(index));
}

bool MutableStyle::setName(const Char* name) {
  const TextView text = name ? TextView(name) : TextView();
  if (!isStyleName(text)) return false;
  content().name = Text(text);
  return true;
}

bool MutableStyle::addLanguage(const std::int32_t& language) {
  return content().attributes.languages.insert(language);
}
bool MutableStyle::deleteLanguage(const std::int32_t& language) {
  return content().attributes.languages.erase(language);
}

bool MutableStyle::addSingerGroup(const Char* singerGroup) {
  return add(Attribute::singerGroup, singerGroup);
}
bool MutableStyle::deleteSingerGroup(const Char* singerGroup) {
  return erase(Attribute::singerGroup, singerGroup);
}
bool MutableStyle::addSingerID(const Char* singerID) { return add(Attribute::singerID, singerID); }
bool MutableStyle::deleteSingerID(const Char* singerID) { return erase(Attribute::singerID, singerID); }
bool MutableStyle::addGenre(const Char* genre) { return add(Attribute::genre, genre); }
bool MutableStyle::deleteGenre(const Char* genre) { return erase(Attribute::genre, genre); }
bool MutableStyle::addSubGenre(const Char* subGenre) { return add(Attribute::subGenre, subGenre); }
bool MutableStyle::deleteSubGenre(const Char* subGenre) { return erase(Attribute::subGenre, subGenre); }
bool MutableStyle::addColor(const Char* color) { return add(Attribute::color, color); }
bool MutableStyle::deleteColor(const Char* color) { return erase(Attribute::color, color); }

bool MutableStyle::add(Attribute attribute, const Char* text) {
  const TextView added = text ? TextView(text) : TextView();
  return isAttributeText(attribute, added) && content().attributes[attribute].insert(added);
}

bool MutableStyle::erase(Attribute attribute, const Char* text) {
  return text && content().attributes[attribute].erase(TextView(text));
}

IMutableAudioEffect* MutableStyle::insertAudioEffect(const std::size_t& index, const Char* id) {
  return insertEffect<MutableAudioEffect>(index, id);
}

IMutableMidiEffect* MutableStyle::insertMidiEffect(const std::size_t& index, const Char* id) {
  return insertEffect<MutableMidiEffect>(index, id);
}

template <class EffectType>
EffectType* MutableStyle::insertEffect(std::size_t index, const Char* id) {
  MutableChain& effects = chain(EffectType::kind);
  if (!id || *id == 0 || effects.findKey(id)) return nullptr;
  return static_cast<EffectType*>(&effects.insert(index, effects.makeNode<EffectType>(*this, id)));
}

IUserStyle* MutableStyle::save(const bool& pretty, std::uint32_t* error) {
  if (owner()) return owner()->save(*this, pretty, *error);
  *error = KOSTYLE_ERROR_NO_MANAGER;
  return nullptr;
}

IUserStyle* MutableStyle::overwrite(const Char* targetID, const bool& pretty, std::uint32_t* error) {
  if (owner()) return owner()->overwrite(targetID, *this, pretty, *error);
  *error = KOSTYLE_ERROR_NO_MANAGER;
  return nullptr;
}

}  // namespace Tesk::KoStyle
