#include "manager/style_directory.h"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <utility>

#include "format/style_keys.h"
#include "format/style_reader.h"
#include "manager/file_system.h"
#include "manager/style_manager.h"
#include "platform/platform.h"

namespace Tesk::KoStyle {
namespace {

// Makes room for one more, so that appending it cannot throw.
void reserveOneMore(CreationResults& results) {
  if (results.size() == results.capacity())
    results.reserve(std::max<std::size_t>(8, 2 * results.size()));
}

// Reads the files of one set, one after the other.
class StyleLoader {
 public:
  StyleLoader(StyleSet& set, StyleManager& manager)
      : set_(set), manager_(manager), fileBuffer_(new platform::FileBuffer) {}

  bool loadStyleFile(const Text& path);

 private:
  StyleSet& set_;
  StyleManager& manager_;
  StyleReader reader_;
  std::unique_ptr<platform::FileBuffer> fileBuffer_;
};

// False when the file is passed over: it has another extension or cannot be opened.
bool StyleLoader::loadStyleFile(const Text& path) {
  if (!hasStyleExtension(path)) return false;
  platform::File file = platform::openForReading(platform::nativePath(toLongPath(path.c_str())));
  if (!file) return false;
  platform::setBuffer(file, *fileBuffer_);
  StyleReadOutcome outcome;
  auto style = reader_.read(set_.kind, &manager_, set_.styles, path, file.get(), outcome);
  file.reset();

  FrozenText keptPath = style ? style->wholePath() : FrozenText(path);
  FrozenText id = style ? style->wholeId() : FrozenText();
  if (style && manager_.isStyleIdInUse(id.c_str())) {
    outcome = StyleReadOutcome();
    outcome.error = KOSTYLE_ERROR_DUPLICATE_ID;
    style = {};
  }
  reserveOneMore(set_.creationResults);
  StyleCreationResult result(set_.creationResults, std::move(keptPath), std::move(id), set_.kind,
                             std::move(outcome));
  if (style) set_.styles.append(std::move(style));
  set_.creationResults.push_back(std::move(result));
  return true;
}

}  // namespace

int readStyleDirectory(StyleSet& set, StyleManager& manager) {
  CreationResults().swap(set.creationResults);
  set.styles.clear();
  if (!isDirectory(set.directory.c_str())) return KOSTYLE_ERROR_DIRECTORY_MISSING;
  StyleLoader loader(set, manager);
  const auto loadFilesOf = [&loader](const Text& directory) {
    constexpr std::size_t filesOnly = 1;
    for (const Text& path : listFiles(directory.c_str(), filesOnly)) loader.loadStyleFile(path);
  };
  loadFilesOf(set.directory);
  for (const Text& further : set.furtherDirectories) {
    if (isDirectory(further.c_str())) loadFilesOf(further);
  }
  set.creationResults.shrink_to_fit();
  return KOSTYLE_OK;
}

}  // namespace Tesk::KoStyle
