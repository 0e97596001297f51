#include "manager/style_directory.h"

#include <memory>
#include <utility>

#include "format/style_document.h"
#include "format/style_reader.h"
#include "manager/file_system.h"
#include "manager/style_manager.h"
#include "platform/platform.h"

namespace Tesk::KoStyle {
namespace {

bool hasStyleExtension(TextView path) {
  const std::size_t lastDot = path.rfind(Char('.'));
  return lastDot != TextView::npos && path.substr(lastDot) == styleFileExtension;
}

}  // namespace

int readStyleDirectory(StyleManager& manager, const Char* directory,
                       const std::vector<Text>& furtherDirectories, const StyleKind& kind,
                       StyleSequence& styles) {
  styles.clear();
  if (!directory) return KOSTYLE_ERROR_ARGUMENT_MISSING;
  if (!isDirectory(directory)) return KOSTYLE_ERROR_DIRECTORY_MISSING;
  constexpr std::size_t filesOnly = 1;
  for (const Text& path : listFiles(directory, filesOnly)) loadStyleFile(manager, path, kind, styles);
  for (const Text& further : furtherDirectories) {
    if (!isDirectory(further.c_str())) continue;
    for (const Text& path : listFiles(further.c_str(), filesOnly))
      loadStyleFile(manager, path, kind, styles);
  }
  return KOSTYLE_OK;
}

bool loadStyleFile(StyleManager& manager, const Text& path, const StyleKind& kind,
                   StyleSequence& styles) {
  if (!hasStyleExtension(path)) return false;
  platform::File file = platform::openForReading(platform::nativePath(toLongPath(path.c_str())));
  if (!file) return false;
  StyleReadOutcome outcome;
  std::unique_ptr<Style> style = readStyleFile(kind, &manager, file.get(), outcome);
  file.reset();

  Text id = style ? Text(style->id()) : Text();
  if (style && manager.isStyleIdInUse(id.c_str())) {
    outcome = StyleReadOutcome();
    outcome.error = KOSTYLE_ERROR_DUPLICATE_ID;
    style.reset();
  }
  auto result = CreationResultSequence::prepare(
      std::make_unique<StyleCreationResult>(&manager, path, std::move(id), kind, std::move(outcome)));
  if (style) {
    style->assignPath(path);
    styles.append(StyleSequence::prepare(std::move(style)));
  }
  if (CreationResultSequence* results = manager.creationResults(kind))
    results->append(std::move(result));
  return true;
}

}  // namespace Tesk::KoStyle
