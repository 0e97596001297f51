// StyleBase: what every style has, whatever it holds: its manager, kind, identifier and path.
#pragma once

#include <kostyle/codes.h>

#include <cstdint>
#include <utility>

#include "interfaces/interfaces.h"
#include "model/style_owner.h"
#include "platform/text.h"

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
  const Char* id() const final { return id_.c_str(); }
  const Char* path() const final { return path_.c_str(); }
  int minLangID() const final { return KOSTYLE_MIN_LANGUAGE; }
  int maxLangID() const final { return KOSTYLE_MAX_LANGUAGE; }
  int singerIDLength() const final { return KOSTYLE_SINGER_ID_LENGTH; }

  /// The identifier whole, where the host's view ends at the first U+0000.
  const Text& wholeId() const noexcept { return id_; }

  void assignPath(Text path) noexcept { path_ = std::move(path); }

  /// Must not be called while the style is in a manager's list.
  void assignId(Text id) noexcept { id_ = std::move(id); }

  /// Ends the identifier where the host sees its end. The text stays where it is.
  void endIdAtNull() noexcept { id_.resize(TextView(id_.c_str()).size()); }

 protected:
  StyleBase(StyleOwner* owner, StyleKind kind) noexcept : owner_(owner), kind_(kind) {}

  /// Null for a style that no manager owns.
  StyleOwner* owner() const noexcept { return owner_; }

 private:
  StyleOwner* const owner_;
  const StyleKind kind_;
  Text id_;
  Text path_;
};

/// A style's identifier as the host sees it, which ends at the first U+0000: styles that the host
/// could not tell apart have the same key.
struct StyleIdOf {
  TextView operator()(const StyleBase& style) const noexcept { return style.id(); }
};

}  // namespace Tesk::KoStyle
