// SystemStyle: a stored style of a system style directory.
#pragma once

#include "model/style.h"

namespace Tesk::KoStyle {

class SystemStyle final : public Style, public ISystemStyle {
 public:
  explicit SystemStyle(StyleOwner* owner) : Style(owner, StyleKind::system) {}

  ISystemStyle* next() const override;
  ISystemStyle* prev() const override;
};

}  // namespace Tesk::KoStyle
