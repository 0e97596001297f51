// OwnedSequence: elements that the sequence owns, in an order that its user chooses.
//
// An element is found by its position, by its identity and, where the sequence has keys, by its key,
// each in logarithmic time; so is its position, and inserting and taking out cost no more. An element
// is identified by the address of its interface, which is only compared: an address whose object is
// gone is simply not found.
//
// Only makeNode() can throw; everything else either reads or commits. Reading never writes, so any
// number of threads may read at once.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <iterator>
#include <memory>
#include <type_traits>
#include <utility>

#include "containers/rank_tree.h"
#include "containers/text_front.h"
#include "platform/text.h"

namespace Tesk::KoStyle {

/// For sequences whose elements are not found by key.
struct NoKey {};

/// `KeyOf` is NoKey or gives an element's key as a TextView that stays valid while the key does.
template <class Element, class Interface, class KeyOf = NoKey>
class OwnedSequence {
  struct ByPosition : RankNode {};
  struct ByIdentity : RankNode {};
  struct ByKey : RankNode {};
  struct Node : ByPosition, ByIdentity, ByKey {
    std::unique_ptr<Element> element;
    const Interface* identity = nullptr;
    std::uint64_t keyFront = 0;
    TextView key;
  };
  static constexpr bool hasKeys = !std::is_same_v<KeyOf, NoKey>;

 public:
  /// An element outside any sequence, with all the memory that inserting it takes.
  class NodeHandle {
    friend OwnedSequence;
    explicit NodeHandle(std::unique_ptr<Node> node) noexcept : node_(std::move(node)) {}
    std::unique_ptr<Node> node_;
  };

  class Iterator {
   public:
    using iterator_category = std::forward_iterator_tag;
    using value_type = Element;
    using difference_type = std::ptrdiff_t;
    using pointer = Element*;
    using reference = Element&;

    Element& operator*() const noexcept { return *nodeOf<ByPosition>(*at_).element; }
    Element* operator->() const noexcept { return &**this; }
    Iterator& operator++() noexcept {
      at_ = RankTree::next(*at_);
      return *this;
    }
    friend bool operator==(Iterator a, Iterator b) noexcept { return a.at_ == b.at_; }
    friend bool operator!=(Iterator a, Iterator b) noexcept { return a.at_ != b.at_; }

   private:
    friend OwnedSequence;
    explicit Iterator(RankNode* at) noexcept : at_(at) {}
    RankNode* at_;
  };

  OwnedSequence() = default;
  OwnedSequence(const OwnedSequence&) = delete;
  OwnedSequence& operator=(const OwnedSequence&) = delete;
  ~OwnedSequence() { clear(); }

  std::size_t size() const noexcept { return order_.size(); }
  bool empty() const noexcept { return size() == 0; }
  Iterator begin() const noexcept { return Iterator(order_.at(0)); }
  Iterator end() const noexcept { return Iterator(nullptr); }

  /// The element at a position; null at or past the end.
  Element* at(std::size_t position) const noexcept { return elementOf(order_.at(position)); }

  bool contains(const Interface* element) const noexcept { return find(element) != nullptr; }

  /// The position of an element; size() when it is not here.
  std::size_t position(const Interface* element) const noexcept {
    const Node* node = find(element);
    return node ? RankTree::position(asHook<ByPosition>(*node)) : size();
  }

  /// The element after another; null at the end and when the other is not here.
  Element* next(const Interface* element) const noexcept {
    const Node* node = find(element);
    return node ? elementOf(RankTree::next(asHook<ByPosition>(*node))) : nullptr;
  }

  /// The element before another; null at the front and when the other is not here.
  Element* previous(const Interface* element) const noexcept {
    const Node* node = find(element);
    return node ? elementOf(RankTree::previous(asHook<ByPosition>(*node))) : nullptr;
  }

  /// An element with this key, or null. Which one, when several have it, is not specified.
  Element* findKey(TextView key) const noexcept {
    static_assert(hasKeys);
    const std::uint64_t front = frontOf(key);
    const auto isBefore = [&](const RankNode& node) { return compareKey(node, front, key) < 0; };
    RankNode* const found = keys_.at(keys_.partitionPoint(isBefore));
    return found && keyOf(*found) == key ? nodeOf<ByKey>(*found).element.get() : nullptr;
  }

