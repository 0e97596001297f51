// How the cost of many files grows: reading them, and walking what came of them.
#include "peers/library.h"
#include "rows/growth.h"
#include "rows/readers.h"
#include "rows/visiting.h"

namespace bench {
namespace {

constexpr std::size_t heapForFile = 8U << 10;

// All files hold one identifier, so one style is taken and every other file is refused.
class LibraryOfDuplicates : public Library {
 public:
  using Library::Library;
  std::size_t read() {
    if (Library::read() != 1) return 0;
    return StyleManager_numSystemStyleCreationResult(manager());
  }
};

std::size_t last(std::size_t count) { return count - 1; }

void addVisits(Rows& rows, const std::filesystem::path& directory, std::size_t size) {
  const auto add = [&](const char* work, const Visit& visit) {
    addRow<Visiting>(rows, growthName(work, size), Runs::many, directory, size, visit);
  };
  add("next/styles", [](KoStyleManager* manager) {
    return walkLength(StyleManager_systemStyle(manager, 0), SystemStyle_next);
  });
  add("prev/styles", [=](KoStyleManager* manager) {
    return walkLength(StyleManager_systemStyle(manager, last(size)), SystemStyle_prev);
  });
  add("next/creation-results", [](KoStyleManager* manager) {
    return walkLength(StyleManager_systemStyleCreationResult(manager, 0), StyleCreationResult_next);
  });
  add("prev/creation-results", [=](KoStyleManager* manager) {
    return walkLength(StyleManager_systemStyleCreationResult(manager, last(size)),
                      StyleCreationResult_prev);
  });
  addRow<Asking<KoStyleManager, KoStyleStyle>>(
      rows, growthName("has/styles", size), Runs::many, directory, size,
      [](KoStyleManager* manager) { return manager; }, StyleManager_systemStyle,
      StyleManager_hasSystemStyle);
}

}  // namespace

void addGrowthFileRows(Rows& rows, const Settings& settings) {
  for (const std::size_t size : settings.sizes) {
    const auto folder = [&](const char* name) {
      return settings.data / "growth-files" / name / std::to_string(size);
    };
    addRow<Reading<Library>>(rows, growthName("read/files", size), Runs::many, folder("distinct"), size,
                             heapForFile);
    addRow<Reading<LibraryOfDuplicates>>(rows, growthName("read/files-of-one-identifier", size),
                                         Runs::many, folder("repeated"), size, heapForFile);
    addVisits(rows, folder("distinct"), size);
  }
}

}  // namespace bench
