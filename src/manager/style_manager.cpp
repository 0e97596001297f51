#include "manager/style_manager.h"

#include <utility>

#include "manager/file_system.h"
#include "manager/manager_registry.h"
#include "manager/property_editor.h"
#include "manager/style_directory.h"
#include "manager/style_saver.h"
#include "model/system_style.h"

namespace Tesk::KoStyle {
namespace {

// A set holds styles of its own kind alone.
SystemStyle* asSystem(Style* style) { return static_cast<SystemStyle*>(style); }
UserStyle* asUser(Style* style) { return static_cast<UserStyle*>(style); }

}  // namespace

StyleManager::StyleManager(Text appID, Text systemStyleDirPath, Text userStyleDirPath,
                           std::vector<Text> systemStyleDirs, std::vector<Text> userStyleDirs)
    : appID_(std::move(appID)),
      system_{StyleKind::system, std::move(systemStyleDirPath), std::move(systemStyleDirs), {}, {}},
      user_{StyleKind::user, std::move(userStyleDirPath), std::move(userStyleDirs), {}, {}} {}

void StyleManager::destroy() { StyleManagerRegistry::instance().destroy(this); }

IStyleCreationResult* StyleManager::systemStyleCreationResult(const std::size_t& index) const {
  return system_.creationResult(index);
}

ISystemStyle* StyleManager::systemStyle(const std::size_t& index) const {
  return asSystem(system_.styles.at(index));
}

IStyleCreationResult* StyleManager::userStyleCreationResult(const std::size_t& index) const {
  return user_.creationResult(index);
}

IUserStyle* StyleManager::userStyle(const std::size_t& index) const {
  return asUser(user_.styles.at(index));
}

int StyleManager::readSystemStyles() { return readStyleDirectory(system_, *this); }

int StyleManager::readUserStyles() { return readStyleDirectory(user_, *this); }

IMutableStyle* StyleManager::createMutableStyle() {
  return &mutableStyles_.append(mutableStyles_.makeNode(this));
}

SystemStyle* StyleManager::next(const SystemStyle& style) const {
  return asSystem(system_.styles.next(&style));
}
SystemStyle* StyleManager::previous(const SystemStyle& style) const {
  return asSystem(system_.styles.previous(&style));
}
UserStyle* StyleManager::next(const UserStyle& style) const {
  return asUser(user_.styles.next(&style));
}
UserStyle* StyleManager::previous(const UserStyle& style) const {
  return asUser(user_.styles.previous(&style));
}

int StyleManager::remove(UserStyle& style) {
  if (!user_.styles.contains(&style)) return KOSTYLE_ERROR_USER_STYLE_NOT_FOUND;
  if (!removePath(style.path(), false)) return KOSTYLE_ERROR_DELETE_FAILED;
  user_.styles.destroy(&style);
  return KOSTYLE_OK;
}

std::unique_ptr<IPropertyEditor> StyleManager::makePropertyEditor(UserStyle& style) {
  return std::make_unique<PropertyEditor>(style);
}

IUserStyle* StyleManager::save(MutableStyle& style, bool pretty, std::uint32_t& error) {
  return saveNewStyle(*this, style, pretty, error);
}

IUserStyle* StyleManager::overwrite(const Char* targetID, MutableStyle& style, bool pretty,
                                    std::uint32_t& error) {
  return overwriteStyle(*this, targetID, style, pretty, error);
}

bool StyleManager::isStyleIdInUse(const Char* id) const {
  return id && *id != 0 && (system_.styles.findKey(id) || user_.styles.findKey(id));
}

UserStyle* StyleManager::findUserStyle(const Char* id) const {
  return *id == 0 ? nullptr : asUser(user_.styles.findKey(id));
}

StyleSequence::NodeHandle StyleManager::makeUserStyle() {
  return user_.styles.makeNode<UserStyle>(this);
}

UserStyle& StyleManager::append(StyleSequence::NodeHandle style) noexcept {
  return *asUser(&user_.styles.append(std::move(style)));
}

}  // namespace Tesk::KoStyle
