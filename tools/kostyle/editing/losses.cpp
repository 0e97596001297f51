#include "editing/losses.h"

#include <fmt/core.h>

#include <cstdlib>
#include <set>

#include "basics/text.h"
#include "basics/value.h"
#include "document/json_document.h"

namespace tool {
namespace {

class LossSearch {
 public:
  LossSearch(const JsonDocument& whole, const JsonDocument& written)
      : whole_(whole), written_(written) {}

  std::vector<std::string> find() {
    compareObjects(whole_.root(), written_.root());
    if (whole_.parsedEnd() < whole_.source().end())
      losses_.emplace_back("what stands behind the end of the document is lost");
    return std::move(losses_);
  }

 private:
  std::string shown(const JsonNode& node) const {
    constexpr std::size_t longest = 60;
    std::string text = whole_.source().utf8(node.span);
    if (text.size() <= longest) return text;
    std::size_t end = longest;
    while ((static_cast<unsigned char>(text[end]) & 0xC0) == 0x80) --end;
    return text.substr(0, end) + "...";
  }

  void lose(const JsonNode& node) {
    losses_.push_back(fmt::format("{} is lost: {}", whole_.path(node), shown(node)));
  }

  // Members of one key are told apart by their values; one of them can be in the other document.
  bool areAlike(const JsonNode& node, const JsonNode& other) const {
    if (node.kind != other.kind) return false;
    if (node.isString()) return whole_.text(node) == written_.text(other);
    if (node.kind == JsonKind::real)
      return static_cast<float>(node.number) == static_cast<float>(other.number);
    return !node.isNumber() || node.number == other.number;
  }

  // Digits that no float has: neither in full nor in its shortest form.
  static bool isRounded(const JsonNode& node) {
    if (node.kind != JsonKind::real) return false;
    const auto number = static_cast<float>(node.number);
    return double{number} != node.number &&
           std::strtod(floatText(number).c_str(), nullptr) != node.number;
  }

  void compare(const JsonNode& node, const JsonNode& other) {
    if (node.isObject()) return compareObjects(node, other);
    if (node.isArray()) return compareLists(node, other);
    if (isRounded(node))
      losses_.push_back(fmt::format("{} is rounded: {} to {}", whole_.path(node), shown(node),
                                    floatText(static_cast<float>(node.number))));
  }

  void compareObjects(const JsonNode& object, const JsonNode& other) {
    std::set<const JsonNode*> matched;
    for (const JsonNode& member : object) {
      const JsonNode* const found = written_.member(other, whole_.key(member));
      if (found && areAlike(member, *found) && matched.insert(found).second) {
        compare(member, *found);
      } else {
        lose(member);
      }
    }
  }

  // Their order means nothing, and a value counts once.
  void compareLists(const JsonNode& list, const JsonNode& other) {
    std::set<const JsonNode*> matched;
    for (const JsonNode& element : list) {
      bool isThere = false;
      for (const JsonNode& candidate : other)
        isThere = isThere || (areAlike(element, candidate) && matched.insert(&candidate).second);
      if (!isThere) lose(element);
    }
  }

  const JsonDocument& whole_;
  const JsonDocument& written_;
  std::vector<std::string> losses_;
};

}  // namespace

std::vector<std::string> losses(const std::string& whole, const std::string& written) {
  const SourceText source(whole);
  const SourceText other(written);
  return LossSearch(JsonDocument(source), JsonDocument(other)).find();
}

std::vector<std::string> encodingLosses(const std::string& whole) {
  const SourceText source(whole);
  std::vector<std::string> losses;
  if (source.encoding().unitSize > 1)
    losses.push_back(fmt::format("the encoding {} becomes UTF-8", source.encodingName()));
  if (source.begin() > 0) losses.emplace_back("the byte-order mark is lost");
  return losses;
}

}  // namespace tool
