#include "format/style_parser.h"

#include <kostyle/codes.h>

#include "format/countable_numbers.h"

namespace Tesk::KoStyle {
namespace {

// Stands between the parser, which is recursive, and the document: ends the parse where a document
// nests so deeply that the stack might not hold it.
class NestingLimit {
 public:
  using Ch = json::Document::Ch;

  explicit NestingLimit(json::Document& document) : document_(document) {}

  bool Null() { return document_.Null(); }
  bool Bool(bool value) { return document_.Bool(value); }
  bool Int(int value) { return document_.Int(value); }
  bool Uint(unsigned value) { return document_.Uint(value); }
  bool Int64(std::int64_t value) { return document_.Int64(value); }
  bool Uint64(std::uint64_t value) { return document_.Uint64(value); }
  bool Double(double value) { return document_.Double(value); }
  bool RawNumber(const Ch* text, std::size_t length, bool copy) {
    return document_.RawNumber(text, length, copy);
  }
  bool String(const Ch* text, std::size_t length, bool copy) {
    return document_.String(text, length, copy);
  }
  bool Key(const Ch* text, std::size_t length, bool copy) { return document_.Key(text, length, copy); }
  bool StartObject() { return enter() && document_.StartObject(); }
  bool EndObject(std::size_t count) { return leave() && document_.EndObject(count); }
  bool StartArray() { return enter() && document_.StartArray(); }
  bool EndArray(std::size_t count) { return leave() && document_.EndArray(count); }

 private:
  bool enter() { return ++level_ <= KOSTYLE_MAX_NESTING; }
  bool leave() { return level_-- > 0; }

  json::Document& document_;
  int level_ = 0;
};

}  // namespace

rapidjson::ParseResult parseStyleDocument(std::FILE* file, json::Document& document) {
  using ByteStream = rapidjson::FileReadStream;
  using AnyEncoding = rapidjson::AutoUTF<unsigned>;

  char buffer[256];
  ByteStream bytes(file, buffer, sizeof buffer);
  CountableNumbers<rapidjson::AutoUTFInputStream<unsigned, ByteStream>> characters(bytes);
  rapidjson::GenericReader<AnyEncoding, json::Encoding, json::ThrowingAllocator> reader;
  rapidjson::ParseResult result;
  auto parse = [&](json::Document& target) {
    NestingLimit handler(target);
    result = reader.Parse<rapidjson::kParseDefaultFlags>(characters, handler);
    return !result.IsError();
  };
  document.Populate(parse);
  return result;
}

}  // namespace Tesk::KoStyle
