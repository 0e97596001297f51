// Styles and refusals as JSON.
#pragma once

#include <kostyle/kostyle.h>

#include <string>
#include <vector>

#include "basics/paths.h"
#include "printing/style_tree.h"

namespace tool {

/// One style as an object.
std::string styleJson(KoStyleStyle* style, const StyleSource& source);

/// What the directories hold.
struct Listing {
  std::vector<KoStyleStyle*> styles;
  std::vector<KoStyleCreationResult*> refused;
  std::vector<fs::path> unopened;

  bool allRead() const { return refused.empty() && unopened.empty(); }
};

/// An object with these three lists.
std::string listJson(const Listing& listing);

}  // namespace tool
