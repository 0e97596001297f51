// The descriptive attributes of a style, and the rules by which a value is taken into them.
#pragma once

#include <kostyle/codes.h>

#include <array>
#include <cstddef>

#include "containers/memory_pool.h"
#include "model/language_set.h"
#include "platform/text.h"

namespace Tesk::KoStyle {

/// The attributes that are lists of texts, in the order in which documents hold them.
enum class Attribute : std::size_t { singerGroup, singerID, genre, subGenre, color };
inline constexpr std::array textAttributes = {Attribute::singerGroup, Attribute::singerID,
                                              Attribute::genre, Attribute::subGenre, Attribute::color};

/// Whether a list may hold this text.
inline bool isAttributeText(Attribute attribute, TextView text) noexcept {
  return attribute == Attribute::singerID ? text.size() == KOSTYLE_SINGER_ID_LENGTH : !text.empty();
}

/// Whether a style may be given this name.
inline bool isStyleName(TextView name) noexcept {
  return !name.empty() && name.size() <= KOSTYLE_MAX_NAME_LENGTH;
}

/// `List` holds texts in ascending order without duplicates.
template <class List>
struct Attributes {
  Attributes() = default;
  /// Lists with memory of a pool.
  explicit Attributes(MemoryPool* pool) noexcept
      : lists{List(pool), List(pool), List(pool), List(pool), List(pool)} {}

  LanguageSet languages;
  std::array<List, textAttributes.size()> lists;

  List& operator[](Attribute attribute) noexcept { return lists[static_cast<std::size_t>(attribute)]; }
  const List& operator[](Attribute attribute) const noexcept {
    return lists[static_cast<std::size_t>(attribute)];
  }
};

}  // namespace Tesk::KoStyle
