// What is in a style, as a host sees it, and what is to be changed about it.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "basics/text.h"
#include "basics/value.h"

namespace tool {

struct ParameterContent {
  Text name;
  Value value;
};

struct EffectContent {
  Text id;
  std::vector<ParameterContent> parameters;
};

using ChainContent = std::vector<EffectContent>;

struct StyleContent {
  Text id;
  Text name;
  Text vendor;
  std::vector<int> languages;
  std::array<std::vector<Text>, 5> texts;  // as textLists()
  std::array<ChainContent, 2> chains;      // as chains()
};

template <typename Element>
struct ListChange {
  std::vector<Element> removed;
  std::vector<Element> added;
};

/// Of an effect that is there.
struct EffectChange {
  Text id;
  std::vector<Text> removed;
  std::vector<ParameterContent> replaced;
  std::vector<ParameterContent> added;
};

struct ChainChange {
  std::vector<Text> removed;
  std::vector<EffectChange> changed;
  ChainContent added;
};

struct StyleChange {
  std::optional<Text> id;
  std::optional<Text> name;
  ListChange<int> languages;
  std::array<ListChange<Text>, 5> texts;
  std::array<ChainChange, 2> chains;
};

}  // namespace tool
