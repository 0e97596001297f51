/*
 * KoStyle for C++: what a file could not give back of a style, found before it is written.
 */
#ifndef KOSTYLE_CPP_FIND_PROBLEMS_HPP
#define KOSTYLE_CPP_FIND_PROBLEMS_HPP

#include <cmath>
#include <cstddef>
#include <set>
#include <string>
#include <type_traits>
#include <utility>
#include <variant>

#include "mutable_style.hpp"
#include "problem.hpp"
#include "style.hpp"
#include "text.hpp"

namespace kostyle {
namespace detail {

// The name that is read for a parameter's.
inline Text nameAsRead(Text name) noexcept {
  return name == TextView(KOSTYLE_TEXT("Tarn")) ? Text(KOSTYLE_TEXT("Tarn630")) : name;
}

inline bool hasLoneSurrogate(TextView text) noexcept {
  const auto isHigh = [](KoStyleChar unit) { return unit >= 0xD800 && unit <= 0xDBFF; };
  const auto isLow = [](KoStyleChar unit) { return unit >= 0xDC00 && unit <= 0xDFFF; };
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (isLow(text[i])) return true;
    if (isHigh(text[i]) && (++i == text.size() || !isLow(text[i]))) return true;
  }
  return false;
}

class ProblemFinder {
 public:
  template <class AnyStyle>
  void look(AnyStyle style) {
    if (style.name().empty()) add(ProblemKind::nameMissing, "name");
    lookAtText({"name"}, style.name());
    lookAtList("singerGroups", style.singerGroups());
    lookAtList("singerIDs", style.singerIDs());
    lookAtList("genres", style.genres());
    lookAtList("subGenres", style.subGenres());
    lookAtList("colors", style.colors());
    lookAtChain("audio", style.audioEffects());
    lookAtChain("midi", style.midiEffects());
    if (!hasEffect_) add(ProblemKind::noEffect, {});
  }

  void add(ProblemKind kind, std::string where) { problems_.push_back({kind, std::move(where)}); }

  Problems take() noexcept { return std::move(problems_); }

 private:
  // Where something is, made only for a problem: what lies in front of many problems may be long.
  struct Place {
    const char* list;
    Text first = {};
    Text second = {};

    operator std::string() const {
      std::string where = list;
      for (const Text step : {first, second})
        if (!step.empty()) where += '/' + step.utf8();
      return where;
    }
  };

  void lookAtText(const Place& where, Text text) {
    if (hasLoneSurrogate(text.native())) add(ProblemKind::loneSurrogate, where);
  }

  template <class List>
  void lookAtList(const char* name, const List& list) {
    for (const Text text : list) lookAtText({name, text}, text);
  }

  template <class Chain>
  void lookAtChain(const char* name, const Chain& chain) {
    for (const auto effect : chain) {
      const Place where = {name, effect.id()};
      lookAtText(where, effect.id());
      if (effect.parameters().empty()) add(ProblemKind::effectWithoutParameters, where);
      lookAtParameters(name, effect);
    }
  }

  template <class AnyEffect>
  void lookAtParameters(const char* chain, AnyEffect effect) {
    // A stored effect's are told apart by what may stand behind a U+0000, which does not show.
    constexpr bool mayRepeat = std::is_base_of_v<MutableEffect, AnyEffect>;
    std::set<TextView> names;
    for (const Parameter parameter : effect.parameters()) {
      hasEffect_ = true;
      const Place where = {chain, effect.id(), parameter.name()};
      const Text name = nameAsRead(parameter.name());
      if (name != parameter.name()) add(ProblemKind::parameterRenamed, where);
      if (mayRepeat && !names.insert(name.native()).second) add(ProblemKind::parameterRepeated, where);
      lookAtText(where, parameter.name());
      lookAtValue(where, parameter.value());
    }
  }

  void lookAtValue(const Place& where, const ParameterValue& value) {
    if (const float* const number = std::get_if<float>(&value)) {
      if (std::isinf(*number)) add(ProblemKind::infinite, where);
      if (std::isnan(*number)) add(ProblemKind::notANumber, where);
    } else if (const Text* const text = std::get_if<Text>(&value)) {
      lookAtText(where, *text);
    }
  }

  Problems problems_;
  bool hasEffect_ = false;
};

}  // namespace detail

/**
 * What a file could not give back of a mutable style: of the losses `effectWithoutParameters`,
 * `parameterRenamed` and `parameterRepeated`, and the problems from `nameMissing` to `notANumber`. Empty when
 * saving the style and reading the file again gives the same style. Nothing is changed or written. An empty
 * view has no name and no effect.
 */
inline Problems findProblems(MutableStyle style) {
  detail::ProblemFinder finder;
  finder.look(style);
  return finder.take();
}

/**
 * What the file of a stored style would lose, or why it would be spoiled, if it was written again, as a
 * property editor writes it: the vendor text, a number that was too large for a float and is infinite, a
 * lone surrogate, effects whose parameters were all left out. What stands behind a U+0000 is not seen.
 */
inline Problems findProblems(StoredStyle style) {
  detail::ProblemFinder finder;
  if (!style.vendor().empty()) finder.add(ProblemKind::vendorLost, "vendor");
  finder.look(style);
  return finder.take();
}

}  // namespace kostyle

#endif
