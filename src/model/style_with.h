// StyleWith: what the host reads of any style, over the content that stored and mutable styles hold in
// their own ways.
#pragma once

#include <cstddef>
#include <cstdint>

#include "model/attributes.h"
#include "model/style_base.h"

namespace Tesk::KoStyle {

/// `Content` has a name, attributes, audioEffects and midiEffects.
template <class Content>
class StyleWith : public StyleBase {
 public:
  const Char* name() const final { return content_.name.c_str(); }
  std::size_t numLanguage() const final { return content_.attributes.languages.size(); }
  std::int32_t language(const std::size_t& index) const final {
    return content_.attributes.languages.at(index);
  }
  std::size_t numSingerGroup() const final { return count(Attribute::singerGroup); }
  const Char* singerGroup(const std::size_t& index) const final {
    return textAt(Attribute::singerGroup, index);
  }
  std::size_t numSingerID() const final { return count(Attribute::singerID); }
  const Char* singerID(const std::size_t& index) const final {
    return textAt(Attribute::singerID, index);
  }
  std::size_t numGenre() const final { return count(Attribute::genre); }
  const Char* genre(const std::size_t& index) const final { return textAt(Attribute::genre, index); }
  std::size_t numSubGenre() const final { return count(Attribute::subGenre); }
  const Char* subGenre(const std::size_t& index) const final {
    return textAt(Attribute::subGenre, index);
  }
  std::size_t numColor() const final { return count(Attribute::color); }
  const Char* color(const std::size_t& index) const final { return textAt(Attribute::color, index); }
  std::size_t numAudioEffect() const final { return content_.audioEffects.size(); }
  std::size_t numMidiEffect() const final { return content_.midiEffects.size(); }
  bool hasAudioEffect(IEffectBase* effect) const final {
    return content_.audioEffects.contains(effect);
  }
  bool hasMidiEffect(IEffectBase* effect) const final { return content_.midiEffects.contains(effect); }

  /// The name whole, where the host's view ends at the first U+0000.
  TextView wholeName() const noexcept { return content_.name; }

  const auto& attributes() const noexcept { return content_.attributes; }
  const auto& audioEffects() const noexcept { return content_.audioEffects; }
  const auto& midiEffects() const noexcept { return content_.midiEffects; }

 protected:
  using StyleBase::StyleBase;

  Content& content() noexcept { return content_; }
  const Content& content() const noexcept { return content_; }

 private:
  std::size_t count(Attribute attribute) const noexcept {
    return content_.attributes[attribute].size();
  }
  const Char* textAt(Attribute attribute, std::size_t index) const noexcept {
    const auto* text = content_.attributes[attribute].at(index);
    return text ? text->data() : nullptr;
  }

  Content content_;
};

}  // namespace Tesk::KoStyle
