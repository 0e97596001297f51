// StyleBase: what every style has, whatever it holds: its manager and kind.
#pragma once

#include <kostyle/codes.h>

#include <cstdint>

#include "interfaces/interfaces.h"
#include "model/style_owner.h"

namespace Tesk::KoStyle {

enum class StyleKind : std::uint32_t {
  system = KOSTYLE_KIND_SYSTEM,
  user = KOSTYLE_KIND_USER,
  mutableStyle = KOSTYLE_KIND_MUTABLE
};

class StyleBase : public virtual IStyleBase {
 public:
  virtual ~StyleBase() = default;

  IStyleManager* parent() const final { return owner_; }
  std::uint32_t type() const final { return static_cast<std::uint32_t>(kind_); }
  int minLangID() const final { return KOSTYLE_MIN_LANGUAGE; }
  int maxLangID() const final { return KOSTYLE_MAX_LANGUAGE; }
  int singerIDLength() const final { return KOSTYLE_SINGER_ID_LENGTH; }

 protected:
  StyleBase(StyleOwner* owner, StyleKind kind) noexcept : owner_(owner), kind_(kind) {}

  /// Null for a style that no manager owns.
  StyleOwner* owner() const noexcept { return owner_; }

 private:
  StyleOwner* const owner_;
  const StyleKind kind_;
};

}  // namespace Tesk::KoStyle
