#include "manager/style_manager.h"

#include <memory>
#include <utility>

#include "api/manager_registry.h"
#include "manager/style_directory.h"
#include "writer/style_saver.h"

namespace Tesk::KoStyle {

StyleManager::StyleManager(Text appID, Text systemStyleDirPath, Text userStyleDirPath,
                           std::vector<Text> systemStyleDirs, std::vector<Text> userStyleDirs)
    : appID_(std::move(appID)),
      systemStyleDirPath_(std::move(systemStyleDirPath)),
      userStyleDirPath_(std::move(userStyleDirPath)),
      systemStyleDirs_(std::move(systemStyleDirs)),
      userStyleDirs_(std::move(userStyleDirs)) {}

void StyleManager::destroy() { StyleManagerRegistry::instance().destroy(this); }

IStyleCreationResult* StyleManager::systemStyleCreationResult(const std::size_t& index) const {
  return systemStyleCreationResults_.at(index);
}

ISystemStyle* StyleManager::systemStyle(const std::size_t& index) const {
  return dynamic_cast<ISystemStyle*>(systemStyles_.at(index));
}

bool StyleManager::hasSystemStyle(ISystemStyle* style) const { return systemStyles_.contains(style); }

IStyleCreationResult* StyleManager::userStyleCreationResult(const std::size_t& index) const {
  return userStyleCreationResults_.at(index);
}

IUserStyle* StyleManager::userStyle(const std::size_t& index) const {
  return dynamic_cast<IUserStyle*>(userStyles_.at(index));
}

bool StyleManager::hasUserStyle(IUserStyle* style) const { return userStyles_.contains(style); }

bool StyleManager::hasMutableStyle(IMutableStyle* style) const {
  return mutableStyles_.contains(style);
}

int StyleManager::readSystemStyles() {
  systemStyleCreationResults_.clear();
  return readStyleDirectory(*this, systemStyleDirPath_.c_str(), systemStyleDirs_, StyleKind::system,
                            systemStyles_);
}

int StyleManager::readUserStyles() {
  userStyleCreationResults_.clear();
  return readStyleDirectory(*this, userStyleDirPath_.c_str(), userStyleDirs_, StyleKind::user,
                            userStyles_);
}

IMutableStyle* StyleManager::createMutableStyle() {
  auto style = std::make_unique<MutableStyle>(this);
  MutableStyle* const created = style.get();
  mutableStyles_.append(StyleSequence::prepare(std::move(style)));
  return created;
}

const StyleSequence& StyleManager::styles(StyleKind kind) const {
  switch (kind) {
    case StyleKind::system:
      return systemStyles_;
    case StyleKind::user:
      return userStyles_;
    case StyleKind::editable:
      break;
  }
  return mutableStyles_;
}

CreationResultSequence* StyleManager::creationResults(StyleKind kind) {
  switch (kind) {
    case StyleKind::system:
      return &systemStyleCreationResults_;
    case StyleKind::user:
      return &userStyleCreationResults_;
    case StyleKind::editable:
      break;
  }
  return nullptr;
}

bool StyleManager::isStyleIdInUse(const Char* id) const {
  return id && *id != 0 && (systemStyles_.findKey(id) || userStyles_.findKey(id));
}

IUserStyle* StyleManager::saveNewStyle(MutableStyle& style, const bool& pretty, std::uint32_t* error) {
  return KoStyle::saveNewStyle(*this, style, pretty, *error);
}

IUserStyle* StyleManager::overwriteStyle(const Char* targetID, MutableStyle& style, const bool& pretty,
                                         std::uint32_t* error) {
  return KoStyle::overwriteStyle(*this, targetID, style, pretty, *error);
}

}  // namespace Tesk::KoStyle
