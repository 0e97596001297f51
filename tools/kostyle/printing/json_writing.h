// JSON that the tool prints: indented, valid UTF-8 and harmless for a terminal whatever its texts hold.
#pragma once

#include <rapidjson/prettywriter.h>
#include <rapidjson/stringbuffer.h>

#include <cstddef>
#include <string>
#include <string_view>

#include "basics/text.h"
#include "editing/new_json.h"

namespace tool {

using JsonWriter = rapidjson::PrettyWriter<rapidjson::StringBuffer>;

/// A key too.
inline void writeText(JsonWriter& writer, std::string_view utf8) {
  const std::string json = printable(jsonString(fromUtf8(toUtf8(fromUtf8(utf8))), false));
  writer.RawValue(json.data(), json.size(), rapidjson::kStringType);
}

inline void writeMember(JsonWriter& writer, const char* key, std::string_view utf8) {
  writer.Key(key);
  writeText(writer, utf8);
}

inline void writeMember(JsonWriter& writer, const char* key, std::size_t number) {
  writer.Key(key);
  writer.Uint64(number);
}

/// What a writer wrote, with a line end.
inline std::string linesOf(const rapidjson::StringBuffer& buffer) {
  return std::string(buffer.GetString(), buffer.GetSize()) + '\n';
}

}  // namespace tool
