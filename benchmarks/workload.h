// What is measured: workloads, and the rows of the table that they stand for.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace bench {

/// What one run of a workload did.
struct Done {
  std::size_t operations = 1;
  std::size_t bytes = 0;  // for rows that measure memory instead of time
};

/// prepare() and tidy() come before and after each run() and are not timed.
class Workload {
 public:
  Workload() = default;
  Workload(const Workload&) = delete;
  Workload& operator=(const Workload&) = delete;
  virtual ~Workload() = default;

  virtual void prepare() {}
  virtual Done run() = 0;
  virtual void tidy() {}
};

enum class Runs {
  once,  // long enough by itself, or dear to prepare
  many   // until the least time is reached
};

struct Row {
  std::string name;
  Runs runs;
  std::function<std::unique_ptr<Workload>()> make;
};
using Rows = std::vector<Row>;

/// Adds a row for a workload of type `Type`, which is made of the arguments anew for each measurement.
template <class Type, class... Arguments>
void addRow(Rows& rows, std::string name, Runs runs, Arguments... arguments) {
  rows.push_back({std::move(name), runs, [=] { return std::make_unique<Type>(arguments...); }});
}

}  // namespace bench
