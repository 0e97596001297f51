// ParameterList: the parameters of an effect.
//
// Appending sorts the list ascending by name; parameters of equal name, which renaming can bring about,
// keep their order. Renaming leaves a parameter where it is until the next append. The list remembers
// the renamed ones, so that sorting moves only those.
#pragma once

#include <cstddef>
#include <set>

#include "containers/owned_sequence.h"
#include "model/mutable_parameter.h"

namespace Tesk::KoStyle {

class ParameterList {
 public:
  explicit ParameterList(MemoryPool* pool = nullptr) noexcept : parameters_(pool) {}

  /// Where its parameters have their texts.
  MemoryPool* pool() const noexcept { return parameters_.pool(); }
  std::size_t size() const noexcept { return parameters_.size(); }
  auto begin() const noexcept { return parameters_.begin(); }
  auto end() const noexcept { return parameters_.end(); }
  MutableParameter* at(std::size_t position) const noexcept { return parameters_.at(position); }
  MutableParameter* next(const IParameterBase* parameter) const noexcept {
    return parameters_.next(parameter);
  }
  MutableParameter* previous(const IParameterBase* parameter) const noexcept {
    return parameters_.previous(parameter);
  }
  bool contains(const IParameterBase* parameter) const noexcept {
    return parameters_.contains(parameter);
  }
  bool containsName(TextView name) const noexcept { return parameters_.findKey(name) != nullptr; }

  /// Whether a parameter ever was renamed. Until then all names differ and are in order.
  bool wasRenamed() const noexcept { return wasRenamed_; }

  /// Appends a new parameter of an effect and sorts. Null when the name is here already.
  MutableParameter* append(MutableEffect& parent, TextView name);

  // The parameter must be in this list.
  void rename(MutableParameter& parameter, TextView name);
  void destroy(MutableParameter& parameter) noexcept;

 private:
  struct NameOf {
    TextView operator()(const MutableParameter& parameter) const noexcept {
      return parameter.wholeName();
    }
  };

  void sort();

  OwnedSequence<MutableParameter, IParameterBase, NameOf> parameters_;
  std::set<MutableParameter*> renamed_;  // since the list was sorted last
  bool wasRenamed_ = false;
};

}  // namespace Tesk::KoStyle
