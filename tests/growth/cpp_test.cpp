// The C++ layer: what it does besides calling the library grows no faster than that.
#include <kostyle/kostyle.hpp>

#include "growth/growth.h"
#include "support/host.h"

namespace test {
namespace {

// The parameters of an effect whose identifier is far longer than they are many.
double findProblems(int n) {
  const Host host;
  const kostyle::MutableStyle style(host.createMutableStyle("N"));
  const kostyle::MutableEffect effect =
      style.appendMidiEffect(kostyle::NativeString(static_cast<std::size_t>(20 * n), 'i'));
  for (int i = 0; i < n; ++i) effect.addParameter(std::to_string(i), i);
  kostyle::Problems problems;
  const double cost = each(n, [&] { problems = kostyle::findProblems(style); });
  if (!problems.empty()) throw std::runtime_error(problems[0].message());
  return cost;
}

// The parameters of a style that is saved with care.
double safeSave(int n) {
  const Host host;
  const kostyle::MutableStyle style(host.createMutableStyle("N"));
  const kostyle::MutableEffect effect = style.appendMidiEffect("M");
  for (int i = 0; i < n; ++i) effect.addParameter(std::to_string(i), i);
  bool saved = false;
  const double cost = each(n, [&] { saved = static_cast<bool>(kostyle::safeSave(style)); });
  if (!saved) throw std::runtime_error("not saved");
  return cost;
}

constexpr Operation operations[] = {
    {"FindProblems", findProblems},
    {"SafeSave", safeSave},
};

using CppGrowth = Growth;
TEST_P(CppGrowth, StaysBelowTheBound) { expectBelowBound(); }
INSTANTIATE_TEST_SUITE_P(Layer, CppGrowth, testing::ValuesIn(operations), nameOf);

}  // namespace
}  // namespace test
