// A mutable style under work. What the library refuses throws Refused.
#pragma once

#include <kostyle/kostyle.h>

#include <string>
#include <vector>

#include "reading/attributes.h"
#include "reading/manager.h"
#include "writing/parameter_argument.h"
#include "writing/style_edits.h"

namespace tool {

class MutableStyle {
 public:
  explicit MutableStyle(const Manager& manager)
      : style_(StyleManager_createMutableStyle(manager.handle())) {}

  KoStyleStyle* handle() const { return style_; }

  /// Takes over everything that a stored style has, but the vendor text.
  void copy(KoStyleStyle* stored);

  /// Deletes first, then adds; effects come before parameters.
  void apply(const StyleEdits& edits);

 private:
  void addLanguage(int language);
  void addText(const TextList& list, const KoStyleChar* text);
  void deleteText(const TextList& list, const std::string& text);
  KoStyleEffect* appendEffect(const Chain& chain, const KoStyleChar* id);
  void deleteEffect(const Chain& chain, const std::string& id);
  void deleteParameter(const std::string& argument);
  void assignParameters(const std::vector<std::string>& arguments);
  std::vector<NamedEffect> effects() const;

  KoStyleStyle* style_;
};

}  // namespace tool
