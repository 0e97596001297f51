#include "format/style_creation_result.h"

#include <utility>

#include "manager/style_manager.h"

namespace Tesk::KoStyle {

StyleCreationResult::StyleCreationResult(StyleManager* owner, Text filePath, Text id, StyleKind kind,
                                         StyleReadOutcome outcome)
    : owner_(owner),
      filePath_(std::move(filePath)),
      id_(std::move(id)),
      kind_(kind),
      outcome_(std::move(outcome)) {}

IStyleCreationResult* StyleCreationResult::next() const {
  const CreationResultSequence* list = owner_ ? owner_->creationResults(kind_) : nullptr;
  return list ? list->next(this) : nullptr;
}

IStyleCreationResult* StyleCreationResult::prev() const {
  const CreationResultSequence* list = owner_ ? owner_->creationResults(kind_) : nullptr;
  return list ? list->previous(this) : nullptr;
}

}  // namespace Tesk::KoStyle
