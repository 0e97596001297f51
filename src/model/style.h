// Style: a style that is stored in a file, read-only to the host.
#pragma once

#include <cstddef>
#include <utility>

#include "model/stored_content.h"
#include "model/style_with.h"

namespace Tesk::KoStyle {

/// What a property editor changes of a style.
struct StyleProperties {
  Text name;
  FrozenTexts subGenres;
  FrozenTexts colors;
};

class Style : public StyleWith<StoredContent>, public virtual IStyle {
 public:
  const Char* vendor() const final { return vendor_.c_str(); }
  IAudioEffect* audioEffect(const std::size_t& index) const final { return audioEffects().at(index); }
  IMidiEffect* midiEffect(const std::size_t& index) const final { return midiEffects().at(index); }

  void assignVendor(Text vendor) noexcept { vendor_ = std::move(vendor); }

  // What has the same value in both stays where it is, so that the host's texts stay too.

  /// Exchanges the content for another, whose effects must have been made for this style.
  void exchangeContent(StoredContent& other) noexcept;

  void exchangeProperties(StyleProperties& properties) noexcept;
  void exchangeName(Text& name) noexcept;

 protected:
  using StyleWith::StyleWith;

 private:
  Text vendor_;
};

}  // namespace Tesk::KoStyle
