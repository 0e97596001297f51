// Calls by position. Exports of several families whose operations stand at the same place of their
// interfaces share one entry point, which calls whatever operation of the handle's own interface stands
// there. The export table binds the names.
#pragma once

#include <cstddef>

namespace Tesk::KoStyle {

/// The zero-based place of an operation in its interface.
enum class Position : std::size_t {};

/// Calls the operation at `position` of the interface behind `handle`; null gives `otherwise`. Relies
/// on what the platforms' C++ interfaces have in common: an object starts with a pointer to the table
/// of its operations, and an operation is a function whose first argument is the object.
template <class Result, class... Arguments>
Result callAt(Position position, void* handle, Result otherwise, Arguments... arguments) {
  using Operation = Result (*)(void*, Arguments...);
  if (!handle) return otherwise;
  const Operation* const operations = *static_cast<const Operation* const*>(handle);
  return operations[static_cast<std::size_t>(position)](handle, arguments...);
}

}  // namespace Tesk::KoStyle
