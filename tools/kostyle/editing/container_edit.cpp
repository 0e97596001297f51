#include "editing/container_edit.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace tool {

ContainerEdit::ContainerEdit(const JsonDocument& document, const Layout& layout,
                             const JsonNode& container)
    : document_(&document), layout_(&layout), container_(&container) {
  for (const JsonNode& child : container) children_.push_back({&child, false});
}

void ContainerEdit::remove(const JsonNode& child) {
  bool& isRemoved = children_[child.place].isRemoved;
  if (!isRemoved) ++numRemoved_;
  isRemoved = true;
}

void ContainerEdit::add(TextView key, NewJson value, const JsonNode* behind) {
  additions_.push_back({{jsonString(key, layout_->onlyAscii()), std::move(value)}, behind});
}

void ContainerEdit::writeTo(TextEdits& edits) const {
  if (isEmpty()) return;
  if (numRemoved_ == children_.size()) return replaceAll(edits);
  const std::size_t none = children_.size();
  std::size_t last = none;  // that stays, so far
  for (std::size_t i = 0; i < children_.size(); ++i) {
    if (children_[i].isRemoved) continue;
    const JsonNode& node = *children_[i].node;
    if (last == none) {
      if (i > 0) edits.replace({children_[0].node->wholeSpan().begin, node.wholeSpan().begin}, {});
    } else {
      const JsonNode& before = *children_[last].node;
      std::string text = additionsBehind(before, false);
      if (i > last + 1) {
        edits.replace({before.span.end, node.wholeSpan().begin}, text + keptGap(last, i));
      } else if (!text.empty()) {
        edits.insert(before.span.end, std::move(text));
      }
    }
    last = i;
  }
  const JsonNode& end = *children_[last].node;
  const Span rest{end.span.end, children_.back().node->span.end};
  std::string text = additionsBehind(end, true);
  if (rest.size() > 0 || !text.empty()) edits.replace(rest, std::move(text));
}

// Nothing that is there stays.
void ContainerEdit::replaceAll(TextEdits& edits) const {
  const auto unit = static_cast<std::uint32_t>(document_->source().encoding().unitSize);
  const Span inner{container_->span.begin + unit, container_->span.end - unit};
  if (additions_.empty()) return edits.replace(inner, {});
  if (children_.empty()) {
    std::vector<NewJson::Child> all;
    for (const Addition& addition : additions_) all.push_back(addition.child);
    return edits.replace(inner, layout_->inside(all, *container_));
  }
  const std::string gap = layout_->newGap(*container_, *children_.back().node);
  std::string text;
  for (const Addition& addition : additions_)
    text += textOf(addition, text.empty() ? layout_->lead(*container_) : gap);
  edits.replace(inner, text + layout_->tail(*container_));
}

// Of the gaps around what is taken out from between two children, the one that separates them most.
std::string ContainerEdit::keptGap(std::size_t from, std::size_t to) const {
  std::string kept;
  std::ptrdiff_t most = -1;
  for (std::size_t i = from; i < to; ++i) {
    std::string gap = layout_->gap(*children_[i].node, *children_[i + 1].node);
    const auto breaks = std::count(gap.begin(), gap.end(), '\n');
    if (breaks < most) continue;
    most = breaks;
    kept = std::move(gap);
  }
  return kept;
}

std::string ContainerEdit::textOf(const Addition& addition, const std::string& gap) const {
  const NewJson::Child& child = addition.child;
  const std::string key = child.key.empty() ? "" : child.key + layout_->colon(*container_);
  return gap + key + layout_->text(child.value, *container_, hasLineBreak(gap));
}

std::string ContainerEdit::additionsBehind(const JsonNode& node, bool isLast) const {
  std::string text;
  for (const Addition& addition : additions_)
    if (addition.behind == &node || (isLast && !addition.behind))
      text += textOf(addition, layout_->newGap(*container_, node));
  return text;
}

}  // namespace tool
