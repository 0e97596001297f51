// Style: a style that is stored in a file, read-only to the host.
#pragma once

#include <cstddef>

#include "model/stored_content.h"
#include "model/style_with.h"

namespace Tesk::KoStyle {

/// What a property editor changes of a style.
struct StyleProperties {
  FrozenText name;
  FrozenTexts subGenres;
  FrozenTexts colors;
};

class Style : public StyleWith<StoredContent>, public virtual IStyle {
 public:
  const Char* id() const final { return content().id.c_str(); }
  const Char* path() const final { return content().path.c_str(); }
  const Char* vendor() const final { return content().vendor.c_str(); }
  IAudioEffect* audioEffect(const std::size_t& index) const final { return audioEffects().at(index); }
  IMidiEffect* midiEffect(const std::size_t& index) const final { return midiEffects().at(index); }

  /// The identifier whole, where the host's view ends at the first U+0000.
  const FrozenText& wholeId() const noexcept { return content().id; }
  const FrozenText& wholePath() const noexcept { return content().path; }

  /// Gives a new style its content, which must have been made for it.
  void assign(StoredContent content) noexcept;

  // What has the same value in both stays where it is, so that the host's texts stay too.

  /// Exchanges what a mutable style brings: all but identifier, path and vendor. The effects must have
  /// been made for this style. The identifier ends where the host sees its end.
  void exchangeContent(StoredContent& other) noexcept;

  void exchangeProperties(StyleProperties& properties) noexcept;
  void exchangeName(FrozenText& name) noexcept;

 protected:
  using StyleWith::StyleWith;
};

/// A style's identifier as the host sees it, which ends at the first U+0000: styles that the host
/// could not tell apart have the same key.
struct StyleIdOf {
  TextView operator()(const Style& style) const noexcept { return style.id(); }
};

}  // namespace Tesk::KoStyle
