#include "format/json.h"

#include <algorithm>
#include <cstring>

namespace Tesk::KoStyle::json {

void* ThrowingAllocator::Realloc(void* original, std::size_t originalSize, std::size_t newSize) {
  void* const memory = Malloc(newSize);
  if (original && memory) std::memcpy(memory, original, std::min(originalSize, newSize));
  Free(original);
  return memory;
}

const Value* findMember(const Value& object, TextView key) {
  for (auto member = object.MemberBegin(); member != object.MemberEnd(); ++member) {
    if (view(member->name) == key) return &member->value;
  }
  return nullptr;
}

}  // namespace Tesk::KoStyle::json
