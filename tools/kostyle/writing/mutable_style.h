// A mutable style with a content. What the library does not take throws Refused.
#pragma once

#include <kostyle/kostyle.h>

#include "editing/style_content.h"
#include "reading/attributes.h"
#include "reading/manager.h"

namespace tool {

class MutableStyle {
 public:
  explicit MutableStyle(const Manager& manager)
      : style_(StyleManager_createMutableStyle(manager.handle())) {}

  KoStyleStyle* handle() const { return style_; }

  void setName(const Text& name);

  /// Puts everything in but identifier, name and vendor text.
  void fill(const StyleContent& content);

 private:
  void addTexts(const TextList& list, const std::vector<Text>& texts);

  KoStyleStyle* style_;
};

/// Throws Refused when the library does not take what a change adds.
void requireTaken(const StyleChange& change);

}  // namespace tool
