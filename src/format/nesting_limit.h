// NestingLimit: stands between the parser, which is recursive, and what takes the parser's events, such
// as a document. Ends the parse where a file nests so deeply that the stack might not hold it.
#pragma once

#include <kostyle/codes.h>

#include <cstdint>

#include "format/json.h"

namespace Tesk::KoStyle {

template <class Handler>
class NestingLimit {
 public:
  using Ch = Char;

  explicit NestingLimit(Handler& handler) : handler_(handler) {}

  bool Null() { return handler_.Null(); }
  bool Bool(bool value) { return handler_.Bool(value); }
  bool Int(int value) { return handler_.Int(value); }
  bool Uint(unsigned value) { return handler_.Uint(value); }
  bool Int64(std::int64_t value) { return handler_.Int64(value); }
  bool Uint64(std::uint64_t value) { return handler_.Uint64(value); }
  bool Double(double value) { return handler_.Double(value); }
  bool RawNumber(const Ch* text, rapidjson::SizeType length, bool copy) {
    return handler_.RawNumber(text, length, copy);
  }
  bool String(const Ch* text, rapidjson::SizeType length, bool copy) {
    return handler_.String(text, length, copy);
  }
  bool Key(const Ch* text, rapidjson::SizeType length, bool copy) {
    return handler_.Key(text, length, copy);
  }
  bool StartObject() { return enter() && handler_.StartObject(); }
  bool EndObject(rapidjson::SizeType count) {
    --level_;
    return handler_.EndObject(count);
  }
  bool StartArray() { return enter() && handler_.StartArray(); }
  bool EndArray(rapidjson::SizeType count) {
    --level_;
    return handler_.EndArray(count);
  }

 private:
  bool enter() { return ++level_ <= KOSTYLE_MAX_NESTING; }

  Handler& handler_;
  int level_ = 0;
};

}  // namespace Tesk::KoStyle
