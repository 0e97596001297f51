// Which styles are wanted.
#pragma once

#include <kostyle/kostyle.h>

#include <array>
#include <string>
#include <tuple>
#include <vector>

#include "reading/attributes.h"

namespace CLI {
class App;
}

namespace tool {

/// A style has to match every option that is given, and of what an option gives several times one. Case
/// of ASCII letters does not count.
struct StyleFilter {
  std::vector<int> languages;
  std::array<std::vector<std::string>, std::tuple_size_v<TextLists>> texts;  // as textLists()
  std::vector<std::string> effects;
  std::vector<std::string> anywhere;  // in name, identifier, vendor, attributes and effects

  bool matches(KoStyleStyle* style) const;
};

void addFilterOptions(CLI::App& command, StyleFilter& filter);

}  // namespace tool
