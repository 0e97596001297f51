// How the standard library's sorted map grows with the same names. It costs n log n by its definition:
// what its lines rise above linear is the logarithm and the memory that is further away.
#include <map>
#include <stdexcept>

#include "rows/growth.h"
#include "rows/names.h"

namespace bench {
namespace {

using Map = std::map<Text, int>;

class FillingMap : public Workload {
 public:
  explicit FillingMap(Names names) : names_(std::move(names)) {}

  void prepare() override { map_.clear(); }
  Done run() override {
    for (const Text& name : names_) map_.emplace(name.c_str(), 0);
    if (map_.size() != names_.size()) throw std::runtime_error("not all names were taken");
    return {names_.size()};
  }

 private:
  Names names_;
  Map map_;
};

class WalkingMap : public Workload {
 public:
  explicit WalkingMap(const Names& names) {
    for (const Text& name : names) map_.emplace(name, 1);
  }

  Done run() override {
    std::size_t length = 0;
    for (const auto& [name, one] : map_) length += static_cast<std::size_t>(one);
    if (length != map_.size()) throw std::runtime_error("not all names were visited");
    return {length};
  }

 private:
  Map map_;
};

}  // namespace

void addGrowthStandardRows(Rows& rows, const Settings& settings) {
  for (const std::size_t size : settings.sizes) {
    const auto add = [&](const char* order, Names (*names)(std::size_t)) {
      rows.push_back({growthName(std::string("std-map/insert-") + order, size), Runs::many,
                      [=] { return std::make_unique<FillingMap>(names(size)); }});
    };
    add("sorted", orderedNames);
    add("reversed", reversedNames);
    add("random", shuffledNames);
    rows.push_back({growthName("std-map/next", size), Runs::many,
                    [=] { return std::make_unique<WalkingMap>(shuffledNames(size)); }});
  }
}

}  // namespace bench
