// The JSON library, set up for this one. Every use of RapidJSON goes through this header.
#pragma once

#include <cstddef>
#include <cstdlib>
#include <new>

// A document that breaks a rule of the parser's own is a bad document, never the end of the host.
#define RAPIDJSON_ASSERT(condition) static_cast<void>(0)
// Lengths of strings and arrays do not wrap in files of more than four gigabytes.
#define RAPIDJSON_NO_SIZETYPEDEFINE
namespace rapidjson {
using SizeType = std::size_t;
}

#include <rapidjson/document.h>
#include <rapidjson/filewritestream.h>
#include <rapidjson/prettywriter.h>
#include <rapidjson/reader.h>
#include <rapidjson/writer.h>

#include "platform/text.h"

namespace Tesk::KoStyle::json {

/// Memory for documents. Throws where RapidJSON's own allocator answers null, which its pools and
/// stacks do not look at.
class ThrowingAllocator {
 public:
  static constexpr bool kNeedFree = true;
  void* Malloc(std::size_t size) { return size == 0 ? nullptr : ::operator new(size); }
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

inline TextView view(const Value& string) { return {string.GetString(), string.GetStringLength()}; }

/// The member of an object with this key; null when there is none.
const Value* findMember(const Value& object, TextView key);

}  // namespace Tesk::KoStyle::json
