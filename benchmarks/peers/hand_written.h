// A loader as an application would write it for itself: std::filesystem and nlohmann-json, into plain
// structs. The order of effects is that of the file.
#pragma once

#include <filesystem>
#include <string>
#include <variant>
#include <vector>

namespace bench {

class HandWritten {
 public:
  explicit HandWritten(std::filesystem::path directory) : directory_(std::move(directory)) {}

  std::size_t read();

 private:
  struct Parameter {
    std::string name;
    std::variant<int, float, std::string> value;
  };
  struct Effect {
    std::string id;
    std::vector<Parameter> parameters;
  };
  struct Style {
    std::string id;
    std::string name;
    std::string vendor;
    std::filesystem::path path;
    std::vector<int> languages;
    std::vector<std::string> singerGroups;
    std::vector<std::string> singerIDs;
    std::vector<std::string> genres;
    std::vector<std::string> subGenres;
    std::vector<std::string> colors;
    std::vector<Effect> audioEffects;
    std::vector<Effect> midiEffects;
  };
  friend struct StyleFile;

  std::filesystem::path directory_;
  std::vector<Style> styles_;
};

}  // namespace bench
