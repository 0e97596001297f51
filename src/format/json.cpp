#include "format/json.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace Tesk::KoStyle::json {

void* ThrowingAllocator::Realloc(void* original, std::size_t originalSize, std::size_t newSize) {
  void* const memory = Malloc(newSize);
  if (original && memory) std::memcpy(memory, original, std::min(originalSize, newSize));
  Free(original);
  return memory;
}

void* StackMemory::Realloc(void* original, std::size_t originalSize, std::size_t newSize) {
  if (newSize > capacity_) {
    std::unique_ptr<char[]> larger(new char[newSize]);
    if (original) std::memcpy(larger.get(), original, originalSize);
    memory_ = std::move(larger);
    capacity_ = newSize;
  }
  return memory_.get();
}

const Value* findMember(const Value& object, TextView key) {
  for (auto member = object.MemberBegin(); member != object.MemberEnd(); ++member) {
    if (view(member->name) == key) return &member->value;
  }
  return nullptr;
}

}  // namespace Tesk::KoStyle::json
