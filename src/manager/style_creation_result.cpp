#include "manager/style_creation_result.h"

#include <utility>

#include "containers/frozen_range.h"
#include "platform/prefetch.h"

namespace Tesk::KoStyle {

StyleCreationResult::StyleCreationResult(CreationResults& list, FrozenText filePath, FrozenText id,
                                         StyleKind kind, StyleReadOutcome outcome) noexcept
    : list_(&list),
      filePath_(std::move(filePath)),
      id_(std::move(id)),
      kind_(kind),
      outcome_(std::move(outcome)) {}

StyleCreationResult* StyleCreationResult::neighbour(std::ptrdiff_t step) const {
  constexpr std::ptrdiff_t ahead = 8;  // a walk comes there when it has arrived
  const FrozenRange<StyleCreationResult> results(list_->data(), list_->size());
  if (const auto* const later = results.neighbour(*this, ahead * step))
    platform::prefetch(later, sizeof *later);
  return results.neighbour(*this, step);
}

}  // namespace Tesk::KoStyle
