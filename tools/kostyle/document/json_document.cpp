#include "document/json_document.h"

#include <algorithm>

namespace tool {
namespace {

// As a part of a JSON pointer.
std::string pathPart(TextView key) {
  std::string part;
  for (const char byte : toUtf8(key)) {
    if (byte == '~') {
      part += "~0";
    } else if (byte == '/') {
      part += "~1";
    } else {
      part += byte;
    }
  }
  return part;
}

}  // namespace

const JsonNode* JsonDocument::member(const JsonNode& object, TextView key) const {
  if (!object.isObject()) return nullptr;
  for (const JsonNode& member : object)
    if (this->key(member) == key) return &member;
  return nullptr;
}

std::string JsonDocument::path(const JsonNode& node) const {
  if (!node.parent()) return "/";
  std::vector<const JsonNode*> way;
  for (const JsonNode* at = &node; at->parent(); at = at->parent()) way.push_back(at);
  std::string path;
  std::for_each(way.rbegin(), way.rend(), [&](const JsonNode* at) {
    path += '/' + (at->isMember() ? pathPart(key(*at)) : std::to_string(at->place));
  });
  return path;
}

}  // namespace tool
