#include "settings.h"

#include <string>
#include <string_view>

namespace bench {
namespace {

std::size_t toCount(std::string_view text) { return std::stoul(std::string(text)); }

std::vector<std::size_t> toCounts(std::string_view text) {
  std::vector<std::size_t> counts;
  while (!text.empty()) {
    const std::size_t comma = text.find(',');
    counts.push_back(toCount(text.substr(0, comma)));
    text.remove_prefix(comma == std::string_view::npos ? text.size() : comma + 1);
  }
  return counts;
}

bool takeSetting(Settings& settings, std::string_view name, std::string_view value) {
  if (name == "--data") {
    settings.data = value;
  } else if (name == "--scratch") {
    settings.scratch = value;
  } else if (name == "--fast-scratch") {
    settings.fastScratch = value;
  } else if (name == "--files") {
    settings.files = toCount(value);
  } else if (name == "--bundles") {
    settings.bundles = toCount(value);
  } else if (name == "--saves") {
    settings.saves = toCount(value);
  } else if (name == "--hostile-bytes") {
    settings.hostileBytes = toCount(value);
  } else if (name == "--sizes") {
    settings.sizes = toCounts(value);
  } else {
    return false;
  }
  return true;
}

}  // namespace

Settings parseSettings(int argc, char** argv, std::vector<char*>& others) {
  Settings settings;
  for (int i = 0; i < argc; ++i) {
    const std::string_view argument = argv[i];
    const std::size_t equals = argument.find('=');
    const bool taken = equals != std::string_view::npos &&
                       takeSetting(settings, argument.substr(0, equals), argument.substr(equals + 1));
    if (!taken) others.push_back(argv[i]);
  }
  return settings;
}

}  // namespace bench
