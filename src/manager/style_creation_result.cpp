#include "manager/style_creation_result.h"

#include <utility>

#include "containers/frozen_range.h"

namespace Tesk::KoStyle {

StyleCreationResult::StyleCreationResult(CreationResults& list, FrozenText filePath, FrozenText id,
                                         StyleKind kind, StyleReadOutcome outcome) noexcept
    : list_(&list),
      filePath_(std::move(filePath)),
      id_(std::move(id)),
      kind_(kind),
      outcome_(std::move(outcome)) {}

StyleCreationResult* StyleCreationResult::neighbour(std::ptrdiff_t step) const {
  return FrozenRange<StyleCreationResult>(list_->data(), list_->size()).neighbour(*this, step);
}

}  // namespace Tesk::KoStyle
