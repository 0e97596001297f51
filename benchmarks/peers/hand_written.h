// A loader as an application would write it for itself: std::filesystem and nlohmann-json, into plain
// structs that hold what the library holds: text in UTF-16, effects in the order of the file, the rest
// sorted.
#pragma once

#include <filesystem>
#include <string>
#include <variant>
#include <vector>

#include "text.h"

namespace bench {

class HandWritten {
 public:
  explicit HandWritten(std::filesystem::path directory) : directory_(std::move(directory)) {}

  std::size_t read();

 private:
  struct Parameter {
    Text name;
    std::variant<int, float, Text> value;
  };
  struct Effect {
    Text id;
    std::vector<Parameter> parameters;
  };
  struct Style {
    Text id;
    Text name;
    Text vendor;
    std::filesystem::path path;
    std::vector<int> languages;
    std::vector<Text> singerGroups;
    std::vector<Text> singerIDs;
    std::vector<Text> genres;
    std::vector<Text> subGenres;
    std::vector<Text> colors;
    std::vector<Effect> audioEffects;
    std::vector<Effect> midiEffects;
  };
  friend struct StyleFile;

  std::filesystem::path directory_;
  std::vector<Style> styles_;
};

}  // namespace bench
