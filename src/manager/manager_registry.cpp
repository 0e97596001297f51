#include "manager/manager_registry.h"

#include <new>
#include <utility>

#include "manager/file_system.h"

namespace Tesk::KoStyle {

namespace {

// Made when the library is loaded. It must also be there after the host's static objects, for one of
// them may destroy its manager. So it is not destroyed among static objects, whose order depends on
// when the library was loaded, but by the library's own last step.
alignas(StyleManagerRegistry) unsigned char storage[sizeof(StyleManagerRegistry)];
StyleManagerRegistry& registry = *new (storage) StyleManagerRegistry();

#if defined(__GNUC__)
[[gnu::destructor]] void destroyRegistry() { registry.~StyleManagerRegistry(); }
#else
const struct AtUnload {
  ~AtUnload() { registry.~StyleManagerRegistry(); }
} atUnload{};
#endif

}  // namespace

StyleManagerRegistry& StyleManagerRegistry::instance() noexcept { return registry; }

IStyleManager* StyleManagerRegistry::findOrCreate(const Char* appID, const Char* systemStyleDirPath,
                                                  const Char* userStyleDirPath,
                                                  std::vector<Text> systemStyleDirs,
                                                  std::vector<Text> userStyleDirs, int& error) {
  const std::lock_guard guard(lock_);
  const auto fail = [&](int code) {
    error = code;
    return nullptr;
  };
  if (!appID || *appID == 0) return fail(KOSTYLE_ERROR_APP_ID_MISSING);
  if (StyleManager* manager = managers_.findKey(appID)) {
    error = KOSTYLE_OK;
    return manager;
  }
  if (!isDirectory(systemStyleDirPath)) return fail(KOSTYLE_ERROR_SYSTEM_DIRECTORY_MISSING);
  if (!ensureDirectory(userStyleDirPath)) return fail(KOSTYLE_ERROR_USER_DIRECTORY_NOT_CREATABLE);
  IStyleManager* const made =
      &managers_.append(managers_.makeNode(appID, systemStyleDirPath, userStyleDirPath,
                                           std::move(systemStyleDirs), std::move(userStyleDirs)));
  error = KOSTYLE_OK;
  return made;
}

void StyleManagerRegistry::destroy(const IStyleManager* manager) {
  const std::lock_guard guard(lock_);
  managers_.destroy(manager);
}

}  // namespace Tesk::KoStyle
