// What the rows of growth share: each is measured at every size.
#pragma once

#include <optional>
#include <string>

#include "host.h"
#include "rows/rows.h"

namespace bench {

inline std::string growthName(const std::string& work, std::size_t size) {
  return "growth/" + work + "/" + std::to_string(size);
}

void addGrowthFileRows(Rows& rows, const Settings& settings);     // many files
void addGrowthReadingRows(Rows& rows, const Settings& settings);  // one large file
void addGrowthWalkingRows(Rows& rows, const Settings& settings);  // what it holds
void addGrowthEditingRows(Rows& rows, const Settings& settings);
void addGrowthStandardRows(Rows& rows, const Settings& settings);  // the standard library beside it
void addGrowthSavingRows(Rows& rows, const Settings& settings);

}  // namespace bench
