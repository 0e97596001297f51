#include "model/mutable_style.h"

#include <utility>

#include "manager/style_manager.h"
#include "model/mutable_effect.h"

namespace Tesk::KoStyle {

void MutableStyle::destroy() {
  if (owner()) owner()->styles(StyleKind::editable).destroy(this);
}

IMutableAudioEffect* MutableStyle::audioEffect(const std::size_t& index) const {
  return dynamic_cast<IMutableAudioEffect*>(chain(EffectKind::audio).at(index));
}

IMutableMidiEffect* MutableStyle::midiEffect(const std::size_t& index) const {
  return dynamic_cast<IMutableMidiEffect*>(chain(EffectKind::midi).at(index));
}

bool MutableStyle::setName(const Char* name) {
  const TextView text = name ? TextView(name) : TextView();
  if (!isStyleName(text)) return false;
  assignName(Text(text));
  return true;
}

bool MutableStyle::addLanguage(const std::int32_t& language) {
  return attributes().addLanguage(language);
}
bool MutableStyle::deleteLanguage(const std::int32_t& language) {
  return attributes().languages.erase(language);
}
bool MutableStyle::addSingerGroup(const Char* singerGroup) {
  return singerGroup && attributes().addSingerGroup(singerGroup);
}
bool MutableStyle::deleteSingerGroup(const Char* singerGroup) {
  return singerGroup && attributes().singerGroups.erase(TextView(singerGroup));
}
bool MutableStyle::addSingerID(const Char* singerID) {
  return singerID && attributes().addSingerID(singerID);
}
bool MutableStyle::deleteSingerID(const Char* singerID) {
  return singerID && attributes().singerIDs.erase(TextView(singerID));
}
bool MutableStyle::addGenre(const Char* genre) { return genre && attributes().addGenre(genre); }
bool MutableStyle::deleteGenre(const Char* genre) {
  return genre && attributes().genres.erase(TextView(genre));
}
bool MutableStyle::addSubGenre(const Char* subGenre) {
  return subGenre && attributes().addSubGenre(subGenre);
}
bool MutableStyle::deleteSubGenre(const Char* subGenre) {
  return subGenre && attributes().subGenres.erase(TextView(subGenre));
}
bool MutableStyle::addColor(const Char* color) { return color && attributes().addColor(color); }
bool MutableStyle::deleteColor(const Char* color) {
  return color && attributes().colors.erase(TextView(color));
}

IMutableAudioEffect* MutableStyle::insertAudioEffect(const std::size_t& index, const Char* id) {
  return insertEffect<MutableAudioEffect>(index, id);
}

IMutableMidiEffect* MutableStyle::insertMidiEffect(const std::size_t& index, const Char* id) {
  return insertEffect<MutableMidiEffect>(index, id);
}

template <class MutableKind>
MutableKind* MutableStyle::insertEffect(std::size_t index, const Char* id) {
  if (!id || *id == 0) return nullptr;
  auto effect = std::make_unique<MutableKind>(this);
  effect->assignId(id);
  MutableKind* const inserted = effect.get();
  EffectChain& effects = chain(effect->kind());
  if (effects.findKey(effect->wholeId())) return nullptr;
  effects.insert(index, EffectChain::prepare(std::move(effect)));
  return inserted;
}

IUserStyle* MutableStyle::save(const bool& pretty, std::uint32_t* error) {
  if (owner()) return owner()->saveNewStyle(*this, pretty, error);
  *error = KOSTYLE_ERROR_NO_MANAGER;
  return nullptr;
}

IUserStyle* MutableStyle::overwrite(const Char* targetID, const bool& pretty, std::uint32_t* error) {
  if (owner()) return owner()->overwriteStyle(targetID, *this, pretty, error);
  *error = KOSTYLE_ERROR_NO_MANAGER;
  return nullptr;
}

}  // namespace Tesk::KoStyle
