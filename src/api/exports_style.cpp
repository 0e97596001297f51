#include "api/exports.h"
#include "api/handle.h"

using namespace Tesk::KoStyle;

int Style_type(KoStyleStyle* style) { return direct<int>(style, &IStyleBase::type, KOSTYLE_KIND_NONE); }

int Style_language(KoStyleStyle* style, size_t index) {
  return direct(style, &IStyleBase::language, -1, index);
}

int Style_minLangID() { return KOSTYLE_MIN_LANGUAGE; }
int Style_maxLangID() { return KOSTYLE_MAX_LANGUAGE; }
int Style_singerIDLength() { return KOSTYLE_SINGER_ID_LENGTH; }

const Char* Style_singerID(KoStyleStyle* style, size_t index) {
  return direct(style, &IStyleBase::singerID, noText, index);
}

size_t Style_numGenre(KoStyleStyle* style) { return direct(style, &IStyleBase::numGenre, noCount); }
const Char* Style_genre(KoStyleStyle* style, size_t index) {
  return direct(style, &IStyleBase::genre, noText, index);
}

size_t Style_numSubGenre(KoStyleStyle* style) {
  return direct(style, &IStyleBase::numSubGenre, noCount);
}
const Char* Style_subGenre(KoStyleStyle* style, size_t index) {
  return direct(style, &IStyleBase::subGenre, noText, index);
}

size_t Style_numColor(KoStyleStyle* style) { return direct(style, &IStyleBase::numColor, noCount); }
const Char* Style_color(KoStyleStyle* style, size_t index) {
  return direct(style, &IStyleBase::color, noText, index);
}

size_t Style_numAudioEffect(KoStyleStyle* style) {
  return direct(style, &IStyleBase::numAudioEffect, noCount);
}
size_t Style_numMidiEffect(KoStyleStyle* style) {
  return direct(style, &IStyleBase::numMidiEffect, noCount);
}

bool Style_hasAudioEffect(KoStyleStyle* style, KoStyleEffect* effect) {
  return direct(style, &IStyleBase::hasAudioEffect, false, effect);
}
bool Style_hasMidiEffect(KoStyleStyle* style, KoStyleEffect* effect) {
  return direct(style, &IStyleBase::hasMidiEffect, false, effect);
}

const Char* Style_vendor(KoStyleStyle* style) {
  return checked<IStyle>(style, &IStyle::vendor, noText);
}

KoStyleEffect* Style_audioEffect(KoStyleStyle* style, size_t index) {
  return converted<IStyle, KoStyleEffect>(style, &IStyle::audioEffect, index);
}
KoStyleEffect* Style_midiEffect(KoStyleStyle* style, size_t index) {
  return converted<IStyle, KoStyleEffect>(style, &IStyle::midiEffect, index);
}

KoStyleStyle* SystemStyle_next(KoStyleStyle* style) {
  return converted<ISystemStyle, KoStyleStyle>(style, &ISystemStyle::next);
}
KoStyleStyle* SystemStyle_prev(KoStyleStyle* style) {
  return converted<ISystemStyle, KoStyleStyle>(style, &ISystemStyle::prev);
}

KoStyleStyle* UserStyle_next(KoStyleStyle* style) {
  return converted<IUserStyle, KoStyleStyle>(style, &IUserStyle::next);
}
KoStyleStyle* UserStyle_prev(KoStyleStyle* style) {
  return converted<IUserStyle, KoStyleStyle>(style, &IUserStyle::prev);
}

int UserStyle_remove(KoStyleStyle* style) try {
  return checked<IUserStyle, int>(style, &IUserStyle::remove, KOSTYLE_ERROR_INVALID_HANDLE);
} catch (...) {
  return KOSTYLE_ERROR_INVALID_HANDLE;
}

KoStylePropertyEditor* UserStyle_createPropertyEditor(KoStyleStyle* style) {
  return checked<IUserStyle, KoStylePropertyEditor*>(style, &IUserStyle::createPropertyEditor, nullptr);
}
void UserStyle_destroyPropertyEditor(KoStyleStyle* style) {
  checkedVoid<IUserStyle>(style, &IUserStyle::destroyPropertyEditor);
}
