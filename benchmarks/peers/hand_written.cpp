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

  static Text text(const Json& value) { return utf16(value.get_ref<const std::string&>()); }

  static std::vector<Text> texts(const Json& list) {
    std::vector<Text> sorted;
    sorted.reserve(list.size());
    for (const Json& element : list) sorted.push_back(text(element));
    std::sort(sorted.begin(), sorted.end());
    return sorted;
  }

  static Parameter readParameter(const std::string& name, const Json& value) {
    if (value.is_number_integer()) return {utf16(name), value.get<int>()};
    if (value.is_number_float()) return {utf16(name), value.get<float>()};
    return {utf16(name), text(value)};
  }

  static std::vector<Effect> readChain(const Json& chain) {
    std::vector<Effect> effects;
    for (const auto& [id, effect] : chain.items()) {
      const Json& source = effect.at("parameter");
      Effect read{utf16(id), {}};
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
    style.id = text(root.at("id"));
    style.name = text(root.at("name"));
    style.vendor = text(root.at("vendor"));
    style.path = path;
    const Json& filter = root.at("filter");
    filter.at("languages").get_to(style.languages);
    std::sort(style.languages.begin(), style.languages.end());
    style.singerGroups = texts(filter.at("singerGroups"));
    style.singerIDs = texts(filter.at("singerIDs"));
    style.genres = texts(filter.at("genres"));
    style.subGenres = texts(filter.at("subGenres"));
    style.colors = texts(filter.at("colors"));
    style.audioEffects = readChain(root.at("audioEffect"));
    style.midiEffects = readChain(root.at("midiEffect"));
    return style;
  }
};

std::size_t HandWritten::read() {
  std::unordered_set<Text> identifiers;
  for (const auto& entry : std::filesystem::directory_iterator(directory_)) {
    if (entry.path().extension() != ".kostyle") continue;
    Style style = StyleFile::read(entry.path());
    if (identifiers.insert(style.id).second) styles_.push_back(std::move(style));
  }
  return styles_.size();
}

}  // namespace bench
