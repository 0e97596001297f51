#include "editing/layout.h"

#include <algorithm>
#include <cstddef>

namespace tool {
namespace {

constexpr const char* lineEnds = "\r\n";

// Behind the line break that starts at a place.
std::size_t endOfBreak(const std::string& text, std::size_t at) {
  return at + (text.compare(at, 2, "\r\n") == 0 ? 2 : 1);
}

// White space without the empty lines in it.
std::string withoutEmptyLines(const std::string& space) {
  const std::size_t first = space.find_first_of(lineEnds);
  if (first == space.npos) return space;
  const std::size_t last = space.find_last_of(lineEnds);
  return space.substr(0, endOfBreak(space, first)) + space.substr(last + 1);
}

std::size_t depthOf(const JsonNode& node) {
  std::size_t depth = 0;
  for (const JsonNode* at = &node; (at = at->parent());) ++depth;
  return depth;
}

// The document has an escape for what is not ASCII, and nothing else that is not.
bool escapesAllButAscii(const std::string& utf8) {
  const auto isAscii = [](char byte) { return static_cast<unsigned char>(byte) < 0x80; };
  if (!std::all_of(utf8.begin(), utf8.end(), isAscii)) return false;
  for (std::size_t at = utf8.find("\\u"); at != utf8.npos; at = utf8.find("\\u", at + 1))
    if (utf8.compare(at + 2, 2, "00") != 0 || utf8.compare(at + 4, 1, "8") >= 0) return true;
  return false;
}

}  // namespace

bool hasLineBreak(const std::string& space) { return space.find_first_of(lineEnds) != space.npos; }

Layout::Layout(const JsonDocument& document) : document_(&document) {
  const SourceText& source = document.source();
  const auto end = static_cast<std::uint32_t>(document.parsedEnd());
  onlyAscii_ = escapesAllButAscii(source.utf8({static_cast<std::uint32_t>(source.begin()), end}));
  takeDefaults();
}

void Layout::takeDefaults() {
  const JsonNode& root = document_->root();
  bool hasStep = false;
  bool hasColon = false;
  bool hasSeparator = false;
  for (const JsonNode* node = &root; node != &root + root.treeSize; ++node) {
    if (node->isMember() && !hasColon) {
      const std::string space = between(node->keySpan.end, node->span.begin);
      hasColon = !hasLineBreak(space);
      if (hasColon) colon_ = space;
    }
    if (node->numChildren == 0) continue;
    const std::string start = lead(*node);
    if (hasLineBreak(start) && !hasStep) {
      hasStep = true;
      const std::size_t lineEnd = start.find_first_of(lineEnds);
      lineBreak_ = start.substr(lineEnd, endOfBreak(start, lineEnd) - lineEnd);
      const std::string outer = indentation(node->span.begin);
      const std::string inner = start.substr(start.find_last_of(lineEnds) + 1);
      if (inner.compare(0, outer.size(), outer) == 0) step_ = inner.substr(outer.size());
    }
    if (node->numChildren < 2 || hasSeparator) continue;
    auto child = node->begin();
    const JsonNode& first = *child;
    ++child;
    const std::string space = gap(first, *child);
    hasSeparator = !hasLineBreak(space);
    if (hasSeparator) separator_ = space;
  }
  if (!hasSeparator && colon_.back() == ' ') separator_ = ", ";
}

std::string Layout::between(std::size_t begin, std::size_t end) const {
  return document_->source().utf8({static_cast<std::uint32_t>(begin), static_cast<std::uint32_t>(end)});
}

// What the line of a place starts with.
std::string Layout::indentation(std::size_t place) const {
  const SourceText& source = document_->source();
  std::size_t start = place;
  while (start > source.begin()) {
    const std::size_t before = source.before(start);
    const char32_t codePoint = source.at(before).codePoint;
    if (codePoint == '\n' || codePoint == '\r') break;
    start = before;
  }
  std::size_t end = start;
  for (Character at; end < place; end += at.size) {
    at = source.at(end);
    if (at.codePoint != ' ' && at.codePoint != '\t') break;
  }
  return between(start, end);
}

std::string Layout::lead(const JsonNode& container) const {
  const std::size_t unit = document_->source().encoding().unitSize;
  const std::size_t end =
      container.numChildren > 0 ? (*container.begin()).wholeSpan().begin : container.span.end - unit;
  return between(container.span.begin + unit, end);
}

std::string Layout::tail(const JsonNode& container) const {
  const JsonNode* last = nullptr;
  for (const JsonNode& child : container) last = &child;
  const std::size_t unit = document_->source().encoding().unitSize;
  return last ? between(last->span.end, container.span.end - unit) : std::string();
}

std::string Layout::gap(const JsonNode& first, const JsonNode& second) const {
  return between(first.span.end, second.wholeSpan().begin);
}

std::string Layout::newGap(const JsonNode& container, const JsonNode& behind) const {
  const JsonNode* first = nullptr;
  const JsonNode* second = nullptr;
  for (const JsonNode& child : container) {
    if (first == &behind) break;
    first = second;
    second = &child;
  }
  if (!first) {
    const std::string start = lead(container);
    return hasLineBreak(start) ? "," + withoutEmptyLines(start) : separator_;
  }
  const std::string space = gap(*first, *second);
  const std::size_t comma = space.find(',');
  return withoutEmptyLines(space.substr(0, comma)) + ',' + withoutEmptyLines(space.substr(comma + 1));
}

std::string Layout::colon(const JsonNode& object) const {
  for (const JsonNode& member : object) {
    std::string space = between(member.keySpan.end, member.span.begin);
    if (!hasLineBreak(space)) return space;
  }
  return colon_;
}

Layout::Form Layout::formOf(const JsonNode& container) const {
  Form form{false, {}, separator_, container.isObject() ? colon(container) : colon_};
  const std::string start = lead(container);
  form.isBroken = hasLineBreak(start);
  if (form.isBroken) return form;
  form.padding = start;
  if (container.numChildren < 2) return form;
  auto child = container.begin();
  const JsonNode& first = *child;
  ++child;
  const std::string space = gap(first, *child);
  if (!hasLineBreak(space)) form.separator = space;
  return form;
}

// The form of a sibling; else that of others as deep in the document, or of any.
Layout::Form Layout::formFor(JsonKind kind, const JsonNode* siblings, std::size_t depth,
                             bool isBroken) const {
  const auto isExample = [&](const JsonNode& node) {
    return node.kind == kind && node.numChildren > 0;
  };
  const JsonNode* example = nullptr;
  if (siblings) {
    for (const JsonNode& sibling : *siblings)
      if (isExample(sibling)) example = &sibling;
    if (example) return formOf(*example);
  }
  const JsonNode& root = document_->root();
  for (const JsonNode* node = &root; node != &root + root.treeSize; ++node) {
    if (!isExample(*node) || (!isBroken && hasLineBreak(lead(*node)))) continue;
    if (depthOf(*node) == depth) return formOf(*node);
    if (!example && (kind == JsonKind::array || !isBroken)) example = node;
  }
  if (example) return formOf(*example);
  return {isBroken && kind == JsonKind::object, {}, separator_, colon_};
}

std::string Layout::text(const NewJson& value, const JsonNode& container, bool isBroken) const {
  const std::size_t depth = depthOf(container) + 1;
  std::string indent = container.numChildren > 0 ? indentation((*container.begin()).wholeSpan().begin)
                                                 : indentation(container.span.begin);
  if (container.numChildren == 0 && isBroken) indent += step_;
  return valueText(value, formFor(value.kind, &container, depth, isBroken), indent, depth);
}

std::string Layout::inside(const std::vector<NewJson::Child>& children,
                           const JsonNode& container) const {
  const JsonNode* const parent = container.parent();
  const std::size_t depth = depthOf(container);
  const bool isBroken = hasLineBreak(lead(container));
  Form form =
      formFor(container.kind, parent, depth, isBroken || (parent && hasLineBreak(lead(*parent))));
  form.isBroken = form.isBroken || isBroken;
  return childrenText(children, form, indentation(container.span.begin), depth);
}

std::string Layout::childrenText(const std::vector<NewJson::Child>& children, const Form& form,
                                 const std::string& indent, std::size_t depth) const {
  const std::string inner = form.isBroken ? indent + step_ : indent;
  const std::string start = form.isBroken ? lineBreak_ + inner : form.padding;
  const std::string separator = form.isBroken ? ',' + lineBreak_ + inner : form.separator;
  std::string result;
  for (const NewJson::Child& child : children) {
    result += result.empty() ? start : separator;
    if (!child.key.empty()) result += child.key + form.colon;
    const Form below = formFor(child.value.kind, nullptr, depth + 1, form.isBroken);
    result += valueText(child.value, below, inner, depth + 1);
  }
  return result + (form.isBroken ? lineBreak_ + indent : form.padding);
}

std::string Layout::valueText(const NewJson& value, const Form& form, const std::string& indent,
                              std::size_t depth) const {
  if (value.kind != JsonKind::array && value.kind != JsonKind::object) return value.text;
  const char* const brackets = value.kind == JsonKind::array ? "[]" : "{}";
  if (value.children.empty()) return brackets;
  return brackets[0] + childrenText(value.children, form, indent, depth) + brackets[1];
}

}  // namespace tool
