#include "reading/manager.h"

#include <fmt/format.h>
#include <kostyle/helpers.h>

#include "basics/failure.h"

namespace tool {
namespace {

// Managers that live at the same time need identifiers of their own.
Text newApplicationId() {
  static unsigned count = 0;
  return fromUtf8(fmt::format("kostyle {}", ++count));
}

class PathList {
 public:
  explicit PathList(const std::vector<fs::path>& paths) {
    for (const fs::path& path : paths) texts_.push_back(libraryPath(path));
    for (const Text& text : texts_) pointers_.push_back(text.c_str());
  }
  const KoStyleChar* const* data() const { return pointers_.data(); }
  int size() const { return static_cast<int>(pointers_.size()); }

 private:
  std::vector<Text> texts_;
  std::vector<const KoStyleChar*> pointers_;
};

}  // namespace

Manager::Manager(const StyleDirectories& directories) {
  // A set that is not wanted is not read; its directory only has to exist.
  const fs::path system = directories.system ? *directories.system : existingPart(*directories.user);
  const fs::path user = directories.user ? *directories.user : system;
  const PathList systemExtra(directories.systemExtra);
  const PathList userExtra(directories.userExtra);
  int error = KOSTYLE_OK;
  handle_ = CreateStyleManager(newApplicationId().c_str(), libraryPath(system).c_str(),
                               libraryPath(user).c_str(), systemExtra.data(), systemExtra.size(),
                               userExtra.data(), userExtra.size(), &error);
  if (!handle_) {
    const bool userFails = error == KOSTYLE_ERROR_USER_DIRECTORY_NOT_CREATABLE;
    throw Refused(fmt::format("{}: {}", shownPath(userFails ? user : system), KoStyle_codeText(error)));
  }
  try {
    read(directories);
  } catch (...) {
    StyleManager_destroy(handle_);
    throw;
  }
}

void Manager::read(const StyleDirectories& directories) {
  const auto check = [](int error, const fs::path& path) {
    if (error != KOSTYLE_OK)
      throw Refused(fmt::format("{}: {}", shownPath(path), KoStyle_codeText(error)));
  };
  if (directories.system) check(StyleManager_readSystemStyles(handle_), *directories.system);
  if (directories.user) check(StyleManager_readUserStyles(handle_), *directories.user);
}

std::vector<KoStyleStyle*> Manager::styles() const {
  std::vector<KoStyleStyle*> styles;
  for (std::size_t i = 0; i < StyleManager_numSystemStyle(handle_); ++i)
    styles.push_back(StyleManager_systemStyle(handle_, i));
  for (std::size_t i = 0; i < StyleManager_numUserStyle(handle_); ++i)
    styles.push_back(StyleManager_userStyle(handle_, i));
  return styles;
}

std::vector<KoStyleCreationResult*> Manager::results() const {
  std::vector<KoStyleCreationResult*> results;
  for (std::size_t i = 0; i < StyleManager_numSystemStyleCreationResult(handle_); ++i)
    results.push_back(StyleManager_systemStyleCreationResult(handle_, i));
  for (std::size_t i = 0; i < StyleManager_numUserStyleCreationResult(handle_); ++i)
    results.push_back(StyleManager_userStyleCreationResult(handle_, i));
  return results;
}

KoStyleStyle* Manager::style(TextView id) const {
  for (KoStyleStyle* style : styles())
    if (id == Style_id(style)) return style;
  throw Refused(fmt::format("{}: no style has this identifier", toUtf8(id)));
}

KoStyleStyle* Manager::userStyle(TextView id) const {
  KoStyleStyle* found = style(id);
  if (Style_type(found) != KOSTYLE_KIND_USER)
    throw Refused(fmt::format("{}: a system style is never changed", toUtf8(id)));
  return found;
}

}  // namespace tool
