#include "format/json.h"

#include "containers/text_order.h"

namespace Tesk::KoStyle::json {

void* ThrowingAllocator::Malloc(std::size_t size) {
  if (size > largestBlock) throw std::bad_alloc();
  return size == 0 ? nullptr : ::operator new(size);
}

void* StackMemory::Realloc(void*, std::size_t, std::size_t newSize) {
  if (newSize > capacity_) {
    void* const larger = newSize > largestBlock ? nullptr : std::realloc(memory_, newSize);
    if (!larger) throw std::bad_alloc();
    memory_ = larger;
    capacity_ = newSize;
  }
  return memory_;
}

Value stringRef(TextView text) {
  if (text.size() > largestBlock / sizeof(Char)) throw std::bad_alloc();
  return Value(rapidjson::StringRef(text.data(), static_cast<rapidjson::SizeType>(text.size())));
}

const Value* findMember(const Value& object, TextView key) {
  for (auto member = object.MemberBegin(); member != object.MemberEnd(); ++member) {
    if (equalTexts(view(member->name), key)) return &member->value;
  }
  return nullptr;
}

}  // namespace Tesk::KoStyle::json
