/*
 * KoStyle for C++: mutable styles, to become new user styles or the new content of one.
 */
#ifndef KOSTYLE_CPP_MUTABLE_STYLE_HPP
#define KOSTYLE_CPP_MUTABLE_STYLE_HPP

#include <cstddef>
#include <cstdint>
#include <iterator>

#include "../mutable_style.h"
#include "attributes.hpp"
#include "effect.hpp"
#include "range.hpp"
#include "result.hpp"
#include "style.hpp"
#include "text.hpp"

namespace kostyle {

namespace detail {

struct MutableAudioEffectList {
  using Owner = KoStyleStyle;
  using Value = MutableAudioEffect;
  static std::size_t count(Owner* style) noexcept { return Style_numAudioEffect(style); }
  static Value at(Owner* style, std::size_t index) noexcept {
    return Value(MutableStyle_audioEffect(style, index));
  }
};

struct MutableMidiEffectList {
  using Owner = KoStyleStyle;
  using Value = MutableMidiEffect;
  static std::size_t count(Owner* style) noexcept { return Style_numMidiEffect(style); }
  static Value at(Owner* style, std::size_t index) noexcept {
    return Value(MutableStyle_midiEffect(style, index));
  }
};

}  // namespace detail

/** The audio chain of a mutable style. */
using MutableAudioEffects = LinkedRange<detail::MutableAudioEffectList>;

/** The MIDI chain of a mutable style. */
using MutableMidiEffects = LinkedRange<detail::MutableMidiEffectList>;

/** How a file is laid out. */
enum class Layout : bool {
  /** Without white space. */
  compact,
  /** One line for each member, indented by 4 spaces. */
  pretty
};

/**
 * A mutable style: one in memory that is being made. ManagerView::createMutableStyle() makes one; the manager
 * owns it until destroy(), a successful save or overwrite, or its own end. Then this view, those of effects
 * and parameters, and all texts reached through them end.
 *
 * A function that changes the style gives false, or an empty view, when it refuses its argument, and for an
 * empty view; then nothing has changed. Texts are copied.
 */
class MutableStyle : public StyleWithAttributes<std::bidirectional_iterator_tag> {
 public:
  /** Those of View: empty, or of a handle of the C interface, which must be of this kind, or NULL. */
  using StyleWithAttributes::StyleWithAttributes;

  /** The audio chain, live. */
  MutableAudioEffects audioEffects() const noexcept { return MutableAudioEffects(handle()); }
  /** The MIDI chain, live. */
  MutableMidiEffects midiEffects() const noexcept { return MutableMidiEffects(handle()); }

  /** Whether an effect is in the audio chain. It is only compared, so it may have ended. */
  bool has(MutableAudioEffect effect) const noexcept {
    return Style_hasAudioEffect(handle(), effect.handle());
  }
  /** Whether an effect is in the MIDI chain. It is only compared, so it may have ended. */
  bool has(MutableMidiEffect effect) const noexcept {
    return Style_hasMidiEffect(handle(), effect.handle());
  }

  /**
   * Sets the name, of 1 to KOSTYLE_MAX_NAME_LENGTH UTF-16 units; the old name's text ends. false when the name
   * is refused and the old one stays.
   */
  bool setName(const TextArgument& name) const { return MutableStyle_setName(handle(), name.c_str()); }

  /**
   * Adds a language, from KOSTYLE_MIN_LANGUAGE to KOSTYLE_MAX_LANGUAGE; false when it is another, or
   * present.
   */
  bool addLanguage(int language) const { return MutableStyle_addLanguage(handle(), language); }

  /** Deletes a language; false when it is not present. */
  bool deleteLanguage(int language) const { return MutableStyle_deleteLanguage(handle(), language); }

  /** Adds a singer group; false when it is empty or present. */
  bool addSingerGroup(const TextArgument& singerGroup) const {
    return MutableStyle_addSingerGroup(handle(), singerGroup.c_str());
  }

  /** Deletes a singer group; false when it is not present. */
  bool deleteSingerGroup(const TextArgument& singerGroup) const {
    return MutableStyle_deleteSingerGroup(handle(), singerGroup.c_str());
  }

  /**
   * Adds a singer identifier; false when it is not of KOSTYLE_SINGER_ID_LENGTH UTF-16 units, or present.
   */
  bool addSingerID(const TextArgument& singerID) const {
    return MutableStyle_addSingerID(handle(), singerID.c_str());
  }

  /** Deletes a singer identifier; false when it is not present. */
  bool deleteSingerID(const TextArgument& singerID) const {
    return MutableStyle_deleteSingerID(handle(), singerID.c_str());
  }

  /** Adds a genre; false when it is empty or present. */
  bool addGenre(const TextArgument& genre) const {
    return MutableStyle_addGenre(handle(), genre.c_str());
  }

  /** Deletes a genre; false when it is not present. */
  bool deleteGenre(const TextArgument& genre) const {
    return MutableStyle_deleteGenre(handle(), genre.c_str());
  }

  /** Adds a sub-genre; false when it is empty or present. */
  bool addSubGenre(const TextArgument& subGenre) const {
    return MutableStyle_addSubGenre(handle(), subGenre.c_str());
  }

