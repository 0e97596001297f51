// StyleManager: owns the styles and creation results of one application identifier. Used by one thread
// at a time.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

#include "manager/style_set.h"
#include "model/mutable_style.h"
#include "model/style_owner.h"
#include "model/user_style.h"

namespace Tesk::KoStyle {

using MutableStyles = OwnedSequence<MutableStyle, IStyleBase>;

class StyleManager final : public StyleOwner {
 public:
  StyleManager(Text appID, Text systemStyleDirPath, Text userStyleDirPath,
               std::vector<Text> systemStyleDirs, std::vector<Text> userStyleDirs);

  void destroy() override;
  const Char* appID() const override { return appID_.c_str(); }
  const Char* systemStyleDirPath() const override { return system_.directory.c_str(); }
  std::size_t numSystemStyleCreationResult() const override { return system_.creationResults.size(); }
  IStyleCreationResult* systemStyleCreationResult(const std::size_t& index) const override;
  std::size_t numSystemStyle() const override { return system_.styles.size(); }
  ISystemStyle* systemStyle(const std::size_t& index) const override;
  bool hasSystemStyle(ISystemStyle* style) const override { return system_.styles.contains(style); }
  const Char* userStyleDirPath() const override { return user_.directory.c_str(); }
  std::size_t numUserStyleCreationResult() const override { return user_.creationResults.size(); }
  IStyleCreationResult* userStyleCreationResult(const std::size_t& index) const override;
  std::size_t numUserStyle() const override { return user_.styles.size(); }
  IUserStyle* userStyle(const std::size_t& index) const override;
  bool hasUserStyle(IUserStyle* style) const override { return user_.styles.contains(style); }
  bool hasMutableStyle(IMutableStyle* style) const override { return mutableStyles_.contains(style); }
  int readSystemStyles() override;
  int readUserStyles() override;
  IMutableStyle* createMutableStyle() override;

  SystemStyle* next(const SystemStyle& style) const override;
  SystemStyle* previous(const SystemStyle& style) const override;
  UserStyle* next(const UserStyle& style) const override;
  UserStyle* previous(const UserStyle& style) const override;
  int remove(UserStyle& style) override;
  std::unique_ptr<IPropertyEditor> makePropertyEditor(UserStyle& style) override;
  void destroy(MutableStyle& style) override { mutableStyles_.destroy(&style); }
  IUserStyle* save(MutableStyle& style, bool pretty, std::uint32_t& error) override;
  IUserStyle* overwrite(const Char* targetID, MutableStyle& style, bool pretty,
                        std::uint32_t& error) override;

  /// Whether a system or a user style has this identifier; false for null and for the empty text.
  bool isStyleIdInUse(const Char* id) const;

  /// The user style with this identifier; null when there is none.
  UserStyle* findUserStyle(const Char* id) const;

  /// A user style that is not in the list yet.
  StyleSequence::NodeHandle makeUserStyle();

  /// Appends a style that makeUserStyle() made.
  UserStyle& append(StyleSequence::NodeHandle style) noexcept;

  // Whether a style is in a list; the style is only compared.
  bool listsSystemStyle(const IStyleBase* style) const { return system_.styles.contains(style); }
  bool listsUserStyle(const IStyleBase* style) const { return user_.styles.contains(style); }
  bool listsMutableStyle(const IStyleBase* style) const { return mutableStyles_.contains(style); }

 private:
  const Text appID_;
  StyleSet system_;
  StyleSet user_;
  MutableStyles mutableStyles_;
};

}  // namespace Tesk::KoStyle
