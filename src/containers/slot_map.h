// SlotMap: elements in numbered slots. An element never moves; a slot that is empty again is the next
// to be filled.
//
// Slots lie in slabs, of which each holds about half as many as those before it together. So elements
// lie close to each other, few slabs hold many of them, and the slot of an address is found by
// arithmetic: the address is compared and never followed. Slabs stay until the map goes. All memory is
// a pool's, or the system's where there is no pool.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <new>
#include <type_traits>
#include <utility>
#include <vector>

#include "containers/memory_pool.h"
#include "platform/poison.h"
#include "platform/prefetch.h"

namespace Tesk::KoStyle {

using SlotNumber = std::uint32_t;
inline constexpr SlotNumber noSlot = UINT32_MAX;

/// `Classes` are those that elements are of; `Element` itself when none is named.
template <class Element, class... Classes>
class SlotMap {
 public:
  explicit SlotMap(MemoryPool* pool = nullptr) noexcept
      : slabs_(Memory(pool)), entries_(Memory(pool)) {}
  SlotMap(const SlotMap&) = delete;
  SlotMap& operator=(const SlotMap&) = delete;

  /// Elements must be gone by then.
  ~SlotMap() {
    for (const Slab& slab : slabs_) {
      platform::unpoison(slab.memory, slab.size * sizeof(Storage));
      memory().deallocate(slab.memory, slab.size);
    }
  }

  /// Slots have numbers less than this.
  std::size_t capacity() const noexcept { return entries_.size(); }

  /// Whether all slots are empty.
  bool empty() const noexcept { return filled_ == 0; }

  /// The element of a filled slot.
  Element& operator[](SlotNumber slot) const noexcept { return *entries_[slot].element; }

  // An element is asked for by its entry, which must be at hand by then.
  void prefetchEntry(SlotNumber slot) const noexcept {
    platform::prefetch(&entries_[slot], sizeof(Entry));
  }
  void prefetchElement(SlotNumber slot) const noexcept {
    platform::prefetch(entries_[slot].element, sizeof(Storage));
  }

  /// Makes an element in an empty slot. Its constructor must not make another here.
  template <class Class, class... Arguments>
  SlotNumber emplace(Arguments&&... arguments) {
    static_assert(sizeof(Class) <= sizeof(Storage));
    static_assert(alignof(Class) <= alignof(Storage));
    if (firstEmpty_ == noSlot) addSlab();
    const SlotNumber slot = firstEmpty_;
    Storage* const memory = storageOf(slot);
    platform::unpoison(memory, sizeof(Storage));
    try {
      auto* const made = new (memory) Class(std::forward<Arguments>(arguments)...);
      firstEmpty_ = entries_[slot].nextEmpty;
      entries_[slot].element = made;
    } catch (...) {
      platform::poison(memory, sizeof(Storage));
      throw;
    }
    ++filled_;
    return slot;
  }

  /// Destroys the element of a filled slot.
  void erase(SlotNumber slot) noexcept {
    static_assert(sizeof...(Classes) == 0 || std::has_virtual_destructor_v<Element>);
    entries_[slot].element->~Element();
    entries_[slot].nextEmpty = firstEmpty_;
    firstEmpty_ = slot;
    platform::poison(storageOf(slot), sizeof(Storage));
    --filled_;
  }

  /// The slot in whose memory an address lies, filled or empty; noSlot when there is none.
  SlotNumber slotAt(const void* address) const noexcept {
    for (auto slab = slabs_.rbegin(); slab != slabs_.rend(); ++slab) {
      const auto offset =
          reinterpret_cast<std::uintptr_t>(address) - reinterpret_cast<std::uintptr_t>(slab->memory);
      const std::uintptr_t place = offset / sizeof(Storage);
      if (place < slab->size) return slab->first + static_cast<SlotNumber>(place);
    }
    return noSlot;
  }

 private:
  struct alignas(Element) alignas(Classes...) Storage {
    unsigned char bytes[std::max({sizeof(Element), sizeof(Classes)...})];
  };

  using Memory = PoolAllocator<Storage>;

  struct Slab {
    Storage* memory;
    SlotNumber first;
    SlotNumber size;
  };
  union Entry {
    Element* element = nullptr;
    SlotNumber nextEmpty;
  };

  // As many again while there are few, then half as many.
  static std::size_t sizeOfNext(std::size_t slots) noexcept {
    constexpr std::size_t smallest = 4;
    constexpr std::size_t few = 2048 / sizeof(Storage);
    return slots <= few ? std::max(smallest, slots) : slots / 2;
  }

  void addSlab() {
    const std::size_t first = entries_.size();
    const std::size_t size = sizeOfNext(first);
    if (size > noSlot - first) throw std::bad_alloc();
    slabs_.reserve(slabs_.size() + 1);
    entries_.reserve(first + size);
    Storage* const slab = memory().allocate(size);
    platform::poison(slab, size * sizeof(Storage));
    slabs_.push_back({slab, static_cast<SlotNumber>(first), static_cast<SlotNumber>(size)});
    entries_.resize(first + size);
    for (std::size_t slot = first; slot < first + size; ++slot)
      entries_[slot].nextEmpty = static_cast<SlotNumber>(slot + 1);
    entries_.back().nextEmpty = noSlot;
    firstEmpty_ = static_cast<SlotNumber>(first);
  }

  Storage* storageOf(SlotNumber slot) const noexcept {
    auto slab = slabs_.rbegin();
    while (slot < slab->first) ++slab;
    return slab->memory + (slot - slab->first);
  }

  Memory memory() const noexcept { return slabs_.get_allocator(); }

  std::vector<Slab, PoolAllocator<Slab>> slabs_;
  std::vector<Entry, PoolAllocator<Entry>> entries_;
  SlotNumber firstEmpty_ = noSlot;
  SlotNumber filled_ = 0;
};

}  // namespace Tesk::KoStyle
