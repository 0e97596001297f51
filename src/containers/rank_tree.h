// RankTree: an order of numbered nodes, whose numbers their user gives. A node is found by its position
// and a position by its node in logarithmic time, wherever nodes are inserted and erased.
//
// A B+ tree: its leaves hold the nodes and are linked to each other, so that neighbours stand beside
// each other in memory. All pages lie in one array and refer to each other by number. All but the last
// of a level are at least half full. Only reserve() can throw. Reading never writes, so any number of
// threads may read at once.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace Tesk::KoStyle {

class RankTree {
 public:
  using Node = std::uint32_t;
  static constexpr Node none = UINT32_MAX;

  RankTree() = default;
  RankTree(const RankTree&) = delete;  // a copy would not have the room
  RankTree& operator=(const RankTree&) = delete;
  RankTree(RankTree&&) = default;  // what was moved from may only be destroyed
  RankTree& operator=(RankTree&&) = delete;
  ~RankTree() = default;

  /// Makes room for the nodes whose numbers are less than `count`. Others must not be inserted.
  void reserve(std::size_t count);

  std::size_t size() const noexcept { return size_; }

  /// Whether a node, of any number, is in the tree.
  bool contains(Node node) const noexcept { return node < places_.size() && places_[node] != none; }

  /// The node at a position; none at or past the end.
  Node at(std::size_t position) const noexcept;

  /// The position of a node of this tree; size() for none.
  std::size_t position(Node node) const noexcept;

  // The neighbours of a node of this tree; none at the ends.
  Node next(Node node) const noexcept { return after(node, 1); }
  Node previous(Node node) const noexcept { return before(node, 1); }

  // The node so many places, up to `reach`, after or before another of this tree; none past the ends.
  static constexpr std::size_t reach = 16;
  Node after(Node node, std::size_t places) const noexcept {
    const Spot spot = spotOf(node);
    const Page* leaf = &pages_[spot.page];
    std::size_t index = spot.index + places;
    if (index >= leaf->count && leaf->next != none) {
      index -= leaf->count;
      leaf = &pages_[leaf->next];
    }
    return index < leaf->count ? leaf->ids[index] : none;
  }
  Node before(Node node, std::size_t places) const noexcept {
    const Spot spot = spotOf(node);
    const Page* leaf = &pages_[spot.page];
    std::size_t end = spot.index;
    if (end < places && leaf->previous != none) {
      leaf = &pages_[leaf->previous];
      end += leaf->count;
    }
    return end >= places ? leaf->ids[end - places] : none;
  }

  /// Inserts a node that is not in the tree, before another; at the end before none.
  void insertBefore(Node after, Node node) noexcept;

  /// Takes a node of this tree out.
  void erase(Node node) noexcept;

  /// The first node that `before` does not hold for; none when it holds for all. It must hold for a
  /// front part of the nodes and for no other.
  template <class Before>
  Node partitionPoint(Before before) const {
    if (root_ == none) return none;
    const Page* page = &pages_[root_];
    if (page->level > 0) {  // nodes often come in order, or in the reverse of it, and belong at an end
      if (before(pages_[lastLeaf()].last())) return none;
      if (!before(page->first())) return page->first();
    }
    while (page->level > 0) {
      const auto* const firsts = page->firsts.data();
      const auto* const child = std::partition_point(firsts + 1, firsts + page->count, before) - 1;
      page = &pages_[page->ids[static_cast<std::size_t>(child - firsts)]];
    }
    const auto* const end = page->ids.data() + page->count;
    const auto* const found = std::partition_point(page->ids.data(), end, before);
    if (found != end) return *found;
    return page->next == none ? none : pages_[page->next].ids[0];
  }

 private:
  using PageNumber = std::uint32_t;
  static constexpr std::uint32_t fanout = 32;
  static constexpr std::uint32_t least = fanout / 2;
  static_assert(reach <= least);

  struct Page {
    Node last() const noexcept { return ids[count - 1]; }
    Node first() const noexcept { return count == 0 ? none : level == 0 ? ids[0] : firsts[0]; }

    PageNumber parent = none;
    PageNumber previous = none;  // of leaves
    PageNumber next = none;      // of leaves, and of free pages
    std::uint16_t count = 0;
    std::uint16_t level = 0;                // above the leaves
    std::array<std::uint32_t, fanout> ids;  // the nodes of a leaf; otherwise pages
    // By page: how many nodes it has below it, and the first of them.
    std::array<std::uint32_t, fanout> sizes;
    std::array<Node, fanout> firsts;
  };

  struct Spot {
    PageNumber page;
    std::uint32_t index;
  };

  Spot spotOf(Node node) const noexcept { return {places_[node] / fanout, places_[node] % fanout}; }
  std::uint32_t indexInParent(PageNumber page) const noexcept;
  PageNumber lastLeaf() const noexcept;
  PageNumber takePage(std::uint16_t level) noexcept;
  void freePage(PageNumber page) noexcept;
  void insertAt(Spot spot, std::uint32_t id) noexcept;
  void eraseAt(Spot spot) noexcept;
  void moveTail(PageNumber from, std::uint32_t first, PageNumber to) noexcept;
  void moveOne(Spot from, Spot to) noexcept;
  void settle(PageNumber page, std::uint32_t first) noexcept;
  void updateInParent(PageNumber page) noexcept;
  void countUpwards(Spot changed, std::uint32_t difference) noexcept;
  void addRoot() noexcept;
  PageNumber split(PageNumber page, bool atEnd) noexcept;
  void link(PageNumber leaf, PageNumber after) noexcept;
  void erasePage(PageNumber page) noexcept;
  void shrink(PageNumber page) noexcept;
  void shrinkRoot() noexcept;

  std::vector<Page> pages_;
  std::vector<std::uint32_t> places_;  // by node: its leaf and its index there as one number
  std::size_t size_ = 0;
  PageNumber root_ = none;
  PageNumber free_ = none;
};

}  // namespace Tesk::KoStyle
