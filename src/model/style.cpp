#include "model/style.h"

namespace Tesk::KoStyle {

void Style::exchangeProperties(StyleProperties& properties) noexcept {
  exchangeName(properties.name);
  content().attributes[Attribute::subGenre].swap(properties.subGenres);
  content().attributes[Attribute::color].swap(properties.colors);
}

}  // namespace Tesk::KoStyle
