// JsonDocument: a JSON text as a tree that knows where everything stands in the file.
//
// It is read with the library's parser: the same files are refused with the same errors, and numbers
// and texts have the same values. Nothing is dropped: members keep their order, and those that repeat
// are all there.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "basics/text.h"
#include "document/source_text.h"

namespace tool {

enum class JsonKind : std::uint8_t {
  null,
  boolean,
  integer,      // of 32 bits, signed
  wideInteger,  // that fits into 64 bits only
  real,         // with a fraction or an exponent, or beyond 64 bits
  string,
  array,
  object
};

/// A value of a document, together with its key when it is a member of an object. A node's children
/// follow it in memory, each with its own children.
struct JsonNode {
  JsonKind kind = JsonKind::null;
  Span span;                   // of the value, a string's quotation marks included
  Span keySpan;                // the same of the key; empty when there is none
  std::uint32_t up = 0;        // how far in front of it the parent stands; 0 for the root
  std::uint32_t treeSize = 1;  // nodes, itself included
  std::uint32_t numChildren = 0;
  std::uint32_t place = 0;  // among its siblings
  double number = 0;        // of numbers; 0 and 1 for false and true
  Span text;                // of a string, in the document's texts
  Span key;

  bool isNumber() const {
    return kind == JsonKind::integer || kind == JsonKind::wideInteger || kind == JsonKind::real;
  }
  bool isObject() const { return kind == JsonKind::object; }
  bool isArray() const { return kind == JsonKind::array; }
  bool isString() const { return kind == JsonKind::string; }
  bool isMember() const { return keySpan.size() > 0; }

  /// Null for the root.
  const JsonNode* parent() const { return up == 0 ? nullptr : this - up; }

  /// Member or element and, when it is a member, its key.
  Span wholeSpan() const { return isMember() ? Span{keySpan.begin, span.end} : span; }

  struct Iterator {
    const JsonNode* node;
    const JsonNode& operator*() const { return *node; }
    Iterator& operator++() {
      node += node->treeSize;
      return *this;
    }
    friend bool operator!=(Iterator a, Iterator b) { return a.node != b.node; }
  };

  // The members or elements.
  Iterator begin() const { return {this + 1}; }
  Iterator end() const { return {this + treeSize}; }
};

class JsonDocument {
 public:
  struct SyntaxError {
    int code = 0;              // enum KoStyleParseError
    std::uint64_t offset = 0;  // as a creation result has it
    std::size_t place = 0;  // what the parser stumbled over; the end of the file when it ends too early
  };

  /// Parses. The source must live as long as the document.
  explicit JsonDocument(const SourceText& source);

  const SourceText& source() const { return *source_; }

  const std::optional<SyntaxError>& error() const { return error_; }

  /// Not to be called after an error.
  const JsonNode& root() const { return nodes_.front(); }

  /// Where the parser stopped. What stands behind it, after a unit of zero, is not part of the
  /// document.
  std::size_t parsedEnd() const { return parsedEnd_; }

  /// The value of a string, with escapes resolved.
  TextView text(const JsonNode& node) const { return view(node.text); }

  TextView key(const JsonNode& member) const { return view(member.key); }

  /// The first member with a key, which is the one that the library looks at; null when there is none.
  const JsonNode* member(const JsonNode& object, TextView key) const;

  /// The way to a node: a JSON pointer, but "/" for the root.
  std::string path(const JsonNode& node) const;

 private:
  friend class JsonDocumentMaker;

  TextView view(Span units) const { return TextView(texts_).substr(units.begin, units.size()); }

  const SourceText* source_;
  std::vector<JsonNode> nodes_;
  Text texts_;
  std::optional<SyntaxError> error_;
  std::size_t parsedEnd_ = 0;
};

}  // namespace tool
