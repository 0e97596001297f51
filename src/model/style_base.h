// StyleBase: what every style has: its manager, kind, identifier, name, path, attributes and chains.
#pragma once

#include <kostyle/codes.h>

#include <cstddef>
#include <cstdint>
#include <memory>

#include "api/interfaces.h"
#include "model/effect_base.h"
#include "model/style_attributes.h"

namespace Tesk::KoStyle {

class StyleManager;

enum class StyleKind : std::uint32_t {
  system = KOSTYLE_KIND_SYSTEM,
  user = KOSTYLE_KIND_USER,
  editable = KOSTYLE_KIND_MUTABLE
};

/// All of a style that an overwrite replaces.
struct StyleContent {
  Text id;
  Text name;
  Text path;
  StyleAttributes attributes;
  EffectChain audioEffects;
  EffectChain midiEffects;

  EffectChain& chain(EffectKind kind) { return kind == EffectKind::audio ? audioEffects : midiEffects; }
  const EffectChain& chain(EffectKind kind) const {
    return kind == EffectKind::audio ? audioEffects : midiEffects;
  }

  void swap(StyleContent& other) noexcept;
};

class StyleBase : public virtual IStyleBase {
 public:
  virtual ~StyleBase() = default;

  IStyleManager* parent() const final;
  std::uint32_t type() const final { return static_cast<std::uint32_t>(kind_); }
  const Char* id() const final { return content_.id.c_str(); }
  const Char* path() const final { return content_.path.c_str(); }
  const Char* name() const final { return content_.name.c_str(); }
  std::size_t numLanguage() const final { return content_.attributes.languages.size(); }
  std::int32_t language(const std::size_t& index) const final;
  int minLangID() const final;
  int maxLangID() const final;
  std::size_t numSingerGroup() const final { return content_.attributes.singerGroups.size(); }
  const Char* singerGroup(const std::size_t& index) const final;
  std::size_t numSingerID() const final { return content_.attributes.singerIDs.size(); }
  const Char* singerID(const std::size_t& index) const final;
  int singerIDLength() const final;
  std::size_t numGenre() const final { return content_.attributes.genres.size(); }
  const Char* genre(const std::size_t& index) const final;
  std::size_t numSubGenre() const final { return content_.attributes.subGenres.size(); }
  const Char* subGenre(const std::size_t& index) const final;
  std::size_t numColor() const final { return content_.attributes.colors.size(); }
  const Char* color(const std::size_t& index) const final;
  std::size_t numAudioEffect() const final { return content_.audioEffects.size(); }
  std::size_t numMidiEffect() const final { return content_.midiEffects.size(); }
  bool hasAudioEffect(IEffectBase* effect) const final {
    return content_.audioEffects.contains(effect);
  }
  bool hasMidiEffect(IEffectBase* effect) const final { return content_.midiEffects.contains(effect); }

  /// Identifier and name whole, where the host's view ends at the first U+0000.
  const Text& wholeId() const { return content_.id; }
  const Text& wholeName() const { return content_.name; }

  /// Must not be called while the style is in a manager's list, other than to change its key.
  void assignId(Text id) noexcept { content_.id.swap(id); }
  void assignName(Text name) noexcept { content_.name.swap(name); }
  void exchangeName(Text& name) noexcept { content_.name.swap(name); }
  void assignPath(Text path) noexcept { content_.path.swap(path); }

  /// Exchanges the content for another, whose effects must have this style as their parent. As
  /// assignId().
  void exchangeContent(StyleContent& content) noexcept { content_.swap(content); }

  StyleAttributes& attributes() { return content_.attributes; }
  const StyleAttributes& attributes() const { return content_.attributes; }

  EffectChain& chain(EffectKind kind) { return content_.chain(kind); }
  const EffectChain& chain(EffectKind kind) const { return content_.chain(kind); }

  /// Appends an effect to the chain of its kind; null or an identifier that is there already: false.
  bool appendEffect(std::unique_ptr<EffectBase> effect);

 protected:
  StyleBase(StyleManager* parent, StyleKind kind) : parent_(parent), kind_(kind) {}

  StyleManager* owner() const { return parent_; }

 private:
  StyleManager* const parent_;
  const StyleKind kind_;
  StyleContent content_;
};

/// A style's identifier as the host sees it, which ends at the first U+0000: styles that the host
/// could not tell apart have the same key.
struct StyleIdOf {
  TextView operator()(const StyleBase& style) const noexcept { return style.wholeId().c_str(); }
};

using StyleSequence = OwnedSequence<StyleBase, IStyleBase, StyleIdOf>;

}  // namespace Tesk::KoStyle
