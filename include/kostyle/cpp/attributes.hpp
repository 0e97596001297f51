/*
 * KoStyle for C++: the attribute lists that styles of every kind have.
 */
#ifndef KOSTYLE_CPP_ATTRIBUTES_HPP
#define KOSTYLE_CPP_ATTRIBUTES_HPP

#include <cstddef>

#include "../style.h"
#include "range.hpp"
#include "text.hpp"
#include "view.hpp"

namespace kostyle {

class ManagerView;

namespace detail {

struct LanguageList {
  using Owner = KoStyleStyle;
  using Value = int;
  static std::size_t count(Owner* style) noexcept { return Style_numLanguage(style); }
  static Value at(Owner* style, std::size_t index) noexcept { return Style_language(style, index); }
};

struct SingerGroupList {
  using Owner = KoStyleStyle;
  using Value = Text;
  static std::size_t count(Owner* style) noexcept { return Style_numSingerGroup(style); }
  static Value at(Owner* style, std::size_t index) noexcept {
    return Text(Style_singerGroup(style, index));
  }
};

struct SingerIDList {
  using Owner = KoStyleStyle;
  using Value = Text;
  static std::size_t count(Owner* style) noexcept { return Style_numSingerID(style); }
  static Value at(Owner* style, std::size_t index) noexcept {
    return Text(Style_singerID(style, index));
  }
};

struct GenreList {
  using Owner = KoStyleStyle;
  using Value = Text;
  static std::size_t count(Owner* style) noexcept { return Style_numGenre(style); }
  static Value at(Owner* style, std::size_t index) noexcept { return Text(Style_genre(style, index)); }
};

struct SubGenreList {
  using Owner = KoStyleStyle;
  using Value = Text;
  static std::size_t count(Owner* style) noexcept { return Style_numSubGenre(style); }
  static Value at(Owner* style, std::size_t index) noexcept {
    return Text(Style_subGenre(style, index));
  }
};

struct ColorList {
  using Owner = KoStyleStyle;
  using Value = Text;
  static std::size_t count(Owner* style) noexcept { return Style_numColor(style); }
  static Value at(Owner* style, std::size_t index) noexcept { return Text(Style_color(style, index)); }
};

}  // namespace detail

/**
 * A style of any kind: system, user or mutable. Its manager owns it and, with it, the texts that it returns:
 * each stays until the style ends or that value of it changes.
 */
class Style : public View<KoStyleStyle> {
 public:
  /** Those of View: empty, or of a handle of the C interface, which must be of this kind, or NULL. */
  using View::View;

  /** The kind, of enum KoStyleKind; KOSTYLE_KIND_NONE for an empty view. */
  int type() const noexcept { return Style_type(handle()); }

  /** The manager that owns the style; empty for an empty view. */
  ManagerView manager() const noexcept;

  /**
   * The display name; empty when the file's name is longer than KOSTYLE_MAX_NAME_LENGTH units, and for a
   * mutable style that has none yet.
   */
  Text name() const noexcept { return Text(Style_name(handle())); }
};

/**
 * A style with its attribute lists, each in ascending order, texts by their units. The ranges are live: they
 * show what the style has when they are asked.
 *
 * Category is that of their iterators: random access for stored styles, bidirectional for mutable ones,
 * where an index takes logarithmic time.
 */
template <class Category>
class StyleWithAttributes : public Style {
 public:
  /** Those of View: empty, or of a handle of the C interface, which must be of this kind, or NULL. */
  using Style::Style;

  /** The range of one of the lists: of numbers (`int`) for languages(), of Text for the others. */
  template <class List>
  using Range = IndexRange<List, Category>;

  /**
   * The languages: numbers from KOSTYLE_MIN_LANGUAGE to KOSTYLE_MAX_LANGUAGE, to which the host gives a
   * meaning.
   */
  Range<detail::LanguageList> languages() const noexcept {
    return Range<detail::LanguageList>(handle());
  }
  /** The singer groups, none of them empty. */
  Range<detail::SingerGroupList> singerGroups() const noexcept {
    return Range<detail::SingerGroupList>(handle());
  }
  /**
   * The singer identifiers, each of KOSTYLE_SINGER_ID_LENGTH UTF-16 units; one of a file that holds U+0000 ends
   * there for the host, and so has fewer.
   */
  Range<detail::SingerIDList> singerIDs() const noexcept {
    return Range<detail::SingerIDList>(handle());
  }
  /** The genres, none of them empty. */
  Range<detail::GenreList> genres() const noexcept { return Range<detail::GenreList>(handle()); }
  /** The sub-genres, none of them empty. */
  Range<detail::SubGenreList> subGenres() const noexcept {
    return Range<detail::SubGenreList>(handle());
  }
  /** The colours: any texts that are not empty. */
  Range<detail::ColorList> colors() const noexcept { return Range<detail::ColorList>(handle()); }
};

}  // namespace kostyle

#endif
