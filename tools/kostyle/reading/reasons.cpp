#include "reading/reasons.h"

#include <fmt/core.h>
#include <kostyle/helpers.h>

#include <utility>

#include "basics/failure.h"
#include "basics/files.h"
#include "basics/text.h"
#include "document/json_document.h"

namespace tool {
namespace {

std::string placeText(KoStyleCreationResult* result) {
  const std::optional<Position> place = syntaxErrorPlace(result);
  return place ? fmt::format(":{}:{}", place->line, place->column) : std::string();
}

}  // namespace

std::optional<Position> syntaxErrorPlace(KoStyleCreationResult* result) {
  if (StyleCreationResult_error(result) != KOSTYLE_ERROR_JSON_SYNTAX) return std::nullopt;
  try {
    const SourceText source(readBytes(pathOf(TextView(StyleCreationResult_filePath(result)))));
    const JsonDocument document(source);
    const auto& error = document.error();
    if (!error || error->offset != StyleCreationResult_parseErrorOffset(result)) return std::nullopt;
    return source.position(error->place);
  } catch (const Refused&) {  // the file was there a moment ago
    return std::nullopt;
  }
}

std::string ownerOfIdentifier(KoStyleCreationResult* result, const std::vector<KoStyleStyle*>& styles) {
  if (StyleCreationResult_error(result) != KOSTYLE_ERROR_DUPLICATE_ID) return {};
  const TextView id = StyleCreationResult_id(result);
  for (KoStyleStyle* style : styles)
    if (id == Style_id(style)) return pathToUtf8(Style_path(style));
  return {};
}

std::string refusal(const std::string& shown, KoStyleCreationResult* result,
                    const std::vector<KoStyleStyle*>& styles) {
  const int code = StyleCreationResult_error(result);
  std::string text = fmt::format("{}{}: {}", shown, placeText(result), KoStyle_codeText(code));
  if (code == KOSTYLE_ERROR_JSON_SYNTAX) {
    text += fmt::format(": {}", KoStyle_parseErrorText(StyleCreationResult_parseError(result)));
  } else if (code == KOSTYLE_ERROR_DUPLICATE_ID) {
    text += fmt::format(": {}", toUtf8(StyleCreationResult_id(result)));
    if (const std::string owner = ownerOfIdentifier(result, styles); !owner.empty())
      text += fmt::format(", in {}", owner);
  } else if (const TextView path = StyleCreationResult_jsonPath(result); !path.empty()) {
    text += " at " + toUtf8(path);
  }
  return text;
}

std::vector<fs::path> filesThatRepeat(TextView id, const std::vector<KoStyleCreationResult*>& results) {
  std::vector<fs::path> files;
  for (KoStyleCreationResult* result : results)
    if (StyleCreationResult_error(result) == KOSTYLE_ERROR_DUPLICATE_ID &&
        id == StyleCreationResult_id(result))
      files.push_back(pathOf(TextView(StyleCreationResult_filePath(result))));
  return files;
}

const char* kindText(int kind) {
  switch (kind) {
    case KOSTYLE_KIND_SYSTEM:
      return "system";
    case KOSTYLE_KIND_USER:
      return "user";
    default:
      return "other";
  }
}

}  // namespace tool
