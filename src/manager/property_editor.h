// PropertyEditor: collects a name, sub-genres and colours for a user style and writes the style to its
// own file with them.
#pragma once

#include "containers/sorted_texts.h"
#include "interfaces/interfaces.h"
#include "model/style.h"
#include "platform/platform.h"

namespace Tesk::KoStyle {

class PropertyEditor final : public IPropertyEditor {
 public:
  /// The style owns the editor and outlives it.
  explicit PropertyEditor(Style& style) : style_(style) {}

  bool setStyleName(const Char* name) override;
  bool addSubGenre(const Char* subGenre) override;
  bool addColor(const Char* color) override;
  bool save(const bool& pretty) override;

 private:
  bool writeTo(const platform::NativePath& path) const;
  void restore(StyleProperties& properties) noexcept;

  Style& style_;
  Text name_;
  SortedTexts subGenres_;
  SortedTexts colors_;
};

}  // namespace Tesk::KoStyle
