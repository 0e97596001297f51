// Reporter: adds findings about a document to the report of its file.
#pragma once

#include <string>

#include "checking/finding.h"
#include "document/json_document.h"

namespace tool {

class Reporter {
 public:
  /// So many findings of a file are kept, and others only counted: a hostile file holds millions.
  static constexpr std::size_t mostFindings = 10000;

  Reporter(const JsonDocument& document, FileReport& report) : document_(document), report_(report) {}

  const JsonDocument& document() const { return document_; }

  /// The requirement is the rule's sentence, unless it is changed. What is returned stays where it is
  /// until the next finding is added.
  Finding& add(const Rule& rule, Span span, std::string found, std::string outcome);

  /// About a node, its key when `atKey`.
  Finding& add(const Rule& rule, const JsonNode& node, bool atKey, std::string found,
               std::string outcome);

  Place placeOf(Span span) const;
  Related relatedTo(const JsonNode& node, std::string text) const;

  /// The first character of a value.
  Span startOf(const JsonNode& node) const;

 private:
  bool isFull() const { return report_.findings.size() >= mostFindings; }

  const JsonDocument& document_;
  FileReport& report_;
  Finding unkept_;
};

/// A value in a few words: "null", "7", "\"Pop\"", "an array".
std::string described(const JsonDocument& document, const JsonNode& node);

/// A text in quotation marks, cut where it is long.
std::string textInQuotes(TextView text);

}  // namespace tool
