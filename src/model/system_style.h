// SystemStyle: a stored style of a system style directory.
#pragma once

#include "model/style.h"

namespace Tesk::KoStyle {

class SystemStyle final : public ISystemStyle, public Style {
 public:
  explicit SystemStyle(StyleManager* parent) : Style(parent, StyleKind::system) {}

  ISystemStyle* next() const override;
  ISystemStyle* prev() const override;
};

}  // namespace Tesk::KoStyle
