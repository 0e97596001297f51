#include "peers/hand_written.h"

#include <algorithm>
#include <fstream>
#include <nlohmann/json.hpp>
#include <unordered_set>

namespace bench {

using Json = nlohmann::ordered_json;

struct StyleFile {
  using Style = HandWritten::Style;
  using Effect = HandWritten::Effect;
  using Parameter = HandWritten::Parameter;

  static void takeTexts(const Json& filter, const char* key, std::vector<std::string>& texts) {
    filter.at(key).get_to(texts);
    std::sort(texts.begin(), texts.end());
  }

  static Parameter readParameter(const std::string& name, const Json& value) {
    if (value.is_number_integer()) return {name, value.get<int>()};
    if (value.is_number_float()) return {name, value.get<float>()};
    return {name, value.get<std::string>()};
  }

  static std::vector<Effect> readChain(const Json& chain) {
    std::vector<Effect> effects;
    for (const auto& [id, effect] : chain.items()) {
      const Json& source = effect.at("parameter");
      Effect read{id, {}};
      read.parameters.reserve(source.size());
      for (const auto& [name, value] : source.items()) {
        read.parameters.push_back(readParameter(name, value));
      }
      std::sort(read.parameters.begin(), read.parameters.end(),
                [](const Parameter& a, const Parameter& b) { return a.name < b.name; });
      effects.push_back(std::move(read));
    }
    return effects;
  }

  static Style read(const std::filesystem::path& path) {
    std::ifstream file(path);
    const Json root = Json::parse(file);
    Style style;
    root.at("id").get_to(style.id);
    root.at("name").get_to(style.name);
    root.at("vendor").get_to(style.vendor);
    style.path = path;
    const Json& filter = root.at("filter");
    filter.at("languages").get_to(style.languages);
    std::sort(style.languages.begin(), style.languages.end());
    takeTexts(filter, "singerGroups", style.singerGroups);
    takeTexts(filter, "singerIDs", style.singerIDs);
    takeTexts(filter, "genres", style.genres);
    takeTexts(filter, "subGenres", style.subGenres);
    takeTexts(filter, "colors", style.colors);
    style.audioEffects = readChain(root.at("audioEffect"));
    style.midiEffects = readChain(root.at("midiEffect"));
    return style;
  }
};

std::size_t HandWritten::read() {
  std::unordered_set<std::string> identifiers;
  for (const auto& entry : std::filesystem::directory_iterator(directory_)) {
    if (entry.path().extension() != ".kostyle") continue;
    Style style = StyleFile::read(entry.path());
    if (identifiers.insert(style.id).second) styles_.push_back(std::move(style));
  }
  return styles_.size();
}

}  // namespace bench
