// PropertyEditor: collects a name, sub-genres and colours for a user style and writes the style to its
// own file with them.
#pragma once

#include "api/interfaces.h"
#include "model/sorted_set.h"
#include "model/style.h"

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
  struct Properties {
    Text name;
    SortedSet<Text> subGenres;
    SortedSet<Text> colors;
  };

  void exchange(Properties& properties) noexcept;

  Style& style_;
  Properties pending_;
};

}  // namespace Tesk::KoStyle
