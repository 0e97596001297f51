#include "reading/reasons.h"

#include <fmt/format.h>
#include <kostyle/helpers.h>

#include "basics/text.h"

namespace tool {

std::string reason(KoStyleCreationResult* result) {
  const int code = StyleCreationResult_error(result);
  std::string text = KoStyle_codeText(code);
  if (code == KOSTYLE_ERROR_JSON_SYNTAX) {
    text += fmt::format(": {}, byte offset {}",
                        KoStyle_parseErrorText(StyleCreationResult_parseError(result)),
                        StyleCreationResult_parseErrorOffset(result));
  } else if (code == KOSTYLE_ERROR_DUPLICATE_ID) {
    text += ": " + toUtf8(StyleCreationResult_id(result));
  } else if (const TextView path = StyleCreationResult_jsonPath(result); !path.empty()) {
    text += " at " + toUtf8(path);
  }
  return text;
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
