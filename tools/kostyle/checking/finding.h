// Finding: one thing that was found in one file.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "basics/paths.h"
#include "checking/rules.h"
#include "document/source_text.h"

namespace tool {

/// Where something stands. The end is that of its last character, excluded.
struct Place {
  Span span;
  Position begin;
  Position end;
};

/// The line of a place, made harmless for a terminal and cut where it is long. Columns of the terminal.
struct Excerpt {
  std::string line;
  std::size_t caret = 0;
  std::size_t width = 0;
};

/// What a finding refers to besides its own place.
struct Related {
  std::string file;
  std::optional<Place> place;
  std::string text;
};

struct Finding {
  const Rule* rule = nullptr;
  std::optional<Place> place;  // none when it is about the file as a whole
  Excerpt excerpt;
  std::string path;         // in the document, as JsonDocument::path() gives it; may be empty
  std::string found;        // what stands there
  std::string requirement;  // what should
  std::string outcome;      // what became of it
  std::string suggestion;   // a near name; may be empty
  std::optional<Related> related;
};

/// What was found in a file. Texts are UTF-8 and may hold anything.
struct FileReport {
  std::string file;      // as it is shown
  std::string encoding;  // empty when the file could not be read
  std::vector<Finding> findings;
  std::array<std::size_t, 3> numUnkept = {};  // by severity, of findings beyond those
  Text id;  // what an application tells the style by; empty when it is refused
  std::optional<Place> idPlace;
  Excerpt idExcerpt;
};

/// "found; did you mean ...?"
std::string headline(const Finding& finding);

}  // namespace tool
