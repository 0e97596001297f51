/*
 * KoStyle for C++: system and user styles.
 */
#ifndef KOSTYLE_CPP_STYLE_HPP
#define KOSTYLE_CPP_STYLE_HPP

#include <cstddef>
#include <filesystem>
#include <iterator>

#include "../style.h"
#include "attributes.hpp"
#include "effect.hpp"
#include "path.hpp"
#include "range.hpp"
#include "result.hpp"
#include "text.hpp"

namespace kostyle {

class PropertyEditor;

namespace detail {

struct AudioEffectList {
  using Owner = KoStyleStyle;
  using Value = AudioEffect;
  static std::size_t count(Owner* style) noexcept { return Style_numAudioEffect(style); }
  static Value at(Owner* style, std::size_t index) noexcept {
    return Value(Style_audioEffect(style, index));
  }
};

struct MidiEffectList {
  using Owner = KoStyleStyle;
  using Value = MidiEffect;
  static std::size_t count(Owner* style) noexcept { return Style_numMidiEffect(style); }
  static Value at(Owner* style, std::size_t index) noexcept {
    return Value(Style_midiEffect(style, index));
  }
};

}  // namespace detail

/** The audio chain of a stored style. */
using AudioEffects = IndexRange<detail::AudioEffectList, std::random_access_iterator_tag>;

/** The MIDI chain of a stored style. */
using MidiEffects = IndexRange<detail::MidiEffectList, std::random_access_iterator_tag>;

/**
 * A stored style: a system or a user style. It ends when its set is read again, and with its manager. Its
 * manager owns it; it owns its effects, and they own their parameters.
 */
class StoredStyle : public StyleWithAttributes<std::random_access_iterator_tag> {
 public:
  /** Those of View: empty, or of a handle of the C interface, which must be of this kind, or NULL. */
  using StyleWithAttributes::StyleWithAttributes;

  /**
   * The identifier, unique over the manager's system and user styles; never changes, nor does its text
   * move.
   */
  Text id() const noexcept { return Text(Style_id(handle())); }

  /** The path of the style's file: the directory as it was given, a separator and the file's name. */
  std::filesystem::path path() const { return toPath(pathText()); }

  /** path() as the library has it: a text that lives as long as the style, and never changes. */
  Text pathText() const noexcept { return Text(Style_path(handle())); }

  /**
   * The vendor text; empty when the file has none. The library never writes it: a style that it overwrites
   * or edits loses the text in its file, and keeps it in memory until the set is read again.
   */
  Text vendor() const noexcept { return Text(Style_vendor(handle())); }

  /** The audio chain, in its order, which is that of the file. */
  AudioEffects audioEffects() const noexcept { return AudioEffects(handle()); }
  /** The MIDI chain, in its order, which is that of the file. */
  MidiEffects midiEffects() const noexcept { return MidiEffects(handle()); }

  /** Whether an effect is in the audio chain. It is only compared, so it may have ended. */
  bool has(AudioEffect effect) const noexcept {
    return Style_hasAudioEffect(handle(), effect.handle());
  }
  /** Whether an effect is in the MIDI chain. It is only compared, so it may have ended. */
  bool has(MidiEffect effect) const noexcept { return Style_hasMidiEffect(handle(), effect.handle()); }
};

/** A system style: read from a system style directory, and never changed by the library. */
class SystemStyle : public StoredStyle {
 public:
  /** Those of View: empty, or of a handle of the C interface, which must be of this kind, or NULL. */
  using StoredStyle::StoredStyle;

  /** The system style after this one in its manager; empty at the end. */
  SystemStyle next() const noexcept { return SystemStyle(SystemStyle_next(handle())); }

  /** The system style before this one in its manager; empty at the front. */
  SystemStyle previous() const noexcept { return SystemStyle(SystemStyle_prev(handle())); }
};

/**
 * A user style: read from or saved to a user style directory. It ends as other stored styles do, and by
 * remove(). MutableStyle::overwrite() ends its effects, and a property editor some of its texts.
 */
class UserStyle : public StoredStyle {
 public:
  /** Those of View: empty, or of a handle of the C interface, which must be of this kind, or NULL. */
  using StoredStyle::StoredStyle;

  /** The user style after this one in its manager; empty at the end. */
  UserStyle next() const noexcept { return UserStyle(UserStyle_next(handle())); }

  /** The user style before this one in its manager; empty at the front. */
  UserStyle previous() const noexcept { return UserStyle(UserStyle_prev(handle())); }

  /**
   * Deletes the style's file and the style, with every view and text reached through it. Creation results
   * stay. A directory in the file's place is removed when it is empty. On failure nothing has changed.
   *
   * @return success; KOSTYLE_ERROR_INVALID_HANDLE for an empty view or when memory ran out;
   *         KOSTYLE_ERROR_DELETE_FAILED when the file is missing or the system refuses.
   */
  Result<void> remove() const noexcept { return Error(UserStyle_remove(handle())); }

  /**
   * Makes a property editor of the style, with nothing collected; one that the style had ends.
   *
   * @return the editor, owned by the style; an empty view for an empty view.
   */
  PropertyEditor edit() const;

  /** Destroys the style's property editor, if it has one, with what it collected. */
  void endEdit() const noexcept { UserStyle_destroyPropertyEditor(handle()); }
};

inline StoredStyle StoredEffect::style() const noexcept { return StoredStyle(Effect_parent(handle())); }

}  // namespace kostyle

#endif
