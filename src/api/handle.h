// The shapes of an export. Each turns a handle into the interface that an operation needs, calls the
// operation and returns its result; a handle that does not serve gives the export's default.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>

#include "api/cast.h"
#include "platform/text.h"

namespace Tesk::KoStyle {

// Defaults that many exports have.
inline constexpr const Char* noText = nullptr;
inline constexpr std::size_t noCount = SIZE_MAX;

/// The handle is used as its base interface. A null handle gives `otherwise`.
template <class Result, class Base, class Operation, class... Arguments>
Result direct(Base* handle, Operation operation, Result otherwise, const Arguments&... arguments) {
  return handle ? static_cast<Result>(std::invoke(operation, *handle, arguments...)) : otherwise;
}

/// The handle is downcast to `Target`. A null handle and one of the wrong kind give `otherwise`.
template <class Target, class Result, class Base, class Operation, class... Arguments>
Result checked(Base* handle, Operation operation, Result otherwise, const Arguments&... arguments) {
  return direct(cast<Target>(handle), operation, otherwise, arguments...);
}

/// As checked, for operations without a result.
template <class Target, class Base, class Operation, class... Arguments>
void checkedVoid(Base* handle, Operation operation, const Arguments&... arguments) {
  if (auto* target = cast<Target>(handle)) std::invoke(operation, *target, arguments...);
}

/// As checked, for operations that give an interface: the result becomes the `Base` of its family.
template <class Target, class Base, class HandleBase, class Operation, class... Arguments>
Base* converted(HandleBase* handle, Operation operation, const Arguments&... arguments) {
  return checked<Target, Base*>(handle, operation, nullptr, arguments...);
}

}  // namespace Tesk::KoStyle
