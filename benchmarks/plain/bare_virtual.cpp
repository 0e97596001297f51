#include "bare_virtual.h"

namespace {

class Named final : public bench::BareVirtual {
 public:
  const KoStyleChar* name() const override { return name_; }

 private:
  const KoStyleChar* name_ = KOSTYLE_TEXT("name");
};

Named named;

}  // namespace

bench::BareVirtual* Plain_bareVirtual() { return &named; }
