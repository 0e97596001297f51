#include "reading/attributes.h"

#include "basics/text.h"

namespace tool {

const TextLists& textLists() {
  static const TextLists lists{{
      {"singer-group", "singer groups", "singerGroups", "empty", Style_numSingerGroup,
       Style_singerGroup, MutableStyle_addSingerGroup, MutableStyle_deleteSingerGroup},
      {"singer-id", "singer ids", "singerIDs", "not 16 UTF-16 units long", Style_numSingerID,
       Style_singerID, MutableStyle_addSingerID, MutableStyle_deleteSingerID},
      {"genre", "genres", "genres", "empty", Style_numGenre, Style_genre, MutableStyle_addGenre,
       MutableStyle_deleteGenre},
      {"sub-genre", "sub-genres", "subGenres", "empty", Style_numSubGenre, Style_subGenre,
       MutableStyle_addSubGenre, MutableStyle_deleteSubGenre},
      {"color", "colors", "colors", "empty", Style_numColor, Style_color, MutableStyle_addColor,
       MutableStyle_deleteColor},
  }};
  return lists;
}

const Chains& chains() {
  static const Chains both{{
      {"audio", "audio-effect", "audio effects", "audioEffects", Style_numAudioEffect,
       Style_audioEffect, MutableStyle_audioEffect, MutableStyle_insertAudioEffect},
      {"midi", "midi-effect", "MIDI effects", "midiEffects", Style_numMidiEffect, Style_midiEffect,
       MutableStyle_midiEffect, MutableStyle_insertMidiEffect},
  }};
  return both;
}

std::vector<std::string> values(const TextList& list, KoStyleStyle* style) {
  std::vector<std::string> result;
  for (std::size_t i = 0; i < list.count(style); ++i) result.push_back(toUtf8(list.at(style, i)));
  return result;
}

std::vector<int> languages(KoStyleStyle* style) {
  std::vector<int> result;
  for (std::size_t i = 0; i < Style_numLanguage(style); ++i) result.push_back(Style_language(style, i));
  return result;
}

}  // namespace tool
