#include "manager/style_creation_result.h"

#include <utility>

namespace Tesk::KoStyle {

StyleCreationResult::StyleCreationResult(CreationResults& list, Text filePath, Text id, StyleKind kind,
                                         StyleReadOutcome outcome) noexcept
    : list_(&list),
      filePath_(std::move(filePath)),
      id_(std::move(id)),
      kind_(kind),
      outcome_(std::move(outcome)) {}

StyleCreationResult* StyleCreationResult::neighbour(std::ptrdiff_t step) const {
  const auto index = static_cast<std::size_t>(this - list_->data() + step);
  return index < list_->size() ? &(*list_)[index] : nullptr;
}

}  // namespace Tesk::KoStyle
