#include "editing/style_differences.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <set>
#include <utility>

#include "basics/increasing.h"

namespace tool {
namespace {

using What = Difference::What;

// Names repeat where texts differ only behind a U+0000, which hosts do not see.
using Key = std::pair<Text, std::size_t>;

template <typename Part, typename Name>
std::map<Key, std::size_t> placesOf(const std::vector<Part>& parts, Name name) {
  std::map<Text, std::size_t> counts;
  std::map<Key, std::size_t> places;
  for (std::size_t i = 0; i < parts.size(); ++i)
    places.emplace(Key{name(parts[i]), counts[name(parts[i])]++}, i);
  return places;
}

// Those of some numbers, none twice, that are not in a longest increasing sequence of them.
std::set<std::size_t> outOfOrder(const std::vector<std::size_t>& numbers) {
  std::set<std::size_t> result(numbers.begin(), numbers.end());
  for (const std::size_t at : longestIncreasing(numbers)) result.erase(numbers[at]);
  return result;
}

Value place(std::size_t index) { return static_cast<int>(index) + 1; }

class DifferenceSearch {
 public:
  std::vector<Difference> find(const StyleContent& before, const StyleContent& after) {
    compareText(What::id, before.id, after.id);
    compareText(What::name, before.name, after.name);
    compareText(What::vendor, before.vendor, after.vendor);
    compareLists({What::language}, before.languages, after.languages);
    for (std::size_t i = 0; i < before.texts.size(); ++i)
      compareLists({What::text, i}, before.texts[i], after.texts[i]);
    for (std::size_t i = 0; i < before.chains.size(); ++i)
      compareChains(i, before.chains[i], after.chains[i]);
    return std::move(found_);
  }

 private:
  void add(Difference difference, std::optional<Value> before, std::optional<Value> after) {
    difference.before = std::move(before);
    difference.after = std::move(after);
    found_.push_back(std::move(difference));
  }

  void compareText(What what, const Text& before, const Text& after) {
    const auto value = [](const Text& text) {
      return text.empty() ? std::nullopt : std::optional<Value>(text);
    };
    if (before != after) add({what}, value(before), value(after));
  }

  template <typename Element>
  void compareLists(const Difference& difference, std::vector<Element> before,
                    std::vector<Element> after) {
    std::sort(before.begin(), before.end());
    std::sort(after.begin(), after.end());
    const auto onlyIn = [](const std::vector<Element>& list, const std::vector<Element>& other) {
      std::vector<Element> rest;
      std::set_difference(list.begin(), list.end(), other.begin(), other.end(),
                          std::back_inserter(rest));
      return rest;
    };
    for (const Element& element : onlyIn(before, after)) add(difference, Value(element), std::nullopt);
    for (const Element& element : onlyIn(after, before)) add(difference, std::nullopt, Value(element));
  }

  void compareChains(std::size_t chain, const ChainContent& before, const ChainContent& after) {
    const auto id = [](const EffectContent& effect) { return effect.id; };
    const auto oldPlaces = placesOf(before, id);
    const auto newPlaces = placesOf(after, id);
    std::map<std::size_t, std::size_t> old;  // of those in both, by their new place
    std::vector<std::size_t> removed;
    for (const auto& [key, index] : oldPlaces) {
      const auto found = newPlaces.find(key);
      if (found == newPlaces.end()) {
        removed.push_back(index);
      } else {
        old.emplace(found->second, index);
      }
    }
    std::vector<std::size_t> order;
    order.reserve(old.size());
    for (const auto& [now, then] : old) order.push_back(then);
    const std::set<std::size_t> moved = outOfOrder(order);
    std::sort(removed.begin(), removed.end());
    for (const std::size_t index : removed) {
      add({What::effect, chain, before[index].id}, place(index), std::nullopt);
      compareParameters(chain, before[index], {});
    }
    for (std::size_t index = 0; index < after.size(); ++index) {
      const EffectContent& effect = after[index];
      const auto found = old.find(index);
      if (found == old.end()) {
        add({What::effect, chain, effect.id}, std::nullopt, place(index));
      } else if (moved.count(found->second) > 0) {
        add({What::effect, chain, effect.id}, place(found->second), place(index));
      }
      const EffectContent none{effect.id, {}};
      compareParameters(chain, found == old.end() ? none : before[found->second], effect);
    }
  }

  void compareParameters(std::size_t chain, const EffectContent& before, const EffectContent& after) {
    const auto name = [](const ParameterContent& parameter) { return parameter.name; };
    const auto oldPlaces = placesOf(before.parameters, name);
    const auto newPlaces = placesOf(after.parameters, name);
    std::set<Key> all;
    for (const auto& places : {oldPlaces, newPlaces})
      for (const auto& [key, index] : places) all.insert(key);
    const auto valueIn = [](const EffectContent& effect, const std::map<Key, std::size_t>& places,
                            const Key& key) {
      const auto found = places.find(key);
      return found == places.end() ? std::nullopt
                                   : std::optional<Value>(effect.parameters[found->second].value);
    };
    for (const Key& key : all) {
      const auto then = valueIn(before, oldPlaces, key);
      const auto now = valueIn(after, newPlaces, key);
      if (!then || !now || !areSame(*then, *now))
        add({What::parameter, chain, before.id, key.first}, then, now);
    }
  }

  std::vector<Difference> found_;
};

}  // namespace

std::vector<Difference> differences(const StyleContent& before, const StyleContent& after) {
  return DifferenceSearch().find(before, after);
}

}  // namespace tool
