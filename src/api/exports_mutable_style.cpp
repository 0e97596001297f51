#include "api/exports.h"
#include "api/handle.h"

using namespace Tesk::KoStyle;

void MutableStyle_destroy(KoStyleStyle* style) try {
  checkedVoid<IMutableStyle>(style, &IMutableStyle::destroy);
} catch (...) {
}

KoStyleEffect* MutableStyle_audioEffect(KoStyleStyle* style, size_t index) {
  return converted<IMutableStyle, KoStyleEffect>(style, &IMutableStyle::audioEffect, index);
}
KoStyleEffect* MutableStyle_midiEffect(KoStyleStyle* style, size_t index) {
  return converted<IMutableStyle, KoStyleEffect>(style, &IMutableStyle::midiEffect, index);
}

bool MutableStyle_setName(KoStyleStyle* style, const Char* name) {
  return checked<IMutableStyle>(style, &IMutableStyle::setName, false, name);
}

bool MutableStyle_addLanguage(KoStyleStyle* style, int language) {
  return checked<IMutableStyle>(style, &IMutableStyle::addLanguage, false, language);
}
bool MutableStyle_deleteLanguage(KoStyleStyle* style, int language) {
  return checked<IMutableStyle>(style, &IMutableStyle::deleteLanguage, false, language);
}

bool MutableStyle_addSingerGroup(KoStyleStyle* style, const Char* singerGroup) {
  return checked<IMutableStyle>(style, &IMutableStyle::addSingerGroup, false, singerGroup);
}
bool MutableStyle_deleteSingerGroup(KoStyleStyle* style, const Char* singerGroup) {
  return checked<IMutableStyle>(style, &IMutableStyle::deleteSingerGroup, false, singerGroup);
}

bool MutableStyle_addSingerID(KoStyleStyle* style, const Char* singerID) {
  return checked<IMutableStyle>(style, &IMutableStyle::addSingerID, false, singerID);
}
bool MutableStyle_deleteSingerID(KoStyleStyle* style, const Char* singerID) {
  return checked<IMutableStyle>(style, &IMutableStyle::deleteSingerID, false, singerID);
}

bool MutableStyle_addGenre(KoStyleStyle* style, const Char* genre) {
  return checked<IMutableStyle>(style, &IMutableStyle::addGenre, false, genre);
}
bool MutableStyle_deleteGenre(KoStyleStyle* style, const Char* genre) {
  return checked<IMutableStyle>(style, &IMutableStyle::deleteGenre, false, genre);
}

bool MutableStyle_addSubGenre(KoStyleStyle* style, const Char* subGenre) {
  return checked<IMutableStyle>(style, &IMutableStyle::addSubGenre, false, subGenre);
}
bool MutableStyle_deleteSubGenre(KoStyleStyle* style, const Char* subGenre) {
  return checked<IMutableStyle>(style, &IMutableStyle::deleteSubGenre, false, subGenre);
}

bool MutableStyle_addColor(KoStyleStyle* style, const Char* color) {
  return checked<IMutableStyle>(style, &IMutableStyle::addColor, false, color);
}
bool MutableStyle_deleteColor(KoStyleStyle* style, const Char* color) {
  return checked<IMutableStyle>(style, &IMutableStyle::deleteColor, false, color);
}

KoStyleEffect* MutableStyle_insertAudioEffect(KoStyleStyle* style, size_t index, const Char* id) {
  return converted<IMutableStyle, KoStyleEffect>(style, &IMutableStyle::insertAudioEffect, index, id);
}
KoStyleEffect* MutableStyle_insertMidiEffect(KoStyleStyle* style, size_t index, const Char* id) {
  return converted<IMutableStyle, KoStyleEffect>(style, &IMutableStyle::insertMidiEffect, index, id);
}

// The operations take an unsigned code; a host's int may be written through it.
KoStyleStyle* MutableStyle_save(KoStyleStyle* style, bool pretty, int* error) {
  if (!error) return nullptr;
  auto* const code = reinterpret_cast<std::uint32_t*>(error);
  return converted<IMutableStyle, KoStyleStyle>(style, &IMutableStyle::save, pretty, code);
}
KoStyleStyle* MutableStyle_overwrite(KoStyleStyle* style, const Char* targetID, bool pretty,
                                     int* error) {
  if (!error) return nullptr;
  auto* const code = reinterpret_cast<std::uint32_t*>(error);
  return converted<IMutableStyle, KoStyleStyle>(style, &IMutableStyle::overwrite, targetID, pretty,
                                                code);
}
