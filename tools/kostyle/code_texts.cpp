#include "code_texts.h"

#include <fmt/format.h>

#include "text.h"

namespace tool {

const char* codeText(int code) {
  switch (code) {
    case KOSTYLE_OK:
      return "success";
    case KOSTYLE_ERROR_ARGUMENT_MISSING:
      return "the style has no name";
    case KOSTYLE_ERROR_INVALID_HANDLE:
      return "not a style of this kind";
    case KOSTYLE_ERROR_NO_STYLE_FOR_KIND:
      return "no style can be made for the kind";
    case KOSTYLE_ERROR_NO_MANAGER:
      return "the style belongs to no manager";
    case KOSTYLE_ERROR_USER_STYLE_NOT_FOUND:
      return "no user style has the identifier";
    case KOSTYLE_ERROR_FOREIGN_MUTABLE_STYLE:
      return "the style belongs to another manager";
    case KOSTYLE_ERROR_DIRECTORY_MISSING:
      return "the directory does not exist";
    case KOSTYLE_ERROR_OPEN_FAILED:
      return "the style file cannot be opened for writing";
    case KOSTYLE_ERROR_DELETE_FAILED:
      return "the style file cannot be deleted";
    case KOSTYLE_ERROR_TARGET_NOT_REPLACEABLE:
      return "the style file is missing or cannot be replaced";
    case KOSTYLE_ERROR_APP_ID_MISSING:
      return "the application identifier is missing";
    case KOSTYLE_ERROR_SYSTEM_DIRECTORY_MISSING:
      return "the system directory does not exist";
    case KOSTYLE_ERROR_USER_DIRECTORY_NOT_CREATABLE:
      return "the user directory cannot be created";
    case KOSTYLE_ERROR_JSON_SYNTAX:
      return "not valid JSON";
    case KOSTYLE_ERROR_MEMBER_MISSING:
      return "required member is missing";
    case KOSTYLE_ERROR_WRONG_TYPE:
      return "value has the wrong type";
    case KOSTYLE_ERROR_EMPTY_STRING:
      return "required string is empty";
    case KOSTYLE_ERROR_DUPLICATE_ID:
      return "another style has the same identifier";
    case KOSTYLE_ERROR_NO_EFFECT:
      return "the style has no effect";
    case KOSTYLE_ERROR_WRITE_EMPTY_ID:
      return "the identifier is empty";
    case KOSTYLE_ERROR_WRITE_EMPTY_NAME:
      return "the name is empty";
    default:
      return "the library reports a code that this tool does not know";
  }
}

const char* parseErrorText(int parseError) {
  switch (parseError) {
    case KOSTYLE_PARSE_OK:
      return "success";
    case KOSTYLE_PARSE_EMPTY:
      return "the file holds no value";
    case KOSTYLE_PARSE_ROOT_NOT_SINGULAR:
      return "something follows the root value";
    case KOSTYLE_PARSE_VALUE_INVALID:
      return "not a value";
    case KOSTYLE_PARSE_OBJECT_NAME_MISSING:
      return "an object member has no name";
    case KOSTYLE_PARSE_OBJECT_COLON_MISSING:
      return "no colon follows a member's name";
    case KOSTYLE_PARSE_OBJECT_END_MISSING:
      return "neither a comma nor a closing brace follows a member";
    case KOSTYLE_PARSE_ARRAY_END_MISSING:
      return "neither a comma nor a closing bracket follows an element";
    case KOSTYLE_PARSE_ESCAPE_NOT_HEXADECIMAL:
      return "the digits of a \\u escape are not hexadecimal";
    case KOSTYLE_PARSE_SURROGATE_INVALID:
      return "a high surrogate escape is not followed by a low one";
    case KOSTYLE_PARSE_ESCAPE_INVALID:
      return "a string holds a raw control character or a backslash that starts no escape";
    case KOSTYLE_PARSE_QUOTATION_MARK_MISSING:
      return "a string has no closing quotation mark";
    case KOSTYLE_PARSE_ENCODING_INVALID:
      return "a string is not valid in the file's encoding";
    case KOSTYLE_PARSE_NUMBER_TOO_BIG:
      return "a number is too large for double precision";
    case KOSTYLE_PARSE_FRACTION_MISSING:
      return "a number has no digit after its decimal point";
    case KOSTYLE_PARSE_EXPONENT_MISSING:
      return "a number has no digit in its exponent";
    case KOSTYLE_PARSE_TERMINATED:
      return "the values nest too deep";
    default:
      return "another syntax error";
  }
}

std::string reason(KoStyleCreationResult* result) {
  const int code = StyleCreationResult_error(result);
  std::string text = codeText(code);
  if (code == KOSTYLE_ERROR_JSON_SYNTAX) {
    text += fmt::format(": {}, byte offset {}", parseErrorText(StyleCreationResult_parseError(result)),
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
