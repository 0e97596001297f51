#include "reading/unknown_identifier.h"

#include <fmt/core.h>

#include <cstdint>
#include <vector>

#include "basics/failure.h"
#include "basics/files.h"
#include "checking/near_name.h"
#include "document/source_text.h"
#include "editing/new_json.h"
#include "reading/reasons.h"
#include "reading/unopened.h"

namespace tool {
namespace {

// Also where the file is no JSON: it is the text that counts.
bool holds(const fs::path& file, TextView id) {
  try {
    const SourceText source(readBytes(file));
    const Span whole{static_cast<std::uint32_t>(source.begin()),
                     static_cast<std::uint32_t>(source.end())};
    const std::string text = source.utf8(whole);
    for (const bool onlyAscii : {false, true})
      if (text.find(jsonString(id, onlyAscii)) != text.npos) return true;
  } catch (const Refused&) {  // it cannot be read any more
  }
  return false;
}

}  // namespace

std::string refusedHolders(const Manager& manager, TextView id) {
  const auto styles = manager.styles();
  std::string text;
  for (KoStyleCreationResult* result : manager.results()) {
    if (StyleCreationResult_error(result) == KOSTYLE_OK) continue;
    const TextView path = StyleCreationResult_filePath(result);
    if (holds(pathOf(path), id))
      text += fmt::format("; a file that holds it is refused: {}",
                          refusal(pathToUtf8(path), result, styles));
  }
  return text;
}

std::string whyUnknown(const Manager& manager, TextView id, const char* what) {
  const auto styles = manager.styles();
  std::vector<TextView> known;
  known.reserve(styles.size());
  for (KoStyleStyle* style : styles) known.emplace_back(Style_id(style));
  std::string text =
      fmt::format("{}: {}{}{}", toUtf8(id), what, nearNameHint(id, known), refusedHolders(manager, id));
  for (const fs::path& path : unopenedFiles(manager.directories(), manager.results()))
    text += fmt::format("; {}", whyUnopened(path));
  return text;
}

}  // namespace tool
