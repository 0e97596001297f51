#include "checking/writing_check.h"

#include <fmt/core.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <set>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "checking/left_out_words.h"
#include "format/style_keys.h"

namespace tool {
namespace {

namespace key = Tesk::KoStyle::key;

using Tesk::KoStyle::Attribute;
using Tesk::KoStyle::EffectKind;

// The parser may miss a number by the last bit of its double precision.
bool isNear(double a, double b) { return std::abs(a - b) <= 1e-15 * std::abs(b); }

// The parts that a style takes, by the part that they stand in.
class WritingCheck {
 public:
  WritingCheck(Reporter& reporter, const Taken& taken)
      : reporter_(reporter), document_(reporter.document()) {
    for (const Part& part : taken.parts) {
      if (part.kind != PartKind::vendor) children_[part.node->parent()].push_back(part);
    }
  }

  void check(const Part& part) {
    checkSurrogates(part);
    switch (part.kind) {
      case PartKind::root:
      case PartKind::filter:
        checkOrder(part, rule::memberOrder, [this](const Part& member) { return memberPlace(member); });
        break;
      case PartKind::vendor:
        if (!document_.text(*part.node).empty())
          add(rule::vendorLost, part, "the style has a vendor", "the vendor is lost");
        break;
      case PartKind::languages:
        checkOrder(part, rule::valueOrder, [](const Part& value) { return value.node->number; });
        break;
      case PartKind::texts:
        checkOrder(part, rule::valueOrder,
                   [this](const Part& value) { return document_.text(*value.node); });
        break;
      case PartKind::effect:
        checkEffect(part);
        break;
      case PartKind::parameters:
        checkOrder(part, rule::parameterOrder, [this](const Part& parameter) {
          return key::parameterName(document_.key(*parameter.node));
        });
        break;
      case PartKind::parameter:
        checkPrecision(part);
        break;
      default:
        break;
    }
  }

 private:
  void add(const Rule& rule, const Part& part, std::string found, std::string outcome) {
    reporter_.add(rule, *part.node, true, std::move(found), std::move(outcome));
  }

  // Once for the file, at the first part that stands behind one that comes after it.
  template <class KeyOf>
  void checkOrder(const Part& parent, const Rule& rule, KeyOf keyOf) {
    std::vector<Part> parts;
    for (const Part& part : children_[parent.node]) {
      if (isWritten(part)) parts.push_back(part);
    }
    const auto outOfOrder = [&](const Part& a, const Part& b) { return keyOf(b) < keyOf(a); };
    const auto found = std::adjacent_find(parts.begin(), parts.end(), outOfOrder);
    if (found == parts.end() || !reordered_.insert(&rule).second) return;
    add(rule, found[1],
        partName(document_, found[1]) + " stands behind " + partName(document_, found[0]),
        "the order changes");
  }

  // What holds nothing is not.
  bool isWritten(const Part& part) {
    const std::vector<Part>& children = children_[part.node];
    const auto isFull = [this](const Part& list) { return !children_[list.node].empty(); };
    if (part.kind == PartKind::filter) return std::any_of(children.begin(), children.end(), isFull);
    const bool holdsOthers = part.kind == PartKind::chain || part.kind == PartKind::languages ||
                             part.kind == PartKind::texts;
    return !holdsOthers || !children.empty();
  }

  // Among the members of root and filter, as they are written.
  std::size_t memberPlace(const Part& member) const {
    std::vector<TextView> order{key::id,
                                key::name,
                                key::filter,
                                key::chain(EffectKind::audio),
                                key::chain(EffectKind::midi),
                                key::languages};
    for (const Attribute attribute : Tesk::KoStyle::textAttributes)
      order.push_back(key::list(attribute));
    const auto found = std::find(order.begin(), order.end(), document_.key(*member.node));
    return static_cast<std::size_t>(found - order.begin());
  }

  void checkEffect(const Part& effect) {
    const auto& parameters = children_[effect.node];
    const bool hasSome = std::any_of(parameters.begin(), parameters.end(), [this](const Part& part) {
      return !children_[part.node].empty();
    });
    if (!hasSome) {
      add(rule::effectLost, effect, partName(document_, effect) + " has no parameters",
          "no reader takes it then");
    }
  }

  void checkSurrogates(const Part& part) {
    const bool keyCounts = part.kind == PartKind::effect || part.kind == PartKind::parameter;
    const bool inKey = keyCounts && !isUnicode(document_.key(*part.node));
    const bool inText = part.node->isString() && !isUnicode(document_.text(*part.node));
    if (!inKey && !inText) return;
    reporter_.add(rule::loneSurrogate, *part.node, inKey,
                  (inKey ? "a name" : "a text") + std::string(" holds half of a surrogate pair"),
                  "the file breaks off there");
  }

  // A decimal that a float gives back in its shortest form is kept, whatever lies between the two.
  void checkPrecision(const Part& parameter) {
    const double number = parameter.node->number;
    const auto single = static_cast<float>(number);
    if (parameter.node->kind != JsonKind::real || !std::isfinite(single) || single == 0) return;
    if (isNear(number, static_cast<double>(single))) return;
    const std::string shortest = fmt::format("{}", single);
    if (isNear(number, std::strtod(shortest.c_str(), nullptr))) return;
    reporter_.add(rule::floatPrecision, *parameter.node, false,
                  partName(document_, parameter) + " is " + described(document_, *parameter.node),
                  "it becomes " + shortest);
  }

  Reporter& reporter_;
  const JsonDocument& document_;
  std::unordered_map<const JsonNode*, std::vector<Part>> children_;  // of what is written
  std::set<const Rule*> reordered_;
};

void checkEncoding(Reporter& reporter) {
  const SourceText& source = reporter.document().source();
  const bool isUtf8 = source.encoding().unitSize == 1;
  if (isUtf8 && source.begin() == 0) return;
  const auto begin = static_cast<std::uint32_t>(source.begin());
  const std::string mark = source.begin() > 0 ? " with a byte-order mark" : "";
  reporter.add(rule::encodingChanged, Span{begin, begin},
               fmt::format("the file is {}{}", source.encodingName(), mark), "the encoding changes");
}

}  // namespace

void checkWriting(Reporter& reporter, const Taken& taken) {
  if (taken.refused) return;
  checkEncoding(reporter);
  WritingCheck check(reporter, taken);
  for (const Part& part : taken.parts) check.check(part);
}

}  // namespace tool
