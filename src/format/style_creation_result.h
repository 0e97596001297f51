// StyleCreationResult: the record that reading one style file leaves behind.
#pragma once

#include <cstdint>

#include "api/interfaces.h"
#include "format/style_read_outcome.h"
#include "model/owned_sequence.h"
#include "model/style_base.h"

namespace Tesk::KoStyle {

class StyleCreationResult final : public IStyleCreationResult {
 public:
  /// `id` is the style's identifier; empty when the file gave no style.
  StyleCreationResult(StyleManager* owner, Text filePath, Text id, StyleKind kind,
                      StyleReadOutcome outcome);

  IStyleCreationResult* next() const override;
  IStyleCreationResult* prev() const override;
  std::uint32_t error() const override { return outcome_.error; }
  const Char* filePath() const override { return filePath_.c_str(); }
  const Char* id() const override { return id_.c_str(); }
  std::uint32_t type() const override { return static_cast<std::uint32_t>(kind_); }
  const Char* jsonPath() const override { return outcome_.jsonPath.c_str(); }
  std::uint32_t parseError() const override { return outcome_.parseError; }
  std::uint64_t parseErrorOffset() const override { return outcome_.parseErrorOffset; }

 private:
  StyleManager* const owner_;
  const Text filePath_;
  const Text id_;
  const StyleKind kind_;
  const StyleReadOutcome outcome_;
};

using CreationResultSequence = OwnedSequence<StyleCreationResult, IStyleCreationResult>;

}  // namespace Tesk::KoStyle
