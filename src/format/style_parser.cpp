#include "format/style_parser.h"

#include "format/nesting_limit.h"
#include "format/unit_stream.h"

namespace Tesk::KoStyle {
namespace {

constexpr std::size_t chunkSize = 65536;
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
      return parseUnits<char32_t>(utf32_, file, first, encoding);
    case 2:
      return parseUnits<char16_t>(utf16_, file, first, encoding);
    default:
      return parseUnits<char>(utf8_, file, first, encoding);
  }
}

template <class Unit, class Source>
rapidjson::ParseResult StyleParser::parseUnits(Reader<Source>& reader, std::FILE* file,
                                               const Block& first, const FileEncoding& encoding) {
  UnitStream<Unit> units(file, first, encoding.markSize, encoding.order);
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
