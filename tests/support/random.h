// Random numbers that are the same on every platform for one seed.
#pragma once

#include <cstddef>
#include <cstdint>
#include <random>
#include <vector>

namespace test {

class Random {
 public:
  explicit Random(std::uint64_t seed) : engine_(seed) {}

  std::uint64_t bits() { return engine_(); }

  /// A number below `end`, which is not 0.
  std::size_t below(std::size_t end) { return static_cast<std::size_t>(engine_() % end); }

  std::size_t between(std::size_t first, std::size_t last) { return first + below(last - first + 1); }

  bool oneIn(std::size_t n) { return below(n) == 0; }

  template <class Value>
  const Value& of(const std::vector<Value>& values) {
    return values[below(values.size())];
  }

 private:
  std::mt19937_64 engine_;
};

}  // namespace test
