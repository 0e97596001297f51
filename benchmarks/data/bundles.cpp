#include <string>

#include "data/make_files.h"
#include "data/output_file.h"
#include "data/style_content.h"

namespace bench {
namespace {

constexpr std::uint64_t seed = 20240301;
constexpr std::string_view prefixes =
    "@prefix lv2: <http://lv2plug.in/ns/lv2core#> .\n"
    "@prefix pset: <http://lv2plug.in/ns/ext/presets#> .\n"
    "@prefix rdfs: <http://www.w3.org/2000/01/rdf-schema#> .\n"
    "@prefix state: <http://lv2plug.in/ns/ext/state#> .\n"
    "@prefix b: <urn:kostyle:bench:> .\n\n";

// Only ASCII goes into a bundle.
std::string narrow(const Text& text) {
  std::string ascii;
  for (const KoStyleChar unit : text) ascii += static_cast<char>(unit);
  return ascii;
}

std::string floating(float value) {
  const std::string digits = std::to_string(value);
  return digits.find('.') == std::string::npos ? digits + ".0" : digits;
}

// Integers and floats are values of ports, texts are properties of the state.
struct PresetValues {
  std::string ports;
  std::string properties;

  void add(const std::string& symbol, const ParameterContent& parameter) {
    if (const Text* text = std::get_if<Text>(&parameter.value)) {
      properties += "    b:" + symbol + " \"" + narrow(*text) + "\" ;\n";
      return;
    }
    const int* integer = std::get_if<int>(&parameter.value);
    const std::string value =
        integer ? std::to_string(*integer) : floating(std::get<float>(parameter.value));
    ports += std::string(ports.empty() ? "" : " , ") + "[\n    lv2:symbol \"" + symbol +
             "\" ;\n    pset:value " + value + "\n  ]";
  }

  void add(const std::string& chain, const std::vector<EffectContent>& effects) {
    for (std::size_t e = 0; e < effects.size(); ++e) {
      for (const ParameterContent& parameter : effects[e].parameters) {
        add(chain + std::to_string(e) + "_" + narrow(parameter.name), parameter);
      }
    }
  }
};

}  // namespace

void makeBundles(const std::filesystem::path& data, std::size_t bundles) {
  Random random(seed);
  for (std::size_t i = 0; i < bundles; ++i) {
    const StyleContent content = makeContent(random, i, typicalShape);
    PresetValues values;
    values.add("audio", content.audioEffects);
    values.add("midi", content.midiEffects);

    const auto bundle = data / "bundles" / ("preset" + std::to_string(i) + ".lv2");
    const std::string about = "\n  lv2:appliesTo <urn:kostyle:bench:plugin> ;\n";
    OutputFile(bundle / "manifest.ttl")
        .write(std::string(prefixes) + "<preset.ttl>" + about +
               "  a pset:Preset ;\n  rdfs:seeAlso <preset.ttl> .\n");
    OutputFile(bundle / "preset.ttl")
        .write(std::string(prefixes) + "<>" + about + "  a pset:Preset ;\n  rdfs:label \"" +
               narrow(content.name) + "\" ;\n  lv2:port " + values.ports + " ;\n  state:state [\n" +
               values.properties + "  ] .\n");
  }
}

}  // namespace bench
