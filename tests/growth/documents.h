// Documents and texts with n elements of one sort.
#pragma once

#include <functional>
#include <string>

#include "growth/growth.h"
#include "support/host.h"

namespace test {

/// The text of the element at a place.
using Naming = std::string (*)(int i, int n);

inline std::string sixDigits(int i) {
  const std::string digits = std::to_string(i);
  return std::string(6 - digits.size(), '0') + digits;
}
inline std::string sorted(int i, int) { return "a common front part " + sixDigits(i); }
inline std::string reversed(int i, int n) { return sorted(n - 1 - i, n); }
/// 7919 is a prime: no number comes twice.
inline std::string scattered(int i, int n) { return sorted(static_cast<int>(i * 7919LL % n), n); }
inline std::string same(int, int) { return "the same for all"; }
/// U+0000 once or twice, and at last so often that the names differ in length alone.
inline std::string nulls(int i, int n) {
  std::string escapes;
  for (int k = i + 1 < n ? 1 + i % 2 : n; k > 0; --k) escapes += "\\u0000";
  return escapes;
}

inline std::string list(int n, const std::function<std::string(int)>& element) {
  std::string result;
  for (int i = 0; i < n; ++i) result += (i ? "," : "") + element(i);
  return result;
}

inline std::string styleWith(const std::string& members) {
  return R"({"id":"x","name":"x",)" + members + '}';
}

inline std::string manyEffects(int n, Naming naming, const char* chain = "audioEffect") {
  const auto effect = [&](int i) { return '"' + naming(i, n) + R"(":{"parameter":{}})"; };
  return styleWith('"' + std::string(chain) + R"(":{)" + list(n, effect) + '}');
}
inline std::string manyParameters(int n, Naming naming) {
  const auto parameter = [&](int i) { return '"' + naming(i, n) + "\":" + std::to_string(i); };
  return styleWith(R"("audioEffect":{"e":{"parameter":{)" + list(n, parameter) + "}}}");
}
inline std::string manyValues(int n, Naming naming) {
  const auto value = [&](int i) { return '"' + naming(i, n) + '"'; };
  return styleWith(R"("audioEffect":{"e":{"parameter":{}}},"filter":{"genres":[)" + list(n, value) +
                   "]}");
}

/// A host whose system folder holds one style, read.
struct OneStyle {
  explicit OneStyle(const std::string& content) {
    writeFile(host.system / "one.kostyle", content);
    StyleManager_readSystemStyles(host.manager);
    style = StyleManager_systemStyle(host.manager, 0);
    if (!style) throw std::runtime_error("not read");
  }
  Host host;
  KoStyleStyle* style = nullptr;
};

/// Fails the test when an operation did not do its work, which would make it look cheap.
inline void demand(bool holds) {
  if (!holds) throw std::runtime_error("the operation was refused");
}

/// The cost of a step through n elements from the first or last one.
template <class Handle, class Step>
double walking(int n, Handle* from, Step step) {
  int steps = 0;
  const double cost = each(n, [&] {
    for (Handle* at = from; at; at = step(at)) ++steps;
  });
  demand(steps == n);
  return cost;
}

}  // namespace test
