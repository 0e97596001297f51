// An object of another shared library behind an abstract class: what a virtual call costs by itself.
#pragma once

#include "plain.h"

namespace bench {

class BareVirtual {
 public:
  virtual const KoStyleChar* name() const = 0;

 protected:
  ~BareVirtual() = default;
};

}  // namespace bench

PLAIN_API bench::BareVirtual* Plain_bareVirtual(void);
