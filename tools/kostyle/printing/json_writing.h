// JSON that the tool prints: indented, valid UTF-8 whatever its texts hold.
#pragma once

#include <rapidjson/prettywriter.h>
#include <rapidjson/stringbuffer.h>

#include <cstddef>
#include <string>
#include <string_view>

#include "basics/text.h"

namespace tool {

using JsonWriter = rapidjson::PrettyWriter<rapidjson::StringBuffer>;

inline void writeText(JsonWriter& writer, std::string_view utf8) {
  const std::string valid = toUtf8(fromUtf8(utf8));
  writer.String(valid.data(), static_cast<rapidjson::SizeType>(valid.size()));
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
