// UserStyle: a stored style of a user style directory. It can be removed and edited.
#pragma once

#include <memory>

#include "model/style.h"

namespace Tesk::KoStyle {

class UserStyle final : public Style, public IUserStyle {
 public:
  explicit UserStyle(StyleOwner* owner) : Style(owner, StyleKind::user) {}

  IUserStyle* next() const override;
  IUserStyle* prev() const override;
  int remove() override;
  IPropertyEditor* createPropertyEditor() override;
  void destroyPropertyEditor() override { propertyEditor_.reset(); }

 private:
  std::unique_ptr<IPropertyEditor> propertyEditor_;
};

}  // namespace Tesk::KoStyle
