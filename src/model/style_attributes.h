// The descriptive attributes of a style, and the rules by which a value is taken into them.
#pragma once

#include <kostyle/codes.h>

#include "model/sorted_set.h"
#include "platform/text.h"

namespace Tesk::KoStyle {

/// Whether a style may be given this name.
inline bool isStyleName(TextView name) {
  return !name.empty() && name.size() <= KOSTYLE_MAX_NAME_LENGTH;
}

struct StyleAttributes {
  SortedSet<int> languages;
  SortedSet<Text> singerGroups;
  SortedSet<Text> singerIDs;
  SortedSet<Text> genres;
  SortedSet<Text> subGenres;
  SortedSet<Text> colors;

  // Each answers whether the value was taken; a value that is there already is refused too.
  bool addLanguage(int language) { return isLanguage(language) && languages.insert(language); }
  bool addSingerGroup(TextView text) { return !text.empty() && singerGroups.insert(text); }
  bool addSingerID(TextView text) {
    return text.size() == KOSTYLE_SINGER_ID_LENGTH && singerIDs.insert(text);
  }
  bool addGenre(TextView text) { return !text.empty() && genres.insert(text); }
  bool addSubGenre(TextView text) { return !text.empty() && subGenres.insert(text); }
  bool addColor(TextView text) { return !text.empty() && colors.insert(text); }

  static bool isLanguage(int language) {
    return language >= KOSTYLE_MIN_LANGUAGE && language <= KOSTYLE_MAX_LANGUAGE;
  }
};

}  // namespace Tesk::KoStyle
