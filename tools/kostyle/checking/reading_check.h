// What reading a document as a style refuses and leaves out, by the library's own reader.
#pragma once

#include <vector>

#include "checking/reporter.h"

namespace tool {

enum class PartKind {
  root,
  identity,  // "id" and "name"
  vendor,
  filter,
  languages,
  language,
  texts,
  text,
  chain,
  effect,
  parameters,
  parameter
};

struct Part {
  PartKind kind;
  const JsonNode* node;
};

/// What a style takes of a document, in document order.
struct Taken {
  bool refused = false;
  std::vector<Part> parts;
};

/// Adds what is found; the document has no error.
Taken checkReading(Reporter& reporter);

}  // namespace tool
