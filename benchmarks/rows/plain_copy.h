// A copy of a manager's system styles as plain structs, laid out in the order of a walk.
#pragma once

#include <kostyle/kostyle.h>

#include <memory_resource>

#include "plain/plain.h"

namespace bench {

class PlainCopy {
 public:
  explicit PlainCopy(KoStyleManager* manager);

  PlainStyles* styles() { return &styles_; }

 private:
  const KoStyleChar* copyText(const KoStyleChar* text);
  template <class Count, class At>
  PlainTexts copyList(KoStyleStyle* style, Count count, At at);
  template <class Count, class At>
  PlainChain copyChain(KoStyleStyle* style, Count count, At at);
  void copyEffect(KoStyleEffect* source, PlainEffect& effect);
  void copyParameter(KoStyleParameter* source, PlainParameter& parameter);
  void copyStyle(KoStyleStyle* source, PlainStyle& style);
  template <class Type>
  Type* newArray(std::size_t count);

  std::pmr::monotonic_buffer_resource memory_;
  PlainStyles styles_{};
};

}  // namespace bench
