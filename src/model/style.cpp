#include "model/style.h"

#include <utility>

namespace Tesk::KoStyle {
namespace {

template <class Value>
void exchangeUnlessEqual(Value& a, Value& b) noexcept {
  if (!(a == b)) std::swap(a, b);
}

}  // namespace

void Style::assign(StoredContent content) noexcept { this->content() = std::move(content); }

void Style::exchangeContent(StoredContent& other) noexcept {
  StoredContent& own = content();
  own.id.truncate(TextView(own.id.c_str()).size());
  exchangeName(other.name);
  std::swap(own.attributes.languages, other.attributes.languages);
  for (const Attribute attribute : textAttributes)
    exchangeUnlessEqual(own.attributes[attribute], other.attributes[attribute]);
  own.block.swap(other.block);
  std::swap(own.audioEffects, other.audioEffects);
  std::swap(own.midiEffects, other.midiEffects);
}

void Style::exchangeProperties(StyleProperties& properties) noexcept {
  exchangeName(properties.name);
  exchangeUnlessEqual(content().attributes[Attribute::subGenre], properties.subGenres);
  exchangeUnlessEqual(content().attributes[Attribute::color], properties.colors);
}

void Style::exchangeName(FrozenText& name) noexcept { exchangeUnlessEqual(content().name, name); }

}  // namespace Tesk::KoStyle
