// How a document is laid out: what is new in it takes the form of what is there.
#pragma once

#include <string>

#include "document/json_document.h"
#include "editing/new_json.h"

namespace tool {

bool hasLineBreak(const std::string& space);

class Layout {
 public:
  explicit Layout(const JsonDocument& document);

  /// Whether the document writes everything beyond ASCII as escapes.
  bool onlyAscii() const { return onlyAscii_; }

  /// What stands between the opening bracket and the first child, or the closing one.
  std::string lead(const JsonNode& container) const;

  /// What stands between the last child and the closing bracket.
  std::string tail(const JsonNode& container) const;

  /// From one child to the next, with the comma.
  std::string gap(const JsonNode& first, const JsonNode& second) const;

  /// What would stand between two children of a container: as between those that it has, without empty
  /// lines.
  std::string newGap(const JsonNode& container, const JsonNode& behind) const;

  /// Between key and value of a new member.
  std::string colon(const JsonNode& object) const;

  /// A new value among the children of a container. `isBroken` tells whether each child has a line.
  std::string text(const NewJson& value, const JsonNode& container, bool isBroken) const;

  /// What stands inside the brackets of a container that has no children.
  std::string inside(const std::vector<NewJson::Child>& children, const JsonNode& container) const;

 private:
  // How a container is laid out, by itself or after an example.
  struct Form {
    bool isBroken = false;  // over lines, a child in each
    std::string padding;    // otherwise: inside of the brackets,
    std::string separator;  // and between children
    std::string colon;
  };

  std::string between(std::size_t begin, std::size_t end) const;
  std::string indentation(std::size_t place) const;
  Form formOf(const JsonNode& container) const;
  Form formFor(JsonKind kind, const JsonNode* siblings, std::size_t depth, bool isBroken) const;
  std::string childrenText(const std::vector<NewJson::Child>& children, const Form& form,
                           const std::string& indent, std::size_t depth) const;
  std::string valueText(const NewJson& value, const Form& form, const std::string& indent,
                        std::size_t depth) const;
  void takeDefaults();

  const JsonDocument* document_;
  bool onlyAscii_ = false;
  std::string lineBreak_ = "\n";
  std::string step_;  // by which children are indented
  std::string colon_ = ":";
  std::string separator_ = ",";
};

}  // namespace tool
