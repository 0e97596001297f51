// Style: a style that is stored in a file, read-only to the host.
#pragma once

#include "model/style_base.h"

namespace Tesk::KoStyle {

class Style : public virtual IStyle, public StyleBase {
 public:
  const Char* vendor() const final { return vendor_.c_str(); }
  IAudioEffect* audioEffect(const std::size_t& index) const final;
  IMidiEffect* midiEffect(const std::size_t& index) const final;

  void assignVendor(Text vendor) noexcept { vendor_.swap(vendor); }

 protected:
  using StyleBase::StyleBase;

 private:
  Text vendor_;
};

}  // namespace Tesk::KoStyle
