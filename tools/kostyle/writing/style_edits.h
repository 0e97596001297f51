// What a command line changes about a style.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

#include "reading/attributes.h"

namespace CLI {
class App;
}

namespace tool {

using Texts = std::vector<std::string>;

struct StyleEdits {
  std::optional<std::string> name;
  std::vector<int> languages;
  std::vector<int> deletedLanguages;
  std::array<Texts, std::tuple_size_v<TextLists>> texts;  // as textLists()
  std::array<Texts, std::tuple_size_v<TextLists>> deletedTexts;
  std::array<Texts, std::tuple_size_v<Chains>> effects;  // as chains()
  std::array<Texts, std::tuple_size_v<Chains>> deletedEffects;
  Texts parameters;
  Texts deletedParameters;
  bool add = false;  // parameters and effects that are not there
  bool reformat = false;
  bool pretty = false;
};

/// True when not even another form of the file is asked for.
bool changesNothing(const StyleEdits& edits);

/// Adds the options that fill a new style.
void addCreationOptions(CLI::App& command, StyleEdits& edits);

/// Adds the options that change a style.
void addChangeOptions(CLI::App& command, StyleEdits& edits);

}  // namespace tool
