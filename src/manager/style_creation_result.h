// StyleCreationResult: the record that reading one style file leaves behind. The records of a read lie
// in one array, in the order in which the files were read.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "containers/frozen_texts.h"
#include "format/style_read_outcome.h"
#include "interfaces/interfaces.h"
#include "model/style_base.h"

namespace Tesk::KoStyle {

class StyleCreationResult;
using CreationResults = std::vector<StyleCreationResult>;

class StyleCreationResult final : public IStyleCreationResult {
 public:
  /// `list` is the one that the record is for. `id` is the style's identifier; empty when the file gave
  /// no style.
  StyleCreationResult(CreationResults& list, FrozenText filePath, FrozenText id, StyleKind kind,
                      StyleReadOutcome outcome) noexcept;

  IStyleCreationResult* next() const override { return neighbour(1); }
  IStyleCreationResult* prev() const override { return neighbour(-1); }
  std::uint32_t error() const override { return outcome_.error; }
  const Char* filePath() const override { return filePath_.c_str(); }
  const Char* id() const override { return id_.c_str(); }
  std::uint32_t type() const override { return static_cast<std::uint32_t>(kind_); }
  const Char* jsonPath() const override { return outcome_.jsonPath.c_str(); }
  std::uint32_t parseError() const override { return outcome_.parseError; }
  std::uint64_t parseErrorOffset() const override { return outcome_.parseErrorOffset; }

 private:
  StyleCreationResult* neighbour(std::ptrdiff_t step) const;

  CreationResults* list_;
  FrozenText filePath_;  // these two lie beside the style's own where there is one
  FrozenText id_;
  StyleKind kind_;
  StyleReadOutcome outcome_;
};

}  // namespace Tesk::KoStyle
