#include <functional>
#include <string>

#include "data/make_files.h"
#include "data/output_file.h"

namespace bench {
namespace {

using Member = std::function<std::string(std::size_t)>;

constexpr const char* start = R"({"id":"x","name":"x","audioEffect":{"e":{"parameter":{"p":1}}})";

// A list of `bytes` bytes, separated by commas.
std::string repeated(std::size_t bytes, const Member& member) {
  std::string list = member(0);
  for (std::size_t i = 1; list.size() < bytes; ++i) list += ',' + member(i);
  return list;
}

Member always(const std::string& text) {
  return [=](std::size_t) { return text; };
}

// Effects of 14 parameters, indented as the library writes them.
std::string honestEffect(std::size_t i) {
  std::string parameters;
  for (int p = 0; p < 14; ++p) {
    const std::string value =
        p % 2 ? std::to_string(p * 100) : "0." + std::to_string(100000 + i % 900000);
    parameters +=
        (p ? ",\n" : "\n") + std::string(16, ' ') + "\"parameter" + std::to_string(p) + "\": " + value;
  }
  return "\n        \"effect" + std::to_string(i) + "\": {\n            \"parameter\": {" + parameters +
         "\n            }\n        }";
}

}  // namespace

void makeHostileFiles(const std::filesystem::path& data, std::size_t bytes) {
  const auto make = [&](const char* name, const std::string& text) {
    OutputFile(data / "hostile" / name / "one.kostyle").write(text);
  };
  const auto inStyle = [&](const std::string& member) { return start + ("," + member) + "}"; };
  const auto inArray = [&](const char* element) {
    return inStyle(R"("x":[)" + repeated(bytes, always(element)) + "]");
  };
  const auto chain = [&](const Member& effect) {
    return R"({"id":"x","name":"x","audioEffect":{)" + repeated(bytes, effect) + "}}";
  };

  make("honest", chain(honestEffect));
  make("objects", inArray("{}"));
  make("arrays", inArray("[]"));
  make("numbers", inArray("1"));
  make("strings", inArray(R"("")"));
  make("duplicate-effects", chain(always(R"("e":{"parameter":{"p":1}})")));
  make("duplicate-parameters", R"({"id":"x","name":"x","audioEffect":{"e":{"parameter":{)" +
                                   repeated(bytes, always(R"("p":1)")) + "}}}}");
  make("duplicate-values",
       inStyle(R"("filter":{"genres":[)" + repeated(bytes, always(R"("g")")) + "]}"));
  make("skipped-members", inStyle(repeated(bytes, [](std::size_t i) {
         return "\"unknown" + std::to_string(i) + "\":true";
       })));
  make("one-string", inStyle(R"("x":")" + std::string(bytes, 'x') + '"'));
  make("one-number", inStyle(R"("x":0.)" + std::string(bytes, '7')));
  make("white-space", inStyle(std::string(bytes, ' ') + R"("x":1)"));
}

}  // namespace bench
