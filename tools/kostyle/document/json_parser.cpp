// From the parser's events to nodes with their places.
#include <algorithm>
#include <utility>

#include "document/json_document.h"
#include "format/json.h"
#include "format/nesting_limit.h"
#include "format/source_encodings.h"
#include "format/unit_stream.h"

namespace tool {

using namespace Tesk::KoStyle;

class JsonDocumentMaker {
 public:
  explicit JsonDocumentMaker(JsonDocument& document) : document_(document) {}

  void make() {
    BytesInMemory memory{document_.source().bytes()};
    const Block first(&memory);
    switch (document_.source().encoding().unitSize) {
      case 4:
        return parse<Utf32Source, char32_t>(memory, first);
      case 2:
        return parse<Utf16Source, char16_t>(memory, first);
      default:
        return parse<Utf8Source, char>(memory, first);
    }
  }

 private:
  template <class Stream>
  class Handler;

  template <class Source, class Unit>
  void parse(BytesInMemory& memory, const Block& first);

  JsonDocument& document_;
};

// Takes the parser's events. Each comes when the stream has just passed the token that it is about.
template <class Stream>
class JsonDocumentMaker::Handler {
 public:
  Handler(JsonDocument& document, const Stream& stream)
      : document_(document), nodes_(document.nodes_), stream_(stream), passed_(stream.offset()) {}

  bool Null() { return add(JsonKind::null); }
  bool Bool(bool value) { return addNumber(JsonKind::boolean, value); }
  bool Int(int value) { return addNumber(JsonKind::integer, value); }
  bool Uint(unsigned value) {
    return addNumber(value <= INT32_MAX ? JsonKind::integer : JsonKind::wideInteger, value);
  }
  bool Int64(std::int64_t value) {
    return addNumber(JsonKind::wideInteger, static_cast<double>(value));
  }
  bool Uint64(std::uint64_t value) {
    return addNumber(JsonKind::wideInteger, static_cast<double>(value));
  }
  bool Double(double value) { return addNumber(JsonKind::real, value); }
  bool RawNumber(const Char*, rapidjson::SizeType, bool) { return false; }
  bool String(const Char* text, rapidjson::SizeType length, bool) {
    add(JsonKind::string);
    nodes_.back().text = keep({text, length});
    return true;
  }
  bool Key(const Char* text, rapidjson::SizeType length, bool) {
    keySpan_ = takeToken();
    key_ = keep({text, length});
    return true;
  }
  bool StartObject() { return open(JsonKind::object); }
  bool EndObject(rapidjson::SizeType) { return close(); }
  bool StartArray() { return open(JsonKind::array); }
  bool EndArray(rapidjson::SizeType) { return close(); }

 private:
  // The token that ends where the stream is, behind the last one and what separates them.
  Span takeToken() {
    const SourceText& source = document_.source();
    const auto separates = [&](char32_t character) {
      return character == U' ' || character == U'\t' || character == U'\n' || character == U'\r' ||
             character == U',' || character == U':';
    };
    const std::size_t end = stream_.offset();
    std::size_t begin = passed_;
    while (begin < end && separates(source.at(begin).codePoint)) begin += source.at(begin).size;
    passed_ = end;
    return {static_cast<std::uint32_t>(begin), static_cast<std::uint32_t>(end)};
  }

  Span keep(TextView text) {
    Text& texts = document_.texts_;
    const auto begin = static_cast<std::uint32_t>(texts.size());
    texts += text;
    return {begin, static_cast<std::uint32_t>(texts.size())};
  }

  bool add(JsonKind kind) {
    JsonNode node;
    node.kind = kind;
    node.span = takeToken();
    node.key = std::exchange(key_, {});
    node.keySpan = std::exchange(keySpan_, {});
    if (!open_.empty()) {
      node.up = static_cast<std::uint32_t>(nodes_.size() - open_.back());
      node.place = nodes_[open_.back()].numChildren++;
    }
    nodes_.push_back(node);
    return true;
  }

  bool addNumber(JsonKind kind, double value) {
    add(kind);
    nodes_.back().number = value;
    return true;
  }

  bool open(JsonKind kind) {
    add(kind);
    open_.push_back(nodes_.size() - 1);
    return true;
  }

  bool close() {
    JsonNode& node = nodes_[open_.back()];
    node.treeSize = static_cast<std::uint32_t>(nodes_.size() - open_.back());
    node.span.end = takeToken().end;
    open_.pop_back();
    return true;
  }

  JsonDocument& document_;
  std::vector<JsonNode>& nodes_;
  const Stream& stream_;
  std::size_t passed_;
  std::vector<std::size_t> open_;
  Span keySpan_;
  Span key_;
};

template <class Source, class Unit>
void JsonDocumentMaker::parse(BytesInMemory& memory, const Block& first) {
  using Stream = UnitStream<Unit, BytesInMemory>;
  const FileEncoding& encoding = document_.source().encoding();
  Stream stream(&memory, first, encoding.markSize, encoding.order);
  Handler<Stream> handler(document_, stream);
  NestingLimit limited(handler);
  json::StackMemory stackMemory;
  rapidjson::GenericReader<Source, json::Encoding, json::StackMemory> reader(&stackMemory);
  const auto result = reader.template Parse<rapidjson::kParseDefaultFlags>(stream, limited);
  document_.parsedEnd_ = stream.offset();
  if (!result.IsError()) return;
  // The parser counts up to and including the unit that it looks at, when there is one.
  const std::size_t size = document_.source().end();
  std::size_t place = result.Offset();
  if (place < size || stream.offset() < size) place -= std::min(place, encoding.unitSize);
  place = std::max(place, std::min(encoding.markSize, size));
  document_.error_ = {static_cast<int>(result.Code()), result.Offset(), place};
}

JsonDocument::JsonDocument(const SourceText& source) : source_(&source) {
  JsonDocumentMaker(*this).make();
}

}  // namespace tool
