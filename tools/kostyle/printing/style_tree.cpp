#include "printing/style_tree.h"

#include <fmt/format.h>

#include <utility>
#include <vector>

#include "basics/text.h"
#include "reading/attributes.h"
#include "reading/parameter_value.h"
#include "reading/reasons.h"

namespace tool {
namespace {

struct Node {
  std::string text;
  std::vector<Node> children;
};

void appendChildren(std::string& lines, const Node& node, const std::string& indent) {
  for (const Node& child : node.children) {
    const bool last = &child == &node.children.back();
    lines += fmt::format("{}{} {}\n", indent, last ? "└─" : "├─", child.text);
    appendChildren(lines, child, indent + (last ? "   " : "│  "));
  }
}

template <typename Values>
Node listNode(const char* title, const Values& values) {
  return {fmt::format("{}: {}", title,
                      values.empty() ? "none" : fmt::format("{}", fmt::join(values, ", "))),
          {}};
}

Node effectNode(KoStyleEffect* effect) {
  Node node{printable(toUtf8(Effect_id(effect))), {}};
  for (std::size_t i = 0; i < Effect_numParameter(effect); ++i) {
    KoStyleParameter* parameter = Effect_parameter(effect, i);
    const Value value = valueOf(parameter);
    node.children.push_back({fmt::format("{}: {} {}", printable(toUtf8(Parameter_name(parameter))),
                                         typeText(value), valueText(value)),
                             {}});
  }
  return node;
}

Node chainNode(const Chain& chain, KoStyleStyle* style) {
  Node node{fmt::format("{}: {}", chain.title, chain.count(style)), {}};
  for (std::size_t i = 0; i < chain.count(style); ++i)
    node.children.push_back(effectNode(chain.stored(style, i)));
  return node;
}

}  // namespace

StyleSource sourceOf(KoStyleStyle* style) {
  return {kindText(Style_type(style)), pathToUtf8(Style_path(style))};
}

std::string styleTree(KoStyleStyle* style, const StyleSource& source) {
  Node root{printable(toUtf8(Style_name(style))), {}};
  const auto addText = [&](const char* title, const std::string& text) {
    root.children.push_back(
        {fmt::format("{}: {}", title, text.empty() ? "none" : printable(text)), {}});
  };
  addText("id", toUtf8(Style_id(style)));
  addText("kind", source.kind);
  addText("path", source.path);
  addText("vendor", toUtf8(Style_vendor(style)));
  root.children.push_back(listNode("languages", languages(style)));
  for (const TextList& list : textLists()) {
    std::vector<std::string> texts = values(list, style);
    for (std::string& text : texts) text = printable(text);
    root.children.push_back(listNode(list.title, texts));
  }
  for (const Chain& chain : chains()) root.children.push_back(chainNode(chain, style));
  std::string lines = root.text + '\n';
  appendChildren(lines, root, "");
  return lines;
}

}  // namespace tool
