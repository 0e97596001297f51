// OwnedSequence: elements that the sequence owns, in an order that its user chooses.
//
// An element is found by its position and, where the sequence has keys, by its key, each in logarithmic
// time; so is its position, and inserting and taking out cost no more. An element is identified by the
// address of its interface, which is only compared: an address whose object is gone is not found,
// unless a new element has taken its place.
//
// Only makeNode() can throw; everything else either reads or commits. Reading never writes, so any
// number of threads may read at once. A sequence that holds nothing is one null pointer; its memory
// stays until the last element is destroyed.
#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <new>
#include <type_traits>
#include <utility>
#include <vector>

#include "containers/memory_pool.h"
#include "containers/node_order.h"
#include "containers/slot_map.h"
#include "containers/text_order.h"
#include "platform/text.h"

namespace Tesk::KoStyle {

/// For sequences whose elements are not found by key.
struct NoKey {};

/// `KeyOf` is NoKey or gives an element's key as a TextView that stays valid while the key does.
/// `Classes` are those that elements are of; `Element` itself when none is named.
template <class Element, class Interface, class KeyOf = NoKey, class... Classes>
class OwnedSequence {
  static constexpr bool hasKeys = !std::is_same_v<KeyOf, NoKey>;

  struct Key {
    Key() = default;
    explicit Key(TextView key) noexcept : front(frontOf(key)), text(key) {}

    int compare(const Key& other) const noexcept {
      if (front != other.front) return front < other.front ? -1 : 1;
      return compareTexts(text, other.text);
    }

    std::uint64_t front = 0;
    TextView text;
  };

  // The orders and the keys go by the elements' slots.
  struct Body {
    explicit Body(MemoryPool* pool) noexcept : elements(pool) {}

    /// Makes room for all elements that there is room for.
    void reserve() {
      order.reserve(elements.capacity());
      if constexpr (hasKeys) {
        byKey.reserve(elements.capacity());
        if (elements.capacity() > NodeOrder::few) reserveKeys();
      }
    }

    Key keyOf(SlotNumber slot) const noexcept {
      return keys.empty() ? Key(KeyOf()(elements[slot])) : keys[slot];
    }

    void insertKey(SlotNumber slot) noexcept {
      const Key key(KeyOf()(elements[slot]));
      if (!keys.empty()) keys[slot] = key;
      const auto isNotAfter = [&](SlotNumber other) { return keyOf(other).compare(key) <= 0; };
      byKey.insertBefore(byKey.partitionPoint(isNotAfter), slot);
    }

    SlotMap<Element, Classes...> elements;
    NodeOrder order;
    NodeOrder byKey;
    std::vector<Key> keys;  // of many elements; a few are asked for theirs

   private:
    void reserveKeys() {
      const bool wereFew = keys.empty();
      keys.resize(elements.capacity());
      if (!wereFew) return;
      for (SlotNumber slot = byKey.at(0); slot != noSlot; slot = byKey.next(slot))
        keys[slot] = Key(KeyOf()(elements[slot]));
    }
  };

 public:
  /// An element outside the order, with all the memory that inserting it takes. It must be gone before
  /// the sequence is, or is cleared.
  class NodeHandle {
   public:
    NodeHandle() = default;
    NodeHandle(NodeHandle&& other) noexcept
        : home_(std::exchange(other.home_, nullptr)), slot_(other.slot_) {}
    NodeHandle& operator=(NodeHandle other) noexcept {
      std::swap(home_, other.home_);
      std::swap(slot_, other.slot_);
      return *this;
    }
    ~NodeHandle() {
      if (home_) home_->elements.erase(slot_);
    }

    /// Whether there is an element.
    explicit operator bool() const noexcept { return home_ != nullptr; }
    Element& operator*() const noexcept { return home_->elements[slot_]; }
    Element* operator->() const noexcept { return &**this; }

   private:
    friend OwnedSequence;
    NodeHandle(Body& home, SlotNumber slot) noexcept : home_(&home), slot_(slot) {}

