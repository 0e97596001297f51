/*
 * KoStyle for C++: what is lost, cannot be written or went wrong when a style is copied or saved with care. The
 * Python package takes kinds and sentences from here.
 */
#ifndef KOSTYLE_CPP_PROBLEM_HPP
#define KOSTYLE_CPP_PROBLEM_HPP

#include <string>
#include <system_error>
#include <vector>

#include "../codes.h"
#include "../helpers.h"

namespace kostyle {

/** The kind of a problem when a style is copied or saved with care. Later versions may add some. */
enum class ProblemKind {
  /** The vendor text: no mutable style has one, and no file that the library writes. A loss. */
  vendorLost,
  /** A text that cannot be copied: without what stands behind its U+0000 it is refused. A loss. */
  textLost,
  /** An effect without parameters: reading its file again passes it over. A loss. */
  effectWithoutParameters,
  /** A parameter "Tarn": reading its file gives "Tarn630". A loss. */
  parameterRenamed,
  /** A parameter whose name another one before it has: only the first is read. A loss. */
  parameterRepeated,

  /** The style has no name; of a copy: the stored style's is longer than a style may have. */
  nameMissing,
  /** No effect with a parameter: the file would be refused. */
  noEffect,
  /** A text with a lone surrogate, which no file can hold. */
  loneSurrogate,
  /** An infinite parameter, which no file can hold. */
  infinite,
  /** A parameter that is not a number, which no file can hold. */
  notANumber,

  /** The library refused; Problem::code says why. */
  refused,
  /** No folder can be made in the user style directory to try things in. */
  folderFailed,
  /** The file to overwrite is missing or no file, or a new one cannot be moved to its place. */
  notReplaceable,
  /** No second name or copy can be made of the old file. */
  backupFailed,
  /** What was written cannot be read again, as when the disk is full. */
  notReadBack,
  /** What was written is read as something else. */
  readBackDiffers,
  /**
   * The old file could not be put back, or the new one not be deleted; `where` is what is left.
   */
  notRestored
};

/** A problem: its kind, and where it is. Plain data of its own, which outlives the style. */
struct Problem {
  /** Of which kind the problem is; sentence() says it in words. */
  ProblemKind kind;

  /**
   * Where, in UTF-8: a path in the style ("name", "genres/Pop", "audio/Reverb", "audio/Reverb/mix"), empty for
   * the whole style, or the path of a file or directory.
   */
  std::string where;

  /** With `refused`, the library's code; otherwise KOSTYLE_OK. */
  int code = KOSTYLE_OK;

  /** What the system said, where a call of it failed; else the error code is not set. */
  std::error_code cause = {};

  /** Whether the problem is a loss: the style can be saved, but something of it will not come back. */
  bool isLoss() const noexcept { return kind <= ProblemKind::parameterRepeated; }

  /** One sentence, in English, without a capital or a full stop; never NULL, and lives for ever. */
  const char* sentence() const noexcept {
    switch (kind) {
      case ProblemKind::vendorLost:
        return "the vendor text is lost";
      case ProblemKind::textLost:
        return "a text that holds U+0000 cannot be copied";
      case ProblemKind::effectWithoutParameters:
        return "an effect without parameters is not read again";
      case ProblemKind::parameterRenamed:
        return "a parameter of this name is read as \"Tarn630\"";
      case ProblemKind::parameterRepeated:
        return "of parameters of one name only the first is read";
      case ProblemKind::nameMissing:
        return "the style has no name";
      case ProblemKind::noEffect:
        return "the style has no effect with a parameter";
      case ProblemKind::loneSurrogate:
        return "a text with a lone surrogate cannot be written";
      case ProblemKind::infinite:
        return "an infinite value cannot be written";
      case ProblemKind::notANumber:
        return "a value that is not a number cannot be written";
      case ProblemKind::refused:
        return KoStyle_codeText(code);
      case ProblemKind::folderFailed:
        return "no folder can be made in the user directory";
      case ProblemKind::notReplaceable:
        return "the style file is missing or cannot be replaced";
      case ProblemKind::backupFailed:
        return "no copy of the style file can be kept";
      case ProblemKind::notReadBack:
        return "what was written cannot be read again";
      case ProblemKind::readBackDiffers:
        return "what was written is read as something else";
      case ProblemKind::notRestored:
        return "what was there before could not be put back";
    }
    return "a problem that is not known here";
  }

  /** For messages: where, the sentence, and what the system said. */
  std::string message() const {
    std::string message = where.empty() ? std::string() : where + ": ";
    message += sentence();
    if (cause) message += " (" + cause.message() + ')';
    return message;
  }
};

/** Problems in the order in which they were found. */
using Problems = std::vector<Problem>;

}  // namespace kostyle

#endif
