#include "containers/rank_tree.h"

#include <new>
#include <numeric>

namespace Tesk::KoStyle {

void RankTree::reserve(std::size_t count) {
  if (count <= places_.size()) return;
  std::size_t pages = 0;  // at worst all of a level are half full but the last, which holds one
  for (std::size_t held = count; pages == 0 || held > 1; pages += held) held = (held - 1) / least + 1;
  if (pages > none / fanout) throw std::bad_alloc();
  pages_.reserve(pages);
  places_.resize(count, none);
}

RankTree::Node RankTree::at(std::size_t position) const noexcept {
  if (position >= size_) return none;
  const Page* page = &pages_[root_];
  while (page->level > 0) {
    std::size_t child = 0;
    for (; position >= page->sizes[child]; ++child) position -= page->sizes[child];
    page = &pages_[page->ids[child]];
  }
  return page->ids[position];
}

std::size_t RankTree::position(Node node) const noexcept {
  if (node == none) return size_;
  const Spot spot = spotOf(node);
  std::size_t position = spot.index;
  for (PageNumber page = spot.page; page != root_; page = pages_[page].parent) {
    const auto& sizes = pages_[pages_[page].parent].sizes;
    position += std::accumulate(sizes.begin(), sizes.begin() + indexInParent(page), std::size_t{0});
  }
  return position;
}

// Where the last page is full, one that follows it takes what comes at the end, so that pages stay full
// when nodes come in order.
void RankTree::insertBefore(Node after, Node node) noexcept {
  if (root_ == none) root_ = takePage(0);
  const bool atEnd = after == none;
  Spot spot = atEnd ? Spot{lastLeaf(), 0} : spotOf(after);
  if (atEnd) spot.index = pages_[spot.page].count;
  if (pages_[spot.page].count == fanout) {
    const PageNumber right = split(spot.page, atEnd);
    const std::uint32_t kept = pages_[spot.page].count;
    if (atEnd || spot.index > kept) spot = {right, spot.index - kept};
  }
  insertAt(spot, node);
  countUpwards(spot, 1);
  ++size_;
}

void RankTree::erase(Node node) noexcept {
  const Spot spot = spotOf(node);
  places_[node] = none;
  eraseAt(spot);
  countUpwards(spot, UINT32_MAX);
  --size_;
  shrink(spot.page);
}

std::uint32_t RankTree::indexInParent(PageNumber page) const noexcept {
  const Page& parent = pages_[pages_[page].parent];
  if (parent.last() == page) return parent.count - 1U;
  return static_cast<std::uint32_t>(std::find(parent.ids.begin(), parent.ids.end(), page) -
                                    parent.ids.begin());
}

RankTree::PageNumber RankTree::lastLeaf() const noexcept {
  PageNumber page = root_;
  while (pages_[page].level > 0) page = pages_[page].last();
  return page;
}

RankTree::PageNumber RankTree::takePage(std::uint16_t level) noexcept {
  PageNumber page = free_;
  if (page == none) {
    page = static_cast<PageNumber>(pages_.size());
    pages_.emplace_back();
  } else {
    free_ = pages_[page].next;
    pages_[page] = Page();
  }
  pages_[page].level = level;
  return page;
}

void RankTree::freePage(PageNumber page) noexcept {
  pages_[page].next = free_;
  free_ = page;
}

void RankTree::insertAt(Spot spot, std::uint32_t id) noexcept {
  Page& page = pages_[spot.page];
  const auto makeRoom = [&](auto& array) {
    std::copy_backward(array.begin() + spot.index, array.begin() + page.count,
                       array.begin() + page.count + 1);
  };
  makeRoom(page.ids);
  if (page.level > 0) {
    makeRoom(page.sizes);
    makeRoom(page.firsts);
  }
  page.ids[spot.index] = id;
  ++page.count;
  settle(spot.page, spot.index);
}

void RankTree::eraseAt(Spot spot) noexcept {
  Page& page = pages_[spot.page];
  const auto close = [&](auto& array) {
    std::copy(array.begin() + spot.index + 1, array.begin() + page.count, array.begin() + spot.index);
  };
  close(page.ids);
  if (page.level > 0) {
    close(page.sizes);
    close(page.firsts);
  }
  --page.count;
  settle(spot.page, spot.index);
}

// Moves what stands in a page from an index on to the end of another of its level.
void RankTree::moveTail(PageNumber from, std::uint32_t first, PageNumber to) noexcept {
  Page& source = pages_[from];
  Page& target = pages_[to];
  const std::uint32_t settled = target.count;
  const auto append = [&](const auto& array, auto& end) {
    std::copy(array.begin() + first, array.begin() + source.count, end.begin() + settled);
  };
  append(source.ids, target.ids);
  append(source.sizes, target.sizes);
  append(source.firsts, target.firsts);
  target.count = static_cast<std::uint16_t>(settled + source.count - first);
  source.count = static_cast<std::uint16_t>(first);
  settle(to, settled);
}

// Writes down for all from an index on where they stand: a node's place, a page's parent.
void RankTree::settle(PageNumber page, std::uint32_t first) noexcept {
  const Page& settled = pages_[page];
  for (std::uint32_t index = first; index < settled.count; ++index) {
    if (settled.level == 0) {
      places_[settled.ids[index]] = page * fanout + index;
    } else {
      pages_[settled.ids[index]].parent = page;
    }
  }
}

// Brings up to date what a page's parent says of it.
void RankTree::updateInParent(PageNumber page) noexcept {
  const Page& counted = pages_[page];
  const auto* const sizes = counted.sizes.data();
  Page& parent = pages_[counted.parent];
  const std::uint32_t index = indexInParent(page);
  parent.sizes[index] =
      counted.level == 0 ? counted.count : std::accumulate(sizes, sizes + counted.count, 0U);
  parent.firsts[index] = counted.first();
}

// The same for all pages above one where a node came or went; unsigned, the difference wraps to -1.
void RankTree::countUpwards(Spot changed, std::uint32_t difference) noexcept {
  bool isFirst = changed.index == 0;
  for (PageNumber page = changed.page; page != root_; page = pages_[page].parent) {
    Page& parent = pages_[pages_[page].parent];
    const std::uint32_t index = indexInParent(page);
    parent.sizes[index] += difference;
    if (isFirst) parent.firsts[index] = pages_[page].first();
    isFirst = isFirst && index == 0;
  }
}

void RankTree::addRoot() noexcept {
  const PageNumber page = root_;
  root_ = takePage(static_cast<std::uint16_t>(pages_[page].level + 1));
  insertAt({root_, 0}, page);
  updateInParent(page);
}

// Moves half of a full page to a new one that follows it. At the end of the order nothing moves, and
// the new page, like a new parent of it, is empty until the node comes. A full parent is split first:
// since no node comes or goes in between, what is counted further up stays right.
RankTree::PageNumber RankTree::split(PageNumber page, bool atEnd) noexcept {
  if (page == root_) addRoot();
  PageNumber parent = pages_[page].parent;
  if (pages_[parent].count == fanout) {
    const PageNumber uncle = split(parent, atEnd);
    parent = atEnd ? uncle : pages_[page].parent;
  }
  const PageNumber right = takePage(pages_[page].level);
  moveTail(page, atEnd ? fanout : least, right);
  if (pages_[page].level == 0) link(page, right);
  insertAt({parent, atEnd ? pages_[parent].count : indexInParent(page) + 1}, right);
  updateInParent(page);
  updateInParent(right);
  return right;
}

void RankTree::link(PageNumber leaf, PageNumber after) noexcept {
  const PageNumber next = pages_[leaf].next;
  pages_[after].previous = leaf;
  pages_[after].next = next;
  pages_[leaf].next = after;
  if (next != none) pages_[next].previous = after;
}

// Takes a page that nothing stands in any more out of its parent.
void RankTree::erasePage(PageNumber page) noexcept {
  const Page& erased = pages_[page];
  if (erased.previous != none) pages_[erased.previous].next = erased.next;
  if (erased.next != none) pages_[erased.next].previous = erased.previous;
  const PageNumber parent = erased.parent;
  eraseAt({parent, indexInParent(page)});
  freePage(page);
  shrink(parent);
}

// Joins a page that something was taken from with a neighbour, or takes one from there, when less than
// half of it is left. Only the last page of a level can be without a neighbour below the same parent.
void RankTree::shrink(PageNumber page) noexcept {
  if (page == root_) return shrinkRoot();
  if (pages_[page].count >= least) return;
  const Page& parent = pages_[pages_[page].parent];
  if (parent.count == 1) {
    if (pages_[page].count == 0) erasePage(page);
    return;
  }
  const std::uint32_t index = std::max(indexInParent(page), 1U);
  const PageNumber left = parent.ids[index - 1];
  const PageNumber right = parent.ids[index];
  const std::uint32_t leftCount = pages_[left].count;
  const std::uint32_t rightCount = pages_[right].count;
  if (leftCount + rightCount <= fanout) {
    moveTail(right, 0, left);
    updateInParent(left);
    erasePage(right);
    return;
  }
  if (leftCount < rightCount) {
    moveOne({right, 0}, {left, leftCount});
  } else {
    moveOne({left, leftCount - 1}, {right, 0});
  }
  updateInParent(left);
  updateInParent(right);
}

void RankTree::moveOne(Spot from, Spot to) noexcept {
  const Page& source = pages_[from.page];
  const std::uint32_t id = source.ids[from.index];
  const std::uint32_t size = source.sizes[from.index];
  const Node first = source.firsts[from.index];
  eraseAt(from);
  insertAt(to, id);
  pages_[to.page].sizes[to.index] = size;
  pages_[to.page].firsts[to.index] = first;
}

void RankTree::shrinkRoot() noexcept {
  while (pages_[root_].level > 0 && pages_[root_].count == 1) {
    freePage(root_);
    root_ = pages_[root_].ids[0];
  }
  if (pages_[root_].count > 0) return;
  freePage(root_);
  root_ = none;
}

}  // namespace Tesk::KoStyle