    Body* home_ = nullptr;
    SlotNumber slot_ = noSlot;
  };

  class Iterator {
   public:
    using iterator_category = std::forward_iterator_tag;
    using value_type = Element;
    using difference_type = std::ptrdiff_t;
    using pointer = Element*;
    using reference = Element&;

    Element& operator*() const noexcept { return body_->elements[at_]; }
    Element* operator->() const noexcept { return &**this; }
    Iterator& operator++() noexcept {
      at_ = body_->order.next(at_);
      return *this;
    }
    friend bool operator==(Iterator a, Iterator b) noexcept { return a.at_ == b.at_; }
    friend bool operator!=(Iterator a, Iterator b) noexcept { return a.at_ != b.at_; }

   private:
    friend OwnedSequence;
    Iterator(const Body* body, SlotNumber at) noexcept : body_(body), at_(at) {}

    const Body* body_;
    SlotNumber at_;
  };

  OwnedSequence() = default;
  /// A sequence whose elements, of which most are few, lie in a pool.
  explicit OwnedSequence(MemoryPool* pool) noexcept : memory_(pool) {}
  OwnedSequence(const OwnedSequence&) = delete;
  OwnedSequence& operator=(const OwnedSequence&) = delete;
  ~OwnedSequence() { clear(); }

  MemoryPool* pool() const noexcept { return memory_.pool(); }

  std::size_t size() const noexcept { return body_ ? body_->order.size() : 0; }
  bool empty() const noexcept { return size() == 0; }
  Iterator begin() const noexcept { return {body_, slotAt(0)}; }
  Iterator end() const noexcept { return {body_, noSlot}; }

  /// The element at a position; null at or past the end.
  Element* at(std::size_t position) const noexcept { return elementIn(slotAt(position)); }

  bool contains(const Interface* element) const noexcept { return find(element) != noSlot; }

  /// The position of an element; size() when it is not here.
  std::size_t position(const Interface* element) const noexcept {
    const SlotNumber slot = find(element);
    return slot == noSlot ? size() : body_->order.position(slot);
  }

  /// The element after another; null at the end and when the other is not here.
  Element* next(const Interface* element) const noexcept {
    const SlotNumber slot = find(element);
    if (slot == noSlot) return nullptr;
    prefetch(body_->order.after(slot, ahead), body_->order.after(slot, 2 * ahead));
    return elementIn(body_->order.next(slot));
  }

  /// The element before another; null at the front and when the other is not here.
  Element* previous(const Interface* element) const noexcept {
    const SlotNumber slot = find(element);
    if (slot == noSlot) return nullptr;
    prefetch(body_->order.before(slot, ahead), body_->order.before(slot, 2 * ahead));
    return elementIn(body_->order.previous(slot));
  }

  /// An element with this key, or null. Which one, when several have it, is not specified.
  Element* findKey(TextView key) const noexcept {
    static_assert(hasKeys);
    if (!body_) return nullptr;
    const Key sought(key);
    const auto isBefore = [&](SlotNumber slot) { return body_->keyOf(slot).compare(sought) < 0; };
    const SlotNumber found = body_->byKey.partitionPoint(isBefore);
    return found != noSlot && equalTexts(body_->keyOf(found).text, key) ? elementIn(found) : nullptr;
  }

  /// The first position whose element `before` does not hold for; see NodeOrder::partitionPoint().
  template <class Before>
  std::size_t partitionPoint(Before before) const {
    if (!body_) return 0;
    return body_->order.position(body_->order.partitionPoint(
        [&](SlotNumber slot) { return before(std::as_const(body_->elements[slot])); }));
  }

  /// Makes an element of one of the classes.
  template <class Class = Element, class... Arguments>
  NodeHandle makeNode(Arguments&&... arguments) {
    if (!body_) body_ = new (memory_.allocate(1)) Body(pool());
    auto& elements = body_->elements;
    NodeHandle made(*body_, elements.template emplace<Class>(std::forward<Arguments>(arguments)...));
    body_->reserve();
    return made;
  }

