// Taking children out of an object or array of a document, and putting new ones in.
#pragma once

#include <string>
#include <vector>

#include "editing/layout.h"
#include "editing/new_json.h"
#include "editing/text_edits.h"

namespace tool {

class ContainerEdit {
 public:
  ContainerEdit(const JsonDocument& document, const Layout& layout, const JsonNode& container);

  void remove(const JsonNode& child);

  /// Puts a child behind another that stays, or behind all. The key is written as a string.
  void add(TextView key, NewJson value, const JsonNode* behind = nullptr);
  void add(NewJson element) { additions_.push_back({{{}, std::move(element)}, nullptr}); }

  bool isEmpty() const { return additions_.empty() && numRemoved_ == 0; }

  void writeTo(TextEdits& edits) const;

 private:
  struct Place {
    const JsonNode* node;
    bool isRemoved;
  };
  struct Addition {
    NewJson::Child child;
    const JsonNode* behind;
  };

  void replaceAll(TextEdits& edits) const;
  std::string keptGap(std::size_t from, std::size_t to) const;
  std::string textOf(const Addition& addition, const std::string& gap) const;
  std::string additionsBehind(const JsonNode& node, bool isLast) const;

  const JsonDocument* document_;
  const Layout* layout_;
  const JsonNode* container_;
  std::vector<Place> children_;
  std::vector<Addition> additions_;
  std::size_t numRemoved_ = 0;
};

}  // namespace tool
