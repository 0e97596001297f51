// Bytes through the library by way of real files: what a host sees of the style files of a directory.
#pragma once

#include <fstream>
#include <optional>
#include <ostream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "support/document.h"
#include "support/host.h"
#include "support/style_value.h"

namespace test {

/// What the record of a file says of its content.
struct Outcome {
  int error = KOSTYLE_OK;
  std::string jsonPath;
  int parseError = KOSTYLE_PARSE_OK;
  std::size_t offset = 0;

  friend bool operator==(const Outcome& a, const Outcome& b) {
    return std::tie(a.error, a.jsonPath, a.parseError, a.offset) ==
           std::tie(b.error, b.jsonPath, b.parseError, b.offset);
  }
};

inline void PrintTo(const Outcome& outcome, std::ostream* out) {
  *out << "error " << outcome.error << " at \"" << outcome.jsonPath << "\", parser's "
       << outcome.parseError << " at " << outcome.offset;
}

inline Outcome taken() { return {}; }
inline Outcome refused(int error, const std::string& jsonPath) {
  return {error, jsonPath, KOSTYLE_PARSE_OK, 0};
}
inline Outcome syntaxError(int parseError, std::size_t offset) {
  return {KOSTYLE_ERROR_JSON_SYNTAX, "", parseError, offset};
}

inline Outcome outcomeOf(KoStyleCreationResult* record) {
  return {StyleCreationResult_error(record), utf8(StyleCreationResult_jsonPath(record)),
          StyleCreationResult_parseError(record), StyleCreationResult_parseErrorOffset(record)};
}

/// What became of a file. There is a style when the outcome is taken().
struct Reading {
  Outcome outcome;
  std::optional<StoredValue> style;
};

/// Reads files of any content as user styles, one after the other.
class FileReader {
 public:
  Reading read(std::string_view content) const {
    put(content);
    if (StyleManager_readUserStyles(manager_) != KOSTYLE_OK ||
        StyleManager_numUserStyleCreationResult(manager_) != 1)
      throw std::runtime_error("the file has no record");
    KoStyleCreationResult* const record = StyleManager_userStyleCreationResult(manager_, 0);
    Reading reading{outcomeOf(record), std::nullopt};
    if (style()) reading.style = storedValueOf(style());
    if (StyleManager_numUserStyle(manager_) != (reading.outcome == taken() ? 1 : 0) ||
        Text(StyleCreationResult_id(record)) != (reading.style ? reading.style->id : Text()))
      throw std::runtime_error("record and style do not belong together");
    return reading;
  }

  /// The style of the last file; null when it was refused.
  KoStyleStyle* style() const { return StyleManager_userStyle(manager_, 0); }

 private:
  /// Makes this the content of the file, which stays the same file: that is quicker than a new one.
  void put(std::string_view content) const {
    std::fstream file(path_, std::ios::binary | std::ios::in | std::ios::out);
    file.write(content.data(), static_cast<std::streamsize>(content.size()));
    file.close();
    if (!file) throw std::runtime_error("cannot write " + path_.string());
    fs::resize_file(path_, content.size());
  }

  TemporaryDirectory directory_;
  fs::path path_ = [this] {
    writeFile(directory_ / "style.kostyle", "");
    return directory_ / "style.kostyle";
  }();
  Manager manager_{directory_.path(), directory_.path()};
};

/// The outcome of a file with these bytes.
inline Outcome outcomeOf(std::string_view content) { return FileReader().read(content).outcome; }

/// The parser's code for a file with these bytes; KOSTYLE_PARSE_OK when it is one JSON text.
inline int parseErrorOf(std::string_view content) { return outcomeOf(content).parseError; }

/// The style that comes of a file with these bytes; throws when it is refused.
inline StoredValue styleOf(std::string_view content) {
  const Reading reading = FileReader().read(content);
  if (!reading.style) throw std::runtime_error("refused with " + std::to_string(reading.outcome.error));
  return *reading.style;
}

/// The parameters of the only effect of documentWithParameters().
inline std::vector<ParameterValue> parametersOf(const std::string& parameters) {
  return styleOf(documentWithParameters(parameters)).chains[KOSTYLE_EFFECT_AUDIO].at(0).parameters;
}

}  // namespace test
