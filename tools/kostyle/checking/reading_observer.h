// ReadingObserver: keeps what the library's reader says of a document.
#pragma once

#include <cstdint>
#include <unordered_map>
#include <vector>

#include "format/read_observer.h"
#include "platform/text.h"

namespace tool {

class ReadingObserver final : public Tesk::KoStyle::ReadObserver {
 public:
  using JsonValue = Tesk::KoStyle::json::Value;
  using LeftOut = Tesk::KoStyle::LeftOut;

  struct Lookup {
    Tesk::KoStyle::TextView key;
    const JsonValue* found;
  };
  using Lookups = std::vector<Lookup>;

  struct Refusal {
    std::uint32_t error;
    Tesk::KoStyle::Text jsonPath;
    const JsonValue* value;  // null when it is missing
  };

  void lookedFor(const JsonValue& object, Tesk::KoStyle::TextView key,
                 const JsonValue* found) override {
    lookups_[&object].push_back({key, found});
  }
  void leftOut(const JsonValue& value, LeftOut why) override { leftOut_.emplace(&value, why); }
  void refused(std::uint32_t error, Tesk::KoStyle::TextView jsonPath, const JsonValue* value) override {
    refusals_.push_back({error, Tesk::KoStyle::Text(jsonPath), value});
  }

  /// Null when the value is not left out by itself.
  const LeftOut* whyLeftOut(const JsonValue& value) const {
    const auto found = leftOut_.find(&value);
    return found == leftOut_.end() ? nullptr : &found->second;
  }

  /// The members that the reader looks for in an object; null when it takes them all one by one.
  const Lookups* lookupsIn(const JsonValue& object) const {
    const auto found = lookups_.find(&object);
    return found == lookups_.end() ? nullptr : &found->second;
  }

  const std::vector<Refusal>& refusals() const { return refusals_; }

 private:
  std::unordered_map<const JsonValue*, Lookups> lookups_;
  std::unordered_map<const JsonValue*, LeftOut> leftOut_;
  std::vector<Refusal> refusals_;
};

}  // namespace tool
