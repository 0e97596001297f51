// The walk of walk.h through the ranges of the C++ layer, call for call.
#pragma once

#include <cstddef>
#include <cstdint>
#include <kostyle/kostyle.hpp>
#include <variant>

namespace bench {

class RangeWalk {
 public:
  void styles(kostyle::ManagerView manager) {
    for (const auto style : manager.systemStyles()) {
      attributes(style);
      chain(style.audioEffects());
      chain(style.midiEffects());
    }
  }

  /// Depends on every result, so that no call can be left out.
  std::uintptr_t sum() const { return sum_; }

 private:
  void see(kostyle::Text text) { sum_ += reinterpret_cast<std::uintptr_t>(text.c_str()); }
  void see(int number) { sum_ += static_cast<std::uintptr_t>(static_cast<std::intptr_t>(number)); }
  void see(float number) { see(static_cast<int>(number)); }

  void attributes(kostyle::SystemStyle style) {
    see(style.id());
    see(style.name());
    see(style.vendor());
    list(style.singerGroups());
    list(style.singerIDs());
    list(style.genres());
    list(style.subGenres());
    list(style.colors());
  }

  template <class Texts>
  void list(const Texts& texts) {
    for (const kostyle::Text text : texts) see(text);
  }

  template <class Effects>
  void chain(const Effects& effects) {
    for (const auto effect : effects) {
      see(effect.id());
      for (const auto parameter : effect.parameters()) {
        see(parameter.name());
        std::visit([this](auto value) { see(value); }, parameter.value());
      }
    }
  }

  std::uintptr_t sum_ = 0;
};

}  // namespace bench
