// NestingLimit: stands between the parser, which is recursive, and the document. Ends the parse where a
// document nests so deeply that the stack might not hold it.
#pragma once

#include <kostyle/codes.h>

#include <cstdint>

#include "format/json.h"

namespace Tesk::KoStyle {

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
  bool RawNumber(const Ch* text, rapidjson::SizeType length, bool copy) {
    return document_.RawNumber(text, length, copy);
  }
  bool String(const Ch* text, rapidjson::SizeType length, bool copy) {
    return document_.String(text, length, copy);
  }
  bool Key(const Ch* text, rapidjson::SizeType length, bool copy) {
    return document_.Key(text, length, copy);
  }
  bool StartObject() { return enter() && document_.StartObject(); }
  bool EndObject(rapidjson::SizeType count) {
    --level_;
    return document_.EndObject(count);
  }
  bool StartArray() { return enter() && document_.StartArray(); }
  bool EndArray(rapidjson::SizeType count) {
    --level_;
    return document_.EndArray(count);
  }

 private:
  bool enter() { return ++level_ <= KOSTYLE_MAX_NESTING; }

  json::Document& document_;
  int level_ = 0;
};

}  // namespace Tesk::KoStyle
