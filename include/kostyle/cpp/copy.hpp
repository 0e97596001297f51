/*
 * KoStyle for C++: mutable copies of styles.
 */
#ifndef KOSTYLE_CPP_COPY_HPP
#define KOSTYLE_CPP_COPY_HPP

#include <string>
#include <utility>

#include "find_problems.hpp"
#include "manager.hpp"
#include "mutable_style.hpp"
#include "problem.hpp"
#include "style.hpp"
#include "text.hpp"

namespace kostyle {
namespace detail {

// A mutable style that is destroyed with the object, unless it was released or the library ended it.
class OwnedMutableStyle {
 public:
  explicit OwnedMutableStyle(ManagerView manager) : style_(manager.createMutableStyle()) {}
  OwnedMutableStyle(const OwnedMutableStyle&) = delete;
  OwnedMutableStyle& operator=(const OwnedMutableStyle&) = delete;
  ~OwnedMutableStyle() { style_.destroy(); }

  MutableStyle get() const noexcept { return style_; }
  MutableStyle release() noexcept { return std::exchange(style_, {}); }

 private:
  MutableStyle style_;
};

// Copies a style of any kind into an empty mutable one: as it is, or as reading its file would give it.
class StyleCopier {
 public:
  enum class Form { asItIs, asRead };

  StyleCopier(MutableStyle to, Form form) noexcept : to_(to), form_(form) {}

  template <class AnyStyle>
  void copy(AnyStyle from) {
    if (!to_.setName(from.name())) lose(ProblemKind::nameMissing, "name");
    for (const int language : from.languages()) to_.addLanguage(language);
    copyList("singerGroups", from.singerGroups(), &MutableStyle::addSingerGroup);
    copyList("singerIDs", from.singerIDs(), &MutableStyle::addSingerID);
    copyList("genres", from.genres(), &MutableStyle::addGenre);
    copyList("subGenres", from.subGenres(), &MutableStyle::addSubGenre);
    copyList("colors", from.colors(), &MutableStyle::addColor);
    copyChain("audio", from.audioEffects(), &MutableStyle::appendAudioEffect);
    copyChain("midi", from.midiEffects(), &MutableStyle::appendMidiEffect);
  }

  void lose(ProblemKind kind, std::string where) { losses_.push_back({kind, std::move(where)}); }

  Problems takeLosses() noexcept { return std::move(losses_); }

 private:
  template <class List>
  void copyList(const char* name, const List& list,
                bool (MutableStyle::*add)(const TextArgument&) const) {
    for (const Text text : list)
      if (!(to_.*add)(text)) lose(ProblemKind::textLost, std::string(name) + '/' + text.utf8());
  }

  template <class Chain, class MutableKind>
  void copyChain(const char* name, const Chain& chain,
                 MutableKind (MutableStyle::*append)(const TextArgument&) const) {
    for (const auto effect : chain) {
      if (form_ == Form::asRead && effect.parameters().empty()) continue;
      const std::string where = std::string(name) + '/' + effect.id().utf8();
      if (const MutableEffect copied = (to_.*append)(effect.id())) {
        copyParameters(where, effect, copied);
      } else {
        lose(ProblemKind::textLost, where);
      }
    }
  }

  template <class AnyEffect>
  void copyParameters(const std::string& where, AnyEffect from, MutableEffect to) {
    for (const Parameter parameter : from.parameters()) {
      const Text name = form_ == Form::asRead ? nameAsRead(parameter.name()) : parameter.name();
      if (!to.addParameter(name, parameter.value()))
        lose(ProblemKind::textLost, where + '/' + parameter.name().utf8());
    }
  }

  MutableStyle to_;
  Form form_;
  Problems losses_;
};

}  // namespace detail

/** A mutable style that was copied from a stored one, and what could not be copied. */
struct MutableCopy {
  /** The copy, owned by its manager as every mutable style is. */
  MutableStyle style;

  /**
   * What is missing of it: `vendorLost`, `nameMissing` and `textLost`; empty when everything was copied.
   */
  Problems notCopied;
};

/**
 * Creates a mutable style with everything that a stored style has: name, attributes, both chains with their
 * parameters. What cannot be copied is listed: the vendor text; a name longer than a style may have, which
 * the stored style does not show either; and texts that hold U+0000 when what stands in front of it is
 * refused. Of other texts with U+0000 what stands behind it is not seen, and so neither copied nor listed.
 *
 * @param style of any manager; an empty view has nothing, so `nameMissing` is listed.
 * @param manager owns the new style, as if by createMutableStyle(). When memory runs out there is none.
 */
inline MutableCopy createMutableCopy(StoredStyle style, ManagerView manager) {
  detail::OwnedMutableStyle copy(manager);
  detail::StyleCopier copier(copy.get(), detail::StyleCopier::Form::asItIs);
  if (!style.vendor().empty()) copier.lose(ProblemKind::vendorLost, "vendor");
  copier.copy(style);
  return {copy.release(), copier.takeLosses()};
}

/** As the other createMutableCopy(), in the manager of the stored style. */
inline MutableCopy createMutableCopy(StoredStyle style) {
  return createMutableCopy(style, style.manager());
}

}  // namespace kostyle

#endif
