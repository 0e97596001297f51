// The JSON library, set up for this one. Every use of RapidJSON goes through this header.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <new>

// A document that breaks a rule of the parser's own is a bad document, never the end of the host.
#define RAPIDJSON_ASSERT(condition) static_cast<void>(0)
#include <rapidjson/document.h>
#include <rapidjson/prettywriter.h>
#include <rapidjson/reader.h>
#include <rapidjson/writer.h>

#include "platform/text.h"

namespace Tesk::KoStyle::json {

/// RapidJSON counts in 32 bits. No block of its memory may become so large that a text or a list in it
/// could have a length that wraps; one that would is refused like one that the system does not have.
inline constexpr std::size_t largestBlock = sizeof(Char) * std::size_t{UINT32_MAX};

/// Memory for documents. Throws where RapidJSON's own allocator answers null, which its pools and
/// stacks do not look at.
class ThrowingAllocator {
 public:
  static constexpr bool kNeedFree = true;
  void* Malloc(std::size_t size);
  static void Free(void* memory) noexcept { ::operator delete(memory); }
};

/// Memory for one stack after the other, which stays from one to the next. It grows by realloc, since
/// the system moves a large block without copying it. Throws likewise.
class StackMemory {
 public:
  static constexpr bool kNeedFree = false;
  StackMemory() = default;
  StackMemory(const StackMemory&) = delete;
  StackMemory& operator=(const StackMemory&) = delete;
  ~StackMemory() { std::free(memory_); }

  void* Malloc(std::size_t size) { return Realloc(nullptr, 0, size); }
  void* Realloc(void* original, std::size_t originalSize, std::size_t newSize);
  static void Free(void*) noexcept {}

 private:
  void* memory_ = nullptr;
  std::size_t capacity_ = 0;
};

using Encoding = rapidjson::UTF16<Char>;
using Pool = rapidjson::MemoryPoolAllocator<ThrowingAllocator>;
using Document = rapidjson::GenericDocument<Encoding, Pool, StackMemory>;
using Value = Document::ValueType;

/// A string that refers to the text.
Value stringRef(TextView text);

inline TextView view(const Value& string) { return {string.GetString(), string.GetStringLength()}; }

/// The member of an object with this key; null when there is none.
const Value* findMember(const Value& object, TextView key);

}  // namespace Tesk::KoStyle::json
