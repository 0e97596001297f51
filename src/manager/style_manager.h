// StyleManager: owns the styles and creation results of one application identifier. Used by one thread
// at a time.
#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

#include "api/interfaces.h"
#include "format/style_creation_result.h"
#include "model/mutable_style.h"
#include "model/style_base.h"

namespace Tesk::KoStyle {

class StyleManager final : public IStyleManager {
 public:
  StyleManager(Text appID, Text systemStyleDirPath, Text userStyleDirPath,
               std::vector<Text> systemStyleDirs, std::vector<Text> userStyleDirs);

  void destroy() override;
  const Char* appID() const override { return appID_.c_str(); }
  const Char* systemStyleDirPath() const override { return systemStyleDirPath_.c_str(); }
  std::size_t numSystemStyleCreationResult() const override {
    return systemStyleCreationResults_.size();
  }
  IStyleCreationResult* systemStyleCreationResult(const std::size_t& index) const override;
  std::size_t numSystemStyle() const override { return systemStyles_.size(); }
  ISystemStyle* systemStyle(const std::size_t& index) const override;
  bool hasSystemStyle(ISystemStyle* style) const override;
  const Char* userStyleDirPath() const override { return userStyleDirPath_.c_str(); }
  std::size_t numUserStyleCreationResult() const override { return userStyleCreationResults_.size(); }
  IStyleCreationResult* userStyleCreationResult(const std::size_t& index) const override;
  std::size_t numUserStyle() const override { return userStyles_.size(); }
  IUserStyle* userStyle(const std::size_t& index) const override;
  bool hasUserStyle(IUserStyle* style) const override;
  bool hasMutableStyle(IMutableStyle* style) const override;
  int readSystemStyles() override;
  int readUserStyles() override;
  IMutableStyle* createMutableStyle() override;

  /// The styles of a kind.
  StyleSequence& styles(StyleKind kind) {
    return const_cast<StyleSequence&>(std::as_const(*this).styles(kind));
  }
  const StyleSequence& styles(StyleKind kind) const;

  /// The creation results of a kind of read; null for a kind that is not read.
  CreationResultSequence* creationResults(StyleKind kind);

  /// Whether a system or a user style has this identifier; false for null and for the empty text.
  bool isStyleIdInUse(const Char* id) const;

  // MutableStyle::save() and overwrite().
  IUserStyle* saveNewStyle(MutableStyle& style, const bool& pretty, std::uint32_t* error);
  IUserStyle* overwriteStyle(const Char* targetID, MutableStyle& style, const bool& pretty,
                             std::uint32_t* error);

 private:
  const Text appID_;
  const Text systemStyleDirPath_;
  const Text userStyleDirPath_;
  const std::vector<Text> systemStyleDirs_;
  const std::vector<Text> userStyleDirs_;
  StyleSequence systemStyles_;
  StyleSequence userStyles_;
  StyleSequence mutableStyles_;
  CreationResultSequence systemStyleCreationResults_;
  CreationResultSequence userStyleCreationResults_;
};

}  // namespace Tesk::KoStyle
