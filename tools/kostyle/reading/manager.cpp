#include "reading/manager.h"

#include <fmt/core.h>
#include <kostyle/helpers.h>

#include <algorithm>
#include <cstdint>
#include <new>
#include <string>
#include <system_error>

#include "basics/common_options.h"
#include "basics/failure.h"
#include "reading/unknown_identifier.h"
#include "reading/unopened.h"

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

std::uintmax_t sizeOf(const fs::path& file) {
  std::error_code error;
  const std::uintmax_t size = fs::file_size(file, error);
  return error ? 0 : size;
}

// The library would read it whole.
void requireNoLargeFile(const std::set<fs::path>& files) {
  for (const fs::path& file : files)
    if (sizeOf(file) > commonOptions().maxSize)
      throw Refused(fmt::format("{}: {}", shownPath(file), tooLarge()));
}

[[noreturn]] void refuseForMemory(const std::set<fs::path>& files) {
  const auto isSmaller = [](const fs::path& a, const fs::path& b) { return sizeOf(a) < sizeOf(b); };
  const auto largest = std::max_element(files.begin(), files.end(), isSmaller);
  throw NotEnoughMemory(
      fmt::format("there is not enough memory for the styles{}",
                  largest == files.end() ? "" : "; the largest file is " + shownPath(*largest)));
}

}  // namespace

Manager::Manager(const StyleDirectories& directories) : directories_(directories) {
  requireNoLargeFile(styleFiles(directories));
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
    std::error_code why;  // the library does not tell the system's reason
    if (userFails) fs::create_directories(user, why);
    throw Refused(fmt::format("{}: {}{}{}", shownPath(userFails ? user : system),
                              KoStyle_codeText(error), why ? ": " : "", why ? why.message() : ""));
  }
  try {
    read();
  } catch (const std::bad_alloc&) {
    StyleManager_destroy(handle_);
    refuseForMemory(styleFiles(directories));
  } catch (...) {
    StyleManager_destroy(handle_);
    throw;
  }
}

void Manager::read() {
  const auto check = [](int error, const fs::path& path) {
    if (error != KOSTYLE_OK)
      throw Refused(fmt::format("{}: {}", shownPath(path), KoStyle_codeText(error)));
  };
  if (directories_.system) check(StyleManager_readSystemStyles(handle_), *directories_.system);
  if (directories_.user) check(StyleManager_readUserStyles(handle_), *directories_.user);
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

KoStyleStyle* Manager::find(TextView id) const {
  for (KoStyleStyle* style : styles())
    if (id == Style_id(style)) return style;
  return nullptr;
}

bool Manager::has(const std::vector<Text>& ids) const {
  return std::all_of(ids.begin(), ids.end(), [&](const Text& id) { return find(id); });
}

KoStyleStyle* Manager::userStyle(TextView id) const {
  KoStyleStyle* const found = find(id);
  if (!found) throw Refused(whyUnknown(*this, id, "no style has this identifier"));
  if (Style_type(found) == KOSTYLE_KIND_USER) return found;
  throw Refused(
      fmt::format("{}: a system style is never changed{}", toUtf8(id), refusedHolders(*this, id)));
}

}  // namespace tool
