// A full walk over styles: every effect and parameter with all that can be asked of it. Texts are taken
// by pointer and not looked into. Counts its calls.
#pragma once

#include <kostyle/codes.h>

#include <cstddef>
#include <cstdint>

namespace bench {

template <class Api>
class Walk {
 public:
  using Styles = typename Api::Styles;
  using Style = typename Api::Style;
  using Effect = typename Api::Effect;
  using Parameter = typename Api::Parameter;

  void byIndex(Styles* styles) {
    const std::size_t count = see(Api::numStyle(styles));
    for (std::size_t i = 0; i < count; ++i) {
      Style* const style = see(Api::style(styles, i));
      attributes(style);
      chainByIndex(style, Api::numAudio, Api::audio);
      chainByIndex(style, Api::numMidi, Api::midi);
    }
  }

  void byNext(Styles* styles) {
    for (Style* style = see(Api::style(styles, 0)); style; style = see(Api::next(style))) {
      attributes(style);
      chainByNext(see(Api::audio(style, 0)), Api::nextAudio);
      chainByNext(see(Api::midi(style, 0)), Api::nextMidi);
    }
  }

  std::size_t calls() const { return calls_; }
  /// Depends on every result, so that no call can be left out.
  std::uintptr_t sum() const { return sum_; }

 private:
  template <class Type>
  Type* see(Type* pointer) {
    ++calls_;
    sum_ += reinterpret_cast<std::uintptr_t>(pointer);
    return pointer;
  }
  template <class Number>
  Number see(Number number) {
    ++calls_;
    sum_ += static_cast<std::uintptr_t>(static_cast<std::intptr_t>(number));
    return number;
  }

  void attributes(Style* style) {
    see(Api::id(style));
    see(Api::name(style));
    see(Api::vendor(style));
    list(style, Api::numSingerGroup, Api::singerGroup);
    list(style, Api::numSingerID, Api::singerID);
    list(style, Api::numGenre, Api::genre);
    list(style, Api::numSubGenre, Api::subGenre);
    list(style, Api::numColor, Api::color);
  }

  template <class Count, class At>
  void list(Style* style, Count count, At at) {
    const std::size_t size = see(count(style));
    for (std::size_t i = 0; i < size; ++i) see(at(style, i));
  }

  template <class Count, class At>
  void chainByIndex(Style* style, Count count, At at) {
    const std::size_t size = see(count(style));
    for (std::size_t i = 0; i < size; ++i) {
      Effect* const effect = see(at(style, i));
      see(Api::id(effect));
      const std::size_t parameters = see(Api::numParameter(effect));
      for (std::size_t p = 0; p < parameters; ++p) parameter(see(Api::parameter(effect, p)));
    }
  }

  template <class Next>
  void chainByNext(Effect* first, Next next) {
    for (Effect* effect = first; effect; effect = see(next(effect))) {
      see(Api::id(effect));
      Parameter* p = see(Api::parameter(effect, 0));
      for (; p; p = see(Api::next(p))) parameter(p);
    }
  }

  void parameter(Parameter* parameter) {
    see(Api::name(parameter));
    switch (see(Api::type(parameter))) {
      case KOSTYLE_PARAMETER_INT:
        see(Api::integer(parameter));
        break;
      case KOSTYLE_PARAMETER_FLOAT:
        see(Api::number(parameter));
        break;
      default:
        see(Api::text(parameter));
    }
  }

  std::size_t calls_ = 0;
  std::uintptr_t sum_ = 0;
};

}  // namespace bench
