#include "printing/value_json.h"

#include <cmath>

namespace tool {

void writeValue(JsonWriter& writer, const Value& value) {
  if (const auto* integer = std::get_if<int>(&value)) {
    writer.Int(*integer);
  } else if (const auto* number = std::get_if<float>(&value)) {
    const std::string text = floatText(*number);
    if (std::isfinite(*number)) {
      writer.RawValue(text.data(), text.size(), rapidjson::kNumberType);
    } else {
      writeText(writer, text);
    }
  } else {
    writeText(writer, toUtf8(std::get<Text>(value)));
  }
}

}  // namespace tool
