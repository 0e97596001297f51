#include "format/json.h"

namespace Tesk::KoStyle::json {

void* StackMemory::Realloc(void*, std::size_t, std::size_t newSize) {
  if (newSize > capacity_) {
    void* const larger = std::realloc(memory_, newSize);
    if (!larger) throw std::bad_alloc();
    memory_ = larger;
    capacity_ = newSize;
  }
  return memory_;
}

const Value* findMember(const Value& object, TextView key) {
  for (auto member = object.MemberBegin(); member != object.MemberEnd(); ++member) {
    if (view(member->name) == key) return &member->value;
  }
  return nullptr;
}

}  // namespace Tesk::KoStyle::json
