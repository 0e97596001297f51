#include "model/parameter_list.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace Tesk::KoStyle {
namespace {

auto isNamedBefore(TextView name) {
  return [name](const MutableParameter& parameter) { return parameter.wholeName() < name; };
}

auto isNamedNotAfter(TextView name) {
  return [name](const MutableParameter& parameter) { return parameter.wholeName() <= name; };
}

}  // namespace

MutableParameter* ParameterList::append(MutableEffect& parent, TextView name) {
  if (containsName(name)) return nullptr;
  auto node = parameters_.makeNode(parent, PooledText(pool(), name));
  sort();
  return &parameters_.insertByKey(std::move(node));
}

void ParameterList::rename(MutableParameter& parameter, TextView name) {
  PooledText copy(pool(), name);
  renamed_.insert(&parameter);
  wasRenamed_ = true;
  parameters_.modifyKey(&parameter, [&] { parameter.assignName(std::move(copy)); });
}

void ParameterList::destroy(MutableParameter& parameter) noexcept {
  renamed_.erase(&parameter);
  parameters_.destroy(&parameter);
}

// A stable sort that moves the renamed parameters only: the others are in order already. A renamed one
// belongs among the others of its name as near as possible to where it stands.
void ParameterList::sort() {
  if (renamed_.empty()) return;
  struct Move {
    MutableParameter* parameter;
    std::size_t position;  // among all, then among the parameters that stay, then its target there
  };
  std::vector<Move> moves;
  moves.reserve(renamed_.size());
  for (MutableParameter* parameter : renamed_)
    moves.push_back({parameter, parameters_.position(parameter)});
  std::sort(moves.begin(), moves.end(),
            [](const Move& a, const Move& b) { return a.position < b.position; });
  for (std::size_t i = 0; i < moves.size(); ++i) moves[i].position -= i;
  std::stable_sort(moves.begin(), moves.end(), [](const Move& a, const Move& b) {
    return a.parameter->wholeName() < b.parameter->wholeName();
  });
  std::vector<decltype(parameters_)::NodeHandle> taken;
  taken.reserve(moves.size());

  for (const Move& move : moves) taken.push_back(parameters_.extract(move.parameter));
  for (Move& move : moves) {
    const TextView name = move.parameter->wholeName();
    move.position = std::clamp(move.position, parameters_.partitionPoint(isNamedBefore(name)),
                               parameters_.partitionPoint(isNamedNotAfter(name)));
  }
  for (std::size_t i = 0; i < moves.size(); ++i)
    parameters_.insert(moves[i].position + i, std::move(taken[i]));
  renamed_.clear();
}

}  // namespace Tesk::KoStyle
