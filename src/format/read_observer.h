// ReadObserver: is told what a style takes of a document and what not, for those who explain it.
//
// Reading for an application is Unobserved, which costs nothing: every call to it is empty.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "format/json.h"
#include "model/style_builder.h"

namespace Tesk::KoStyle {

/// Why a value is left out, while the style is taken.
enum class LeftOut {
  wrongType,
  unfit,         // of the right type, but not a value that may stand there
  emptyKey,      // an effect or a parameter must have a name
  noParameters,  // an effect must have some, be they of any type
  repeated
};

/// Values are told by where they lie in the document.
class ReadObserver {
 public:
  /// The reader looks for a member and finds none or one. What it does not look for in an object, in
  /// which it looks for some, it leaves out.
  virtual void lookedFor(const json::Value& object, TextView key, const json::Value* found) = 0;

  virtual void leftOut(const json::Value& value, LeftOut why) = 0;

  /// A failing check, the first of which is the reason for refusing the file. The value is null when it
  /// is missing.
  virtual void refused(std::uint32_t error, TextView jsonPath, const json::Value* value) = 0;

 protected:
  ~ReadObserver() = default;
};

struct Unobserved {
  /// Whether the reader goes on after a failing check.
  static constexpr bool wantsAll = false;

  static void lookedFor(const json::Value&, TextView, const json::Value*) noexcept {}
  static void leftOut(const json::Value&, LeftOut) noexcept {}
  static void refused(std::uint32_t, TextView, const json::Value*) noexcept {}
  static void started() noexcept {}
  static void addedEffect(const json::Value&) noexcept {}
  static void addedParameter(const json::Value&) noexcept {}
  static void addedText(Attribute, const json::Value&) noexcept {}
  static void froze(const StyleBuilder&) noexcept {}
};

/// Hands on to an observer, and finds out which values the builder dropped because they repeat.
class Observed {
 public:
  static constexpr bool wantsAll = true;

  explicit Observed(ReadObserver& observer) noexcept : observer_(observer) {}

  void lookedFor(const json::Value& object, TextView key, const json::Value* found) const {
    observer_.lookedFor(object, key, found);
  }
  void leftOut(const json::Value& value, LeftOut why) const { observer_.leftOut(value, why); }
  void refused(std::uint32_t error, TextView jsonPath, const json::Value* value) const {
    observer_.refused(error, jsonPath, value);
  }
  void started() noexcept {
    effects_.clear();
    parameters_.clear();
    for (Values& values : texts_) values.clear();
  }

  // In the order in which they come to the builder.
  void addedEffect(const json::Value& value) { effects_.push_back(&value); }
  void addedParameter(const json::Value& value) { parameters_.push_back(&value); }
  void addedText(Attribute attribute, const json::Value& value) {
    texts_[static_cast<std::size_t>(attribute)].push_back(&value);
  }

  void froze(const StyleBuilder& builder) const {
    leaveOutRepeated(effects_, builder.repeatedEffects());
    leaveOutRepeated(parameters_, builder.repeatedParameters());
    for (const Attribute attribute : textAttributes)
      leaveOutRepeated(texts_[static_cast<std::size_t>(attribute)], builder.repeatedTexts(attribute));
  }

 private:
  using Values = std::vector<const json::Value*>;

  void leaveOutRepeated(const Values& values, const std::vector<std::size_t>& repeated) const {
    for (const std::size_t index : repeated) observer_.leftOut(*values[index], LeftOut::repeated);
  }

  ReadObserver& observer_;
  Values effects_;
  Values parameters_;
  std::array<Values, textAttributes.size()> texts_;
};

}  // namespace Tesk::KoStyle
