#include "format/style_parser.h"

#include "format/file_encoding.h"
#include "format/nesting_limit.h"
#include "format/unit_stream.h"

namespace Tesk::KoStyle {
namespace {

constexpr std::size_t chunkSize = 64 * 1024;
constexpr std::size_t stackSize = 1024;

}  // namespace

StyleParser::StyleParser()
    : firstChunk_(new char[chunkSize]), pool_(firstChunk_.get(), chunkSize, chunkSize, &allocator_) {}

rapidjson::ParseResult StyleParser::parse(std::FILE* file) {
  document_.reset();
  pool_.Clear();
  document_.emplace(&pool_, stackSize, &stackMemory_);
  const Block first(file);
  const FileEncoding encoding = FileEncoding::of(first);
  switch (encoding.unitSize) {
    case 4:
      return parse(utf32_, UnitStream<char32_t>(file, first, encoding.markSize, encoding.order));
    case 2:
      return parse(utf16_, UnitStream<char16_t>(file, first, encoding.markSize, encoding.order));
    default:
      return parse(utf8_, UnitStream<char>(file, first, encoding.markSize, encoding.order));
  }
}

template <class Source, class Stream>
rapidjson::ParseResult StyleParser::parse(Reader<Source>& reader, Stream&& units) {
  rapidjson::ParseResult result;
  auto parseInto = [&](json::Document& document) {
    NestingLimit handler(document);
    result = reader.template Parse<rapidjson::kParseDefaultFlags>(units, handler);
    return !result.IsError();
  };
  document_->Populate(parseInto);
  return result;
}

}  // namespace Tesk::KoStyle
