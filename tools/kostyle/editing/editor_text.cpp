#include "editing/editor_text.h"

#include <fmt/core.h>

#include <algorithm>

#include "basics/failure.h"
#include "document/json_document.h"

namespace tool {
namespace {

// Bytes that are no text in their encoding would not come back from an editor.
std::string textOf(const std::string& file, const SourceText& source) {
  const auto begin = static_cast<std::uint32_t>(source.begin());
  const auto end = static_cast<std::uint32_t>(source.end());
  std::string text = source.utf8({begin, end});
  if (source.encoded(text) != source.bytes({begin, end}))
    throw Refused(
        fmt::format("{}: not valid {}: no editor could keep its bytes", file, source.encodingName()));
  return text;
}

std::size_t count(const std::string& text, const std::string& part) {
  std::size_t number = 0;
  for (std::size_t at = text.find(part); at != text.npos; at = text.find(part, at + part.size()))
    ++number;
  return number;
}

std::string replaced(std::string text, const std::string& part, const std::string& by) {
  for (std::size_t at = text.find(part); at != text.npos; at = text.find(part, at + by.size()))
    text.replace(at, part.size(), by);
  return text;
}

// Empty when there are several kinds.
std::string lineEndOf(const std::string& text) {
  const std::size_t feeds = count(text, "\n");
  const std::size_t returns = count(text, "\r");
  if (returns == 0) return "\n";
  if (feeds == 0) return "\r";
  return feeds == returns && count(text, "\r\n") == feeds ? "\r\n" : "";
}

// A document whose parts stand as they are written, each in a line of its own.
class Indenter {
 public:
  explicit Indenter(const JsonDocument& document) : document_(document) {}

  std::string indented() {
    add(document_.root(), 0);
    return std::move(text_);
  }

 private:
  std::string written(Span span) const { return document_.source().utf8(span); }

  void addLine(std::size_t depth) { text_ += '\n' + std::string(4 * depth, ' '); }

  void add(const JsonNode& node, std::size_t depth) {
    if (node.numChildren == 0) {
      text_ += node.isObject() ? "{}" : node.isArray() ? "[]" : written(node.span);
      return;
    }
    text_ += node.isObject() ? '{' : '[';
    for (const JsonNode& child : node) {
      if (child.place > 0) text_ += ',';
      addLine(depth + 1);
      if (child.isMember()) text_ += written(child.keySpan) + ": ";
      add(child, depth + 1);
    }
    addLine(depth);
    text_ += node.isObject() ? '}' : ']';
  }

  const JsonDocument& document_;
  std::string text_;
};

// A document in one line, over many.
std::string indented(const SourceText& source) {
  const JsonDocument document(source);
  if (document.error()) return {};
  const Span root = document.root().span;
  if (source.utf8(root).find_first_of("\r\n") != std::string::npos) return {};
  const auto utf8 = [&](std::size_t begin, std::size_t end) {
    return source.utf8({static_cast<std::uint32_t>(begin), static_cast<std::uint32_t>(end)});
  };
  return utf8(source.begin(), root.begin) + Indenter(document).indented() +
         utf8(root.end, source.end());
}

}  // namespace

EditorText::EditorText(const std::string& file, const std::string& bytes) : source_(bytes) {
  text_ = textOf(file, source_);
  lineEnd_ = lineEndOf(text_);
  if (std::string lines = indented(source_); !lines.empty()) text_ = std::move(lines);
  if (!lineEnd_.empty()) text_ = replaced(std::move(text_), lineEnd_, "\n");
  // Editors end the last line.
  endsLastLine_ = text_.empty() || text_.back() == '\n';
  if (!endsLastLine_) text_ += '\n';
}

std::string EditorText::bytesOf(const std::string& edited) const {
  std::string text = edited;
  if (!lineEnd_.empty()) text = replaced(replaced(std::move(text), "\r\n", "\n"), "\n", lineEnd_);
  const std::string last = lineEnd_.empty() ? "\n" : lineEnd_;
  const bool endsLine =
      text.size() >= last.size() && text.compare(text.size() - last.size(), last.size(), last) == 0;
  if (!endsLastLine_ && endsLine) text.erase(text.size() - last.size());
  const auto begin = static_cast<std::uint32_t>(source_.begin());
  return std::string(source_.bytes({0, begin})) + source_.encoded(text);
}

std::string savedText(const std::string& file, const std::string& bytes) {
  return textOf(file, SourceText(bytes));
}

}  // namespace tool
