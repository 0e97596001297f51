#include "editing/counting_members.h"

#include "format/style_keys.h"

namespace tool {
namespace {

namespace key = Tesk::KoStyle::key;

bool isEffect(const JsonDocument& document, const JsonNode& member) {
  return member.isObject() && document.member(member, key::parameter);
}

bool isParameter(const JsonNode& member) {
  return member.kind == JsonKind::integer || member.kind == JsonKind::real || member.isString();
}

bool hasName(const JsonDocument& document, const JsonNode& member, TextView name) {
  return asSeen(key::parameterName(document.key(member))) == name;
}

}  // namespace

TextView asSeen(TextView text) { return text.substr(0, text.find(KoStyleChar{0})); }

std::vector<const JsonNode*> effectsCalled(const JsonDocument& document, const JsonNode& chain,
                                           TextView id) {
  std::vector<const JsonNode*> found;
  for (const JsonNode& member : chain)
    if (asSeen(document.key(member)) == id && isEffect(document, member)) found.push_back(&member);
  return found;
}

std::vector<const JsonNode*> parametersCalled(const JsonDocument& document, const JsonNode& parameters,
                                              TextView name) {
  std::vector<const JsonNode*> found;
  for (const JsonNode& member : parameters)
    if (isParameter(member) && hasName(document, member, name)) found.push_back(&member);
  return found;
}

const JsonNode* memberCalled(const JsonDocument& document, const JsonNode& parameters, TextView name) {
  for (const JsonNode& member : parameters)
    if (hasName(document, member, name)) return &member;
  return nullptr;
}

}  // namespace tool
