// Styles and refusals as JSON.
#pragma once

#include <kostyle/kostyle.h>

#include <string>
#include <vector>

#include "basics/paths.h"
#include "printing/style_tree.h"

namespace tool {

/// What the directories hold.
struct Listing {
  std::vector<KoStyleStyle*> styles;  // those that are wanted
  std::vector<KoStyleStyle*> allStyles;
  std::vector<KoStyleCreationResult*> refused;
  std::vector<fs::path> unopened;

  bool allRead() const { return refused.empty() && unopened.empty(); }
};

/// An object with the lists of styles, refused and unopened files.
std::string listJson(const Listing& listing);

}  // namespace tool