  /// The first position whose element `before` does not hold for; see RankTree::partitionPoint().
  template <class Before>
  std::size_t partitionPoint(Before before) const {
    return order_.partitionPoint(
        [&](const RankNode& node) { return before(std::as_const(*nodeOf<ByPosition>(node).element)); });
  }

  static NodeHandle makeNode(std::unique_ptr<Element> element) {
    auto node = std::make_unique<Node>();
    node->identity = element.get();
    node->element = std::move(element);
    return NodeHandle(std::move(node));
  }

  /// Inserts before `position`; past the end the element is appended.
  Element& insert(std::size_t position, NodeHandle handle) noexcept {
    Node& node = *handle.node_.release();
    order_.insert(std::min(position, size()), asHook<ByPosition>(node));
    identities_.insert(identities_.partitionPoint(identityBefore(node.identity)),
                       asHook<ByIdentity>(node));
    insertKey(node);
    return *node.element;
  }

  Element& append(NodeHandle handle) noexcept { return insert(size(), std::move(handle)); }

  /// Takes an element of this sequence out and closes the gap.
  NodeHandle extract(const Interface* element) noexcept {
    Node& node = *find(element);
    order_.erase(asHook<ByPosition>(node));
    identities_.erase(asHook<ByIdentity>(node));
    if constexpr (hasKeys) keys_.erase(asHook<ByKey>(node));
    return NodeHandle(std::unique_ptr<Node>(&node));
  }

  /// Destroys an element; false when it is not here.
  bool destroy(const Interface* element) noexcept {
    if (!contains(element)) return false;
    extract(element);
    return true;
  }

  /// Runs `change`, which may change the key of an element of this sequence and must not throw.
  template <class Change>
  void modifyKey(const Interface* element, Change change) noexcept {
    static_assert(hasKeys);
    Node& node = *find(element);
    keys_.erase(asHook<ByKey>(node));
    change();
    insertKey(node);
  }

  /// Destroys all elements, from the first to the last, in linear time.
  void clear() noexcept {
    RankNode* at = order_.at(0);
    identities_.clear();
    keys_.clear();
    // The tree is read no more once its nodes are going, so their order moves into a hook that is free.
    for (RankNode* node = at; node; node = RankTree::next(*node))
      asHook<ByIdentity>(nodeOf<ByPosition>(*node)).right = RankTree::next(*node);
    order_.clear();
    while (at) {
      Node& node = nodeOf<ByPosition>(*at);
      at = asHook<ByIdentity>(node).right;
      delete &node;
    }
  }

 private:
  template <class Hook>
  static Node& nodeOf(const RankNode& hook) noexcept {
    return const_cast<Node&>(static_cast<const Node&>(static_cast<const Hook&>(hook)));
  }
  template <class Hook>
  static RankNode& asHook(const Node& node) noexcept {
    return const_cast<Hook&>(static_cast<const Hook&>(node));
  }
  static Element* elementOf(RankNode* hook) noexcept {
    return hook ? nodeOf<ByPosition>(*hook).element.get() : nullptr;
  }
  static TextView keyOf(const RankNode& hook) noexcept { return nodeOf<ByKey>(hook).key; }

  static int compareKey(const RankNode& hook, std::uint64_t front, TextView key) noexcept {
    const Node& node = nodeOf<ByKey>(hook);
    if (node.keyFront != front) return node.keyFront < front ? -1 : 1;
    return node.key.compare(key);
  }

  static auto identityBefore(const Interface* identity) noexcept {
    return [identity](const RankNode& node) {
      return std::less<>()(nodeOf<ByIdentity>(node).identity, identity);
    };
  }

  Node* find(const Interface* identity) const noexcept {
    RankNode* const found = identities_.at(identities_.partitionPoint(identityBefore(identity)));
    return found && nodeOf<ByIdentity>(*found).identity == identity ? &nodeOf<ByIdentity>(*found)
                                                                    : nullptr;
  }

  void insertKey(Node& node) noexcept {
    if constexpr (hasKeys) {
      node.key = KeyOf()(*node.element);
      node.keyFront = frontOf(node.key);
      const auto isNotAfter = [&](const RankNode& other) {
        return compareKey(other, node.keyFront, node.key) <= 0;
      };
      keys_.insert(keys_.partitionPoint(isNotAfter), asHook<ByKey>(node));
    }
  }

  RankTree order_;
  RankTree identities_;
  RankTree keys_;
};

}  // namespace Tesk::KoStyle