  /** Deletes a sub-genre; false when it is not present. */
  bool deleteSubGenre(const TextArgument& subGenre) const {
    return MutableStyle_deleteSubGenre(handle(), subGenre.c_str());
  }

  /** Adds a colour; false when it is empty or present. */
  bool addColor(const TextArgument& color) const {
    return MutableStyle_addColor(handle(), color.c_str());
  }

  /** Deletes a colour; false when it is not present. */
  bool deleteColor(const TextArgument& color) const {
    return MutableStyle_deleteColor(handle(), color.c_str());
  }

  /**
   * Inserts a new effect without parameters into the audio chain.
   *
   * @param index zero-based position of the new effect; at or past the end it is appended.
   * @param id the identifier; not empty; not that of another effect of the chain.
   * @return the effect, owned by the style; empty when the identifier is refused.
   */
  MutableAudioEffect insertAudioEffect(std::size_t index, const TextArgument& id) const {
    return MutableAudioEffect(MutableStyle_insertAudioEffect(handle(), index, id.c_str()));
  }

  /**
   * Inserts a new effect without parameters into the MIDI chain, as insertAudioEffect() does into the
   * other.
   */
  MutableMidiEffect insertMidiEffect(std::size_t index, const TextArgument& id) const {
    return MutableMidiEffect(MutableStyle_insertMidiEffect(handle(), index, id.c_str()));
  }

  /**
   * Inserts a new effect without parameters at the end of the audio chain, as insertAudioEffect() does.
   */
  MutableAudioEffect appendAudioEffect(const TextArgument& id) const {
    return insertAudioEffect(SIZE_MAX, id);
  }

  /** Inserts a new effect without parameters at the end of the MIDI chain, as insertMidiEffect() does. */
  MutableMidiEffect appendMidiEffect(const TextArgument& id) const {
    return insertMidiEffect(SIZE_MAX, id);
  }

  /**
   * Writes the style as a new file of the user style directory, under a new UUID as identifier and file
   * name, and adds it at the end of the manager's user styles, without a creation result. On success the
   * mutable style is destroyed. On failure nothing changes, but that the user directory may exist now.
   *
   * What goes wrong while the file is being written, a full disk for instance, and what does not come back
   * from the file give no error: safeSave() takes care of both.
   *
   * @param layout how the file is laid out.
   * @return the new user style, or the first that applies of KOSTYLE_ERROR_ARGUMENT_MISSING (the style has
   *         no name), KOSTYLE_ERROR_USER_DIRECTORY_NOT_CREATABLE, KOSTYLE_ERROR_OPEN_FAILED and
   *         KOSTYLE_ERROR_NO_EFFECT; KOSTYLE_ERROR_INVALID_HANDLE for an empty view.
   */
  Result<UserStyle> save(Layout layout = Layout::compact) const {
    int code = KOSTYLE_ERROR_INVALID_HANDLE;
    const UserStyle saved(MutableStyle_save(handle(), layout == Layout::pretty, &code));
    if (!saved) return Error(code);
    return saved;
  }

  /**
   * Writes the style over the file of a user style, which takes the new content. On failure nothing changes
   * in memory, and on disk only the user directory may be new. On success the mutable style is destroyed,
   * and of the user style
   *
   *  - stay: its place among the user styles; the texts of its id(), pathText() and vendor(), and those of a
   *    name and of whole attribute lists that the mutable style has alike; its property editor;
   *  - end: the texts of a name and of attribute lists that change, its effects and their parameters.
   *
   * The new file is written into the user style directory, the old one is deleted, and the new one renamed.
   * What goes wrong while writing or renaming gives no error, and no copy of the old file is kept:
   * safeOverwrite() takes care of that.
   *
   * @param target the user style, which is found by its id(): one of another manager stands for the user style
   *        of this manager that has the same.
   * @param layout how the file is laid out.
   * @return the user style, or the first that applies of KOSTYLE_ERROR_USER_STYLE_NOT_FOUND (the manager has
   *         none with the identifier), KOSTYLE_ERROR_USER_DIRECTORY_NOT_CREATABLE, KOSTYLE_ERROR_OPEN_FAILED (of
   *         the new file), KOSTYLE_ERROR_WRITE_EMPTY_NAME (the style has no name), KOSTYLE_ERROR_NO_EFFECT
   *         and KOSTYLE_ERROR_TARGET_NOT_REPLACEABLE; KOSTYLE_ERROR_INVALID_HANDLE when this view is empty,
   *         and KOSTYLE_ERROR_ARGUMENT_MISSING when `target` is.
   */
  Result<UserStyle> overwrite(UserStyle target, Layout layout = Layout::compact) const {
    int code = KOSTYLE_ERROR_INVALID_HANDLE;
    const UserStyle written(
        MutableStyle_overwrite(handle(), Style_id(target.handle()), layout == Layout::pretty, &code));
    if (!written) return Error(code);
    return written;
  }

  /**
   * Destroys the style with its effects and their parameters; all views and texts reached through it end.
   */
  void destroy() const noexcept { MutableStyle_destroy(handle()); }
};

inline MutableStyle MutableEffect::style() const noexcept {
  return MutableStyle(MutableEffect_parent(handle()));
}

}  // namespace kostyle

#endif
