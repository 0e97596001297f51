/*
 * KoStyle for C++: creation results. Reading a style set leaves one for each style file that was opened,
 * whether its style was taken or not.
 */
#ifndef KOSTYLE_CPP_CREATION_RESULT_HPP
#define KOSTYLE_CPP_CREATION_RESULT_HPP

#include <cstddef>
#include <filesystem>
#include <string_view>

#include "../creation_result.h"
#include "../helpers.h"
#include "path.hpp"
#include "result.hpp"
#include "text.hpp"
#include "view.hpp"

namespace kostyle {

/** A place in a file: a line and a column. */
struct FilePosition {
  /** The line, counted from 1. Lines end with LF, CR or CR LF. */
  std::size_t line = 1;
  /** The column, counted from 1 in code points; a byte-order mark is none. */
  std::size_t column = 1;
};

/**
 * A creation result: what reading one file of a style set left behind. It never changes, and lives with its
 * texts until its set is read again or its manager is destroyed.
 */
class CreationResult : public View<KoStyleCreationResult> {
 public:
  /** Those of View: empty, or of a handle of the C interface, which must be of this kind, or NULL. */
  using View::View;

  /** The creation result after this one of the same set, in reading order; empty at the end. */
  CreationResult next() const noexcept { return CreationResult(StyleCreationResult_next(handle())); }

  /** The creation result before this one of the same set; empty at the front. */
  CreationResult previous() const noexcept {
    return CreationResult(StyleCreationResult_prev(handle()));
  }

  /** Whether the style was taken. */
  bool taken() const noexcept { return error().code() == KOSTYLE_OK; }

  /**
   * Why it was not: KOSTYLE_OK when it was, else KOSTYLE_ERROR_JSON_SYNTAX, KOSTYLE_ERROR_MEMBER_MISSING,
   * KOSTYLE_ERROR_WRONG_TYPE, KOSTYLE_ERROR_EMPTY_STRING, KOSTYLE_ERROR_DUPLICATE_ID or
   * KOSTYLE_ERROR_NO_EFFECT; KOSTYLE_ERROR_NO_CREATION_RESULT for an empty view. Later versions may add codes.
   */
  Error error() const noexcept { return Error(StyleCreationResult_error(handle())); }

  /** The path of the file: the directory as it was given, a separator and the file's name. */
  std::filesystem::path filePath() const { return toPath(filePathText()); }

  /** filePath() as the library has it: a text that lives as long as the creation result. */
  Text filePathText() const noexcept { return Text(StyleCreationResult_filePath(handle())); }

  /** The identifier in the file, also after KOSTYLE_ERROR_DUPLICATE_ID; empty after every other error. */
  Text id() const noexcept { return Text(StyleCreationResult_id(handle())); }

  /** The set, KOSTYLE_KIND_SYSTEM or KOSTYLE_KIND_USER; KOSTYLE_KIND_NONE for an empty view. */
  int type() const noexcept { return StyleCreationResult_type(handle()); }

  /**
   * Where in the document the failing value lies: "/", "/id" or "/name"; empty where that says nothing.
   */
  Text jsonPath() const noexcept { return Text(StyleCreationResult_jsonPath(handle())); }

  /**
   * The parser's code after KOSTYLE_ERROR_JSON_SYNTAX, of enum KoStyleParseError, else KOSTYLE_PARSE_OK;
   * KOSTYLE_PARSE_NO_CREATION_RESULT for an empty view.
   */
  int parseError() const noexcept { return StyleCreationResult_parseError(handle()); }

  /**
   * One sentence for parseError(), in English, without a capital or a full stop; never NULL, and lives
   * for ever.
   */
  const char* parseErrorSentence() const noexcept { return KoStyle_parseErrorText(parseError()); }

  /**
   * After KOSTYLE_ERROR_JSON_SYNTAX, where the error is: the number of bytes of the file up to and including
   * the character at fault, a byte-order mark included; the length of the file when it ends too early.
   * Otherwise 0; SIZE_MAX for an empty view.
   */
  std::size_t parseErrorOffset() const noexcept {
    return StyleCreationResult_parseErrorOffset(handle());
  }

  /**
   * Line and column of the parser's error: what KoStyle_findLine() gives for parseErrorOffset().
   *
   * @param content the bytes of the file, of any encoding that is read, with or without a byte-order mark.
   */
  FilePosition parseErrorPosition(std::string_view content) const noexcept {
    FilePosition position;
    KoStyle_findLine(content.data(), content.size(), parseErrorOffset(), &position.line,
                     &position.column);
    return position;
  }
};

}  // namespace kostyle

#endif
