// The calls of a walk, of the library and of the plain structs, under common names.
#pragma once

#include <kostyle/kostyle.h>

#include "plain/plain.h"

namespace bench {

struct LibraryApi {
  using Styles = KoStyleManager;
  using Style = KoStyleStyle;
  using Effect = KoStyleEffect;
  using Parameter = KoStyleParameter;
  using Text = const KoStyleChar*;

  static std::size_t numStyle(Styles* s) { return StyleManager_numSystemStyle(s); }
  static Style* style(Styles* s, std::size_t i) { return StyleManager_systemStyle(s, i); }
  static Style* next(Style* s) { return SystemStyle_next(s); }
  static Text id(Style* s) { return Style_id(s); }
  static Text name(Style* s) { return Style_name(s); }
  static Text vendor(Style* s) { return Style_vendor(s); }
  static std::size_t numSingerGroup(Style* s) { return Style_numSingerGroup(s); }
  static Text singerGroup(Style* s, std::size_t i) { return Style_singerGroup(s, i); }
  static std::size_t numSingerID(Style* s) { return Style_numSingerID(s); }
  static Text singerID(Style* s, std::size_t i) { return Style_singerID(s, i); }
  static std::size_t numGenre(Style* s) { return Style_numGenre(s); }
  static Text genre(Style* s, std::size_t i) { return Style_genre(s, i); }
  static std::size_t numSubGenre(Style* s) { return Style_numSubGenre(s); }
  static Text subGenre(Style* s, std::size_t i) { return Style_subGenre(s, i); }
  static std::size_t numColor(Style* s) { return Style_numColor(s); }
  static Text color(Style* s, std::size_t i) { return Style_color(s, i); }
  static std::size_t numAudio(Style* s) { return Style_numAudioEffect(s); }
  static Effect* audio(Style* s, std::size_t i) { return Style_audioEffect(s, i); }
  static Effect* nextAudio(Effect* e) { return AudioEffect_next(e); }
  static std::size_t numMidi(Style* s) { return Style_numMidiEffect(s); }
  static Effect* midi(Style* s, std::size_t i) { return Style_midiEffect(s, i); }
  static Effect* nextMidi(Effect* e) { return MidiEffect_next(e); }
  static Text id(Effect* e) { return Effect_id(e); }
  static std::size_t numParameter(Effect* e) { return Effect_numParameter(e); }
  static Parameter* parameter(Effect* e, std::size_t i) { return Effect_parameter(e, i); }
  static Parameter* next(Parameter* p) { return Parameter_next(p); }
  static Text name(Parameter* p) { return Parameter_name(p); }
  static int type(Parameter* p) { return Parameter_type(p); }
  static int integer(Parameter* p) { return Parameter_valueInt(p); }
  static float number(Parameter* p) { return Parameter_valueFloat(p); }
  static Text text(Parameter* p) { return Parameter_valueString(p); }
};

struct PlainApi {
  using Styles = PlainStyles;
  using Style = PlainStyle;
  using Effect = PlainEffect;
  using Parameter = PlainParameter;
  using Text = const KoStyleChar*;

  static std::size_t numStyle(Styles* s) { return Plain_numStyle(s); }
  static Style* style(Styles* s, std::size_t i) { return Plain_style(s, i); }
  static Style* next(Style* s) { return PlainStyle_next(s); }
  static Text id(Style* s) { return PlainStyle_id(s); }
  static Text name(Style* s) { return PlainStyle_name(s); }
  static Text vendor(Style* s) { return PlainStyle_vendor(s); }
  static std::size_t numSingerGroup(Style* s) { return PlainStyle_numSingerGroup(s); }
  static Text singerGroup(Style* s, std::size_t i) { return PlainStyle_singerGroup(s, i); }
  static std::size_t numSingerID(Style* s) { return PlainStyle_numSingerID(s); }
  static Text singerID(Style* s, std::size_t i) { return PlainStyle_singerID(s, i); }
  static std::size_t numGenre(Style* s) { return PlainStyle_numGenre(s); }
  static Text genre(Style* s, std::size_t i) { return PlainStyle_genre(s, i); }
  static std::size_t numSubGenre(Style* s) { return PlainStyle_numSubGenre(s); }
  static Text subGenre(Style* s, std::size_t i) { return PlainStyle_subGenre(s, i); }
  static std::size_t numColor(Style* s) { return PlainStyle_numColor(s); }
  static Text color(Style* s, std::size_t i) { return PlainStyle_color(s, i); }
  static std::size_t numAudio(Style* s) { return PlainStyle_numAudioEffect(s); }
  static Effect* audio(Style* s, std::size_t i) { return PlainStyle_audioEffect(s, i); }
  static Effect* nextAudio(Effect* e) { return PlainAudioEffect_next(e); }
  static std::size_t numMidi(Style* s) { return PlainStyle_numMidiEffect(s); }
  static Effect* midi(Style* s, std::size_t i) { return PlainStyle_midiEffect(s, i); }
  static Effect* nextMidi(Effect* e) { return PlainMidiEffect_next(e); }
  static Text id(Effect* e) { return PlainEffect_id(e); }
  static std::size_t numParameter(Effect* e) { return PlainEffect_numParameter(e); }
  static Parameter* parameter(Effect* e, std::size_t i) { return PlainEffect_parameter(e, i); }
  static Parameter* next(Parameter* p) { return PlainParameter_next(p); }
  static Text name(Parameter* p) { return PlainParameter_name(p); }
  static int type(Parameter* p) { return PlainParameter_type(p); }
  static int integer(Parameter* p) { return PlainParameter_valueInt(p); }
  static float number(Parameter* p) { return PlainParameter_valueFloat(p); }
  static Text text(Parameter* p) { return PlainParameter_valueString(p); }
};

}  // namespace bench