  /// Inserts before `position`; past the end the element is appended. The handle must be one of this
  /// sequence.
  Element& insert(std::size_t position, NodeHandle handle) noexcept {
    const SlotNumber slot = release(handle);
    body_->order.insertBefore(slotAt(position), slot);
    if constexpr (hasKeys) body_->insertKey(slot);
    return body_->elements[slot];
  }

  Element& append(NodeHandle handle) noexcept { return insert(size(), std::move(handle)); }

  /// Inserts behind all elements whose key is not greater. They must be in the order of their keys.
  Element& insertByKey(NodeHandle handle) noexcept {
    static_assert(hasKeys);
    const SlotNumber slot = release(handle);
    body_->insertKey(slot);
    body_->order.insertBefore(slotAt(body_->byKey.position(slot)), slot);
    return body_->elements[slot];
  }

  /// Takes an element of this sequence out and closes the gap.
  NodeHandle extract(const Interface* element) noexcept {
    const SlotNumber slot = find(element);
    body_->order.erase(slot);
    if constexpr (hasKeys) body_->byKey.erase(slot);
    return {*body_, slot};
  }

  /// Moves an element of this sequence to a position, which is counted without it; past the end it
  /// becomes the last.
  void move(const Interface* element, std::size_t position) noexcept {
    const SlotNumber slot = find(element);
    body_->order.erase(slot);
    body_->order.insertBefore(slotAt(position), slot);
  }

  /// Destroys an element; false when it is not here.
  bool destroy(const Interface* element) noexcept {
    if (!contains(element)) return false;
    extract(element);
    if (body_->elements.empty()) freeBody();
    return true;
  }

  /// Runs `change`, which may change the key of an element of this sequence and must not throw.
  template <class Change>
  void modifyKey(const Interface* element, Change change) noexcept {
    static_assert(hasKeys);
    const SlotNumber slot = find(element);
    body_->byKey.erase(slot);
    change();
    body_->insertKey(slot);
  }

  /// Destroys all elements, from the first to the last, and gives their memory back. Those that hold
  /// memory of the pool alone go with it when it is abandoned.
  void clear() noexcept {
    if (!body_) return;
    const bool areGone = goesWithPool<Element> && pool() && pool()->isAbandoned();
    if (!areGone) eraseAll();
    freeBody();
  }

 private:
  void eraseAll() noexcept {
    for (SlotNumber slot = slotAt(0); slot != noSlot; slot = body_->order.next(slot))
      body_->elements.erase(slot);
  }

  void freeBody() noexcept {
    body_->~Body();
    memory_.deallocate(std::exchange(body_, nullptr), 1);
  }

  // A walk will come to what stands so many places from where it is when that has arrived.
  static constexpr std::size_t ahead = 8;
  static_assert(2 * ahead <= NodeOrder::reach);

  void prefetch(SlotNumber slot, SlotNumber farther) const noexcept {
    if (slot != noSlot) body_->elements.prefetchElement(slot);
    if (farther != noSlot) body_->elements.prefetchEntry(farther);
  }

  static SlotNumber release(NodeHandle& handle) noexcept {
    handle.home_ = nullptr;
    return handle.slot_;
  }

  SlotNumber slotAt(std::size_t position) const noexcept {
    return body_ ? body_->order.at(position) : noSlot;
  }

  Element* elementIn(SlotNumber slot) const noexcept {
    return slot == noSlot ? nullptr : &body_->elements[slot];
  }

  SlotNumber find(const Interface* identity) const noexcept {
    if (!body_) return noSlot;
    const SlotNumber slot = body_->elements.slotAt(identity);
    const bool found = body_->order.contains(slot) &&
                       static_cast<const Interface*>(&body_->elements[slot]) == identity;
    return found ? slot : noSlot;
  }

  PoolAllocator<Body> memory_{nullptr};
  Body* body_ = nullptr;
};

}  // namespace Tesk::KoStyle
