#include <algorithm>
#include <functional>
#include <numeric>
#include <string>

#include "data/make_files.h"
#include "data/output_file.h"
#include "data/style_content.h"

namespace bench {
namespace {

constexpr std::uint64_t seed = 20240302;

using Member = std::function<std::string(std::size_t)>;

std::string quoted(const std::string& text) { return '"' + text + '"'; }

// Numbers of equal length, so that their order as texts is their order as numbers.
std::string ordered(std::size_t i) {
  const std::string digits = std::to_string(i);
  return "name" + std::string(8 - digits.size(), '0') + digits;
}

std::string members(std::size_t count, const Member& member) {
  std::string list;
  for (std::size_t i = 0; i < count; ++i) list += (i ? "," : "") + member(i);
  return list;
}

std::string document(const std::string& id, const std::string& rest) {
  return R"({"id":")" + id + R"(","name":"n",)" + rest + "}";
}

std::string parameters(std::size_t size, const Member& name) {
  const auto member = [&](std::size_t i) { return quoted(name(i)) + ":" + std::to_string(i); };
  return R"("midiEffect":{"e":{"parameter":{)" + members(size, member) + "}}}";
}

std::string effects(std::size_t size, const Member& name) {
  const auto member = [&](std::size_t i) { return quoted(name(i)) + R"(:{"parameter":{"p":1}})"; };
  return R"("audioEffect":{)" + members(size, member) + "}";
}

std::string values(std::size_t size, const Member& name) {
  const auto value = [&](std::size_t i) { return quoted(name(i)); };
  return R"("audioEffect":{"e":{"parameter":{"p":1}}},"filter":{"genres":[)" + members(size, value) +
         "]}";
}

void makeLargeFiles(const std::filesystem::path& growth, std::size_t size) {
  std::vector<std::size_t> shuffled(size);
  std::iota(shuffled.begin(), shuffled.end(), std::size_t{0});
  std::shuffle(shuffled.begin(), shuffled.end(), Random(seed));
  const Member sorted = ordered;
  const Member reversed = [=](std::size_t i) { return ordered(size - i); };
  const Member random = [&](std::size_t i) { return ordered(shuffled[i]); };
  const Member same = [](std::size_t) { return ordered(0); };

  const auto make = [&](const char* name, const std::string& content) {
    OutputFile(growth / name / std::to_string(size) / "one.kostyle").write(document("x", content));
  };
  make("effects", effects(size, random));
  make("repeated-effect", effects(size, same));
  make("parameters-sorted", parameters(size, sorted));
  make("parameters-reversed", parameters(size, reversed));
  make("parameters-random", parameters(size, random));
  make("repeated-parameter", parameters(size, same));
  make("values", values(size, random));
  make("repeated-value", values(size, same));
}

void makeManyFiles(const std::filesystem::path& folder, std::size_t size, const Member& id) {
  const std::string content = parameters(14, ordered);
  for (std::size_t i = 0; i < size; ++i) {
    OutputFile(folder / std::to_string(size) / (std::to_string(i) + ".kostyle"))
        .write(document(id(i), content));
  }
}

}  // namespace

void makeGrowth(const std::filesystem::path& data, const std::vector<std::size_t>& sizes) {
  for (const std::size_t size : sizes) makeLargeFiles(data / "growth", size);
}

void makeGrowthFiles(const std::filesystem::path& data, const std::vector<std::size_t>& sizes) {
  const auto folder = data / "growth-files";
  for (const std::size_t size : sizes) {
    makeManyFiles(folder / "distinct", size, ordered);
    makeManyFiles(folder / "repeated", size, [](std::size_t) { return "same"; });
  }
}

}  // namespace bench
