#include "editing/losses.h"

#include <fmt/core.h>

#include <cstdlib>
#include <map>
#include <set>
#include <tuple>

#include "basics/text.h"
#include "basics/value.h"
#include "document/json_document.h"
#include "format/style_keys.h"

namespace tool {
namespace {

// Values that are alike can stand for each other. Objects and lists are compared by themselves.
using Likeness = std::tuple<JsonKind, double, Text>;

Likeness likeness(const JsonDocument& document, const JsonNode& node) {
  const double number =
      node.kind == JsonKind::real ? double{static_cast<float>(node.number)} : node.number;
  return {node.kind, node.isNumber() ? number : 0,
          node.isString() ? Text(document.text(node)) : Text()};
}

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

  // Members of one key are told apart by their values; one of them can be in the other document.
  void compareObjects(const JsonNode& object, const JsonNode& other) {
    std::map<Text, const JsonNode*> left;
    for (const JsonNode& member : other) left.emplace(written_.key(member), &member);
    const bool isRenaming = holdsParameters(object);
    for (const JsonNode& member : object) {
      const TextView key = whole_.key(member);
      const TextView name = isRenaming ? Tesk::KoStyle::key::parameterName(key) : key;
      const auto found = left.find(Text(name));
      if (found == left.end() || !(likeness(whole_, member) == likeness(written_, *found->second))) {
        lose(member);
        continue;
      }
      if (name != key)
        losses_.push_back(
            fmt::format("{} is renamed to {}", whole_.path(member), inQuotes(toUtf8(name))));
      compare(member, *found->second);
      left.erase(found);
    }
  }

  // The order of a list means nothing, and a value counts once.
  void compareLists(const JsonNode& list, const JsonNode& other) {
    std::set<Likeness> left;
    for (const JsonNode& element : other) left.insert(likeness(written_, element));
    for (const JsonNode& element : list)
      if (left.erase(likeness(whole_, element)) == 0) lose(element);
  }

  // Of an effect of a chain.
  bool holdsParameters(const JsonNode& object) const {
    std::size_t depth = 0;
    for (const JsonNode* at = &object; at->parent(); at = at->parent()) ++depth;
    return depth == 3 && whole_.key(object) == Tesk::KoStyle::key::parameter;
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
