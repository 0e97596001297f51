#include "api/exports.h"
#include "api/handle.h"

using namespace Tesk::KoStyle;

int StyleCreationResult_error(KoStyleCreationResult* result) {
  return direct<int>(result, &IStyleCreationResult::error, KOSTYLE_ERROR_NO_CREATION_RESULT);
}

int StyleCreationResult_type(KoStyleCreationResult* result) {
  return direct<int>(result, &IStyleCreationResult::type, KOSTYLE_KIND_NONE);
}

const Char* StyleCreationResult_jsonPath(KoStyleCreationResult* result) {
  return direct(result, &IStyleCreationResult::jsonPath, noText);
}

int StyleCreationResult_parseError(KoStyleCreationResult* result) {
  return direct<int>(result, &IStyleCreationResult::parseError, KOSTYLE_PARSE_NO_CREATION_RESULT);
}

size_t StyleCreationResult_parseErrorOffset(KoStyleCreationResult* result) {
  return direct(result, &IStyleCreationResult::parseErrorOffset, noCount);
}
