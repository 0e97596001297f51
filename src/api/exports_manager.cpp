#include <cstdint>
#include <utility>
#include <vector>

#include "api/exports.h"
#include "api/handle.h"
#include "manager/manager_registry.h"
#include "manager/style_manager.h"

using namespace Tesk::KoStyle;

namespace {

std::vector<Text> copyTexts(const Char* const* texts, int count) {
  if (!texts || count <= 0) return {};
  return {texts, texts + count};
}

// A style that is not in the set may be long gone, so it is compared before it is followed.
template <class Target>
Target* listedAs(const IStyleManager& manager, bool (StyleManager::*lists)(const IStyleBase*) const,
                 IStyleBase* style) {
  return (static_cast<const StyleManager&>(manager).*lists)(style) ? cast<Target>(style) : nullptr;
}

}  // namespace

KoStyleManager* CreateStyleManager(const Char* appID, const Char* systemStyleDirPath,
                                   const Char* userStyleDirPath, const Char* const* systemStyleDirs,
                                   int numSystemStyleDirs, const Char* const* userStyleDirs,
                                   int numUserStyleDirs, int* error) {
  int ignored = KOSTYLE_OK;
  std::vector<Text> systemDirs = copyTexts(systemStyleDirs, numSystemStyleDirs);
  std::vector<Text> userDirs = copyTexts(userStyleDirs, numUserStyleDirs);
  return StyleManagerRegistry::instance().findOrCreate(appID, systemStyleDirPath, userStyleDirPath,
                                                       std::move(systemDirs), std::move(userDirs),
                                                       error ? *error : ignored);
}

KoStyleManager* Module_createStyleManager(const Char* appID, const Char* systemStyleDirPath,
                                          const Char* userStyleDirPath,
                                          const Char* const* systemStyleDirs, int numSystemStyleDirs,
                                          const Char* const* userStyleDirs, int numUserStyleDirs,
                                          int* error) {
  return CreateStyleManager(appID, systemStyleDirPath, userStyleDirPath, systemStyleDirs,
                            numSystemStyleDirs, userStyleDirs, numUserStyleDirs, error);
}

bool HasStyleManager(KoStyleManager* manager) {
  return manager && StyleManagerRegistry::instance().contains(manager);
}

bool StyleManager_destroy(KoStyleManager* manager) {
  if (manager) manager->destroy();
  return manager != nullptr;
}

const Char* StyleManager_userStyleDirPath(KoStyleManager* manager) {
  return direct(manager, &IStyleManager::userStyleDirPath, noText);
}

int StyleManager_readSystemStyles(KoStyleManager* manager) {
  return direct<int>(manager, &IStyleManager::readSystemStyles, KOSTYLE_ERROR_INVALID_HANDLE);
}

int StyleManager_readUserStyles(KoStyleManager* manager) {
  return direct<int>(manager, &IStyleManager::readUserStyles, KOSTYLE_ERROR_INVALID_HANDLE);
}

size_t StyleManager_numSystemStyleCreationResult(KoStyleManager* manager) {
  return direct(manager, &IStyleManager::numSystemStyleCreationResult, noCount);
}

KoStyleCreationResult* StyleManager_systemStyleCreationResult(KoStyleManager* manager, size_t index) {
  return direct<KoStyleCreationResult*>(manager, &IStyleManager::systemStyleCreationResult, nullptr,
                                        index);
}

KoStyleStyle* StyleManager_systemStyle(KoStyleManager* manager, size_t index) {
  return direct<KoStyleStyle*>(manager, &IStyleManager::systemStyle, nullptr, index);
}

KoStyleStyle* StyleManager_userStyle(KoStyleManager* manager, size_t index) {
  return direct<KoStyleStyle*>(manager, &IStyleManager::userStyle, nullptr, index);
}

bool StyleManager_hasSystemStyle(KoStyleManager* manager, KoStyleStyle* style) try {
  return manager && manager->hasSystemStyle(
                        listedAs<ISystemStyle>(*manager, &StyleManager::listsSystemStyle, style));
} catch (...) {
  return false;
}

bool StyleManager_hasUserStyle(KoStyleManager* manager, KoStyleStyle* style) try {
  return manager &&
         manager->hasUserStyle(listedAs<IUserStyle>(*manager, &StyleManager::listsUserStyle, style));
} catch (...) {
  return false;
}

bool StyleManager_hasMutableStyle(KoStyleManager* manager, KoStyleStyle* style) try {
  return manager && manager->hasMutableStyle(
                        listedAs<IMutableStyle>(*manager, &StyleManager::listsMutableStyle, style));
} catch (...) {
  return false;
}

KoStyleStyle* StyleManager_createMutableStyle(KoStyleManager* manager) {
  return direct<KoStyleStyle*>(manager, &IStyleManager::createMutableStyle, nullptr);
}
