#include "checking/reading_check.h"

#include <kostyle/codes.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <string>

#include "checking/json_value.h"
#include "checking/left_out_words.h"
#include "checking/near_name.h"
#include "checking/reading_observer.h"
#include "format/document_reader.h"
#include "format/style_keys.h"
#include "model/system_style.h"

namespace tool {
namespace {

using namespace Tesk::KoStyle;
using JsonValue = json::Value;

PartKind childKind(PartKind parent, TextView key) {
  switch (parent) {
    case PartKind::root:
      if (key == key::filter) return PartKind::filter;
      if (key == key::vendor) return PartKind::vendor;
      return key == key::id || key == key::name ? PartKind::identity : PartKind::chain;
    case PartKind::filter:
      return key == key::languages ? PartKind::languages : PartKind::texts;
    case PartKind::languages:
      return PartKind::language;
    case PartKind::texts:
      return PartKind::text;
    case PartKind::chain:
      return PartKind::effect;
    case PartKind::effect:
      return PartKind::parameters;
    default:
      return PartKind::parameter;
  }
}

// What tells a value from its siblings.
Text nameOf(const JsonDocument& document, const Part& part) {
  switch (part.kind) {
    case PartKind::effect:
      return Text(document.key(*part.node));
    case PartKind::parameter:
      return Text(key::parameterName(document.key(*part.node)));
    case PartKind::text:
      return Text(document.text(*part.node));
    case PartKind::language:
      return fromUtf8(std::to_string(part.node->number));
    default:
      return {};
  }
}

std::string keysOf(const ReadingObserver::Lookups& lookups) {
  std::string keys;
  for (const auto& lookup : lookups) {
    if (!keys.empty()) keys += &lookup == &lookups.back() ? " and " : ", ";
    keys += textInQuotes(lookup.key);
  }
  return keys;
}

// Goes through the document beside the values that the reader read.
class Walk {
 public:
  Walk(Reporter& reporter, const ReadingObserver& observer, Taken& taken)
      : reporter_(reporter), document_(reporter.document()), observer_(observer), taken_(taken) {}

  void addRefusals() {
    for (const ReadingObserver::Refusal& refusal : observer_.refusals()) addRefusal(refusal);
  }

  void visit(const Part& part, const JsonValue& value) {
    taken_.parts.push_back(part);
    checkTexts(part);
    checkNumber(part);
    if (const auto* lookups = observer_.lookupsIn(value)) {
      visitKnown(part, value, *lookups);
    } else if (value.IsObject() || value.IsArray()) {
      visitAll(part, value);
    }
  }

 private:
  using Names = std::map<Text, const JsonNode*>;

  // The children of an object in which the reader looks for some.
  void visitKnown(const Part& part, const JsonValue& value, const ReadingObserver::Lookups& lookups) {
    Names read;
    for (const JsonNode& child : *part.node) {
      const JsonValue& childValue = valueOf(value, child);
      const TextView key = document_.key(child);
      const auto isIt = [&](const auto& lookup) { return lookup.found == &childValue; };
      if (std::any_of(lookups.begin(), lookups.end(), isIt)) {
        read.emplace(key, &child);
        visitChild({childKind(part.kind, key), &child}, childValue);
      } else if (const auto first = read.find(Text(key)); first != read.end()) {
        addRepeatedMember(child, *first->second);
      } else {
        addUnknownMember(part, child, lookups);
      }
    }
  }

  void visitAll(const Part& part, const JsonValue& value) {
    Names taken;
    for (const JsonNode& child : *part.node) {
      const Part childPart{childKind(part.kind, document_.key(child)), &child};
      const JsonValue& childValue = valueOf(value, child);
      if (Finding* const repeats = visitChild(childPart, childValue)) {
        repeats->related =
            reporter_.relatedTo(*taken.at(nameOf(document_, childPart)), "the first stands here");
      } else if (!observer_.whyLeftOut(childValue)) {
        taken.emplace(nameOf(document_, childPart), &child);
      }
    }
  }

  // Gives the finding when the child is left out because it repeats.
  Finding* visitChild(const Part& child, const JsonValue& value) {
    if (const auto* why = observer_.whyLeftOut(value)) {
      Finding& finding = addLeftOut(reporter_, child, *why);
      if (*why == LeftOut::repeated) return &finding;
      // One of its members may have been meant.
      if (const auto* lookups = observer_.lookupsIn(value); *why == LeftOut::noParameters && lookups)
        visitKnown(child, value, *lookups);
      return nullptr;
    }
    const auto& refusals = observer_.refusals();
    const auto isIt = [&value](const auto& refusal) { return refusal.value == &value; };
    if (std::none_of(refusals.begin(), refusals.end(), isIt)) visit(child, value);
    return nullptr;
  }

  static const JsonValue& valueOf(const JsonValue& parent, const JsonNode& child) {
    if (parent.IsArray()) return parent[child.place];
    return (parent.MemberBegin() + static_cast<std::ptrdiff_t>(child.place))->value;
  }

  void addRefusal(const ReadingObserver::Refusal& refusal);
  void addRepeatedMember(const JsonNode& member, const JsonNode& first);
  void addUnknownMember(const Part& parent, const JsonNode& member,
                        const ReadingObserver::Lookups& lookups);
  void checkTexts(const Part& part);
  void checkNumber(const Part& part);

  Reporter& reporter_;
  const JsonDocument& document_;
  const ReadingObserver& observer_;
  Taken& taken_;
};

void Walk::addRefusal(const ReadingObserver::Refusal& refusal) {
  constexpr const char* outcome = "the file is refused";
  const JsonNode& root = document_.root();
  const TextView key = TextView(refusal.jsonPath).substr(1);
  const JsonNode* const member = document_.member(root, key);
  const std::string name = textInQuotes(key);
  if (refusal.error == KOSTYLE_ERROR_NO_EFFECT) {
    reporter_.add(rule::noEffect, root, false, "no effect is left in either chain", outcome);
  } else if (key.empty()) {
    reporter_.add(rule::rootType, root, false, "the root is " + described(document_, root), outcome);
  } else if (!member) {
    reporter_.add(rule::memberMissing, root, false, "the member " + name + " is missing", outcome);
  } else if (refusal.error == KOSTYLE_ERROR_EMPTY_STRING) {
    reporter_.add(rule::memberEmpty, *member, false, name + " is empty", outcome);
  } else {
    reporter_.add(rule::memberType, *member, false, name + " is " + described(document_, *member),
                  outcome);
  }
}

void Walk::addRepeatedMember(const JsonNode& member, const JsonNode& first) {
  reporter_
      .add(rule::repeatedMember, member, true,
           "the member " + textInQuotes(document_.key(member)) + " repeats", "the member is left out")
      .related = reporter_.relatedTo(first, "the first stands here");
}

void Walk::addUnknownMember(const Part& parent, const JsonNode& member,
                            const ReadingObserver::Lookups& lookups) {
  const TextView key = document_.key(member);
  const bool inMidiEffect = parent.kind == PartKind::effect &&
                            document_.key(*parent.node->parent()) == key::chain(EffectKind::midi);
  if (inMidiEffect && key == KOSTYLE_TEXT("script") && member.isString()) {
    reporter_.add(rule::midiScript, member, true, partName(document_, parent) + " has a script",
                  "the script is left out");
    return;
  }
  Finding& finding =
      reporter_.add(rule::unknownMember, member, true,
                    "the member " + textInQuotes(key) + " is unknown", "the member is left out");
  finding.requirement =
      (lookups.size() > 1 ? "the members here are " : "the only member here is ") + keysOf(lookups);
  std::vector<TextView> keys;
  for (const auto& lookup : lookups) keys.push_back(lookup.key);
  finding.suggestion = toUtf8(nearName(key, keys));
}

void Walk::checkTexts(const Part& part) {
  const JsonNode& node = *part.node;
  const auto isCut = [](TextView text) { return text.find(KoStyleChar{}) != TextView::npos; };
  const bool keyCounts = part.kind == PartKind::effect || part.kind == PartKind::parameter;
  if (keyCounts && isCut(document_.key(node))) {
    reporter_.add(rule::textCut, node, true,
                  "the name " + textInQuotes(document_.key(node)) + " holds U+0000",
                  "the rest is not seen");
  }
  if (node.isString() && isCut(document_.text(node))) {
    reporter_.add(rule::textCut, node, false,
                  "the text " + textInQuotes(document_.text(node)) + " holds U+0000",
                  "the rest is not seen");
  }
  if (part.kind == PartKind::parameter &&
      key::parameterName(document_.key(node)) != document_.key(node)) {
    reporter_.add(rule::parameterRenamed, node, true,
                  partName(document_, part) + " has another name now",
                  "the name changes when the style is written");
  }
}

void Walk::checkNumber(const Part& part) {
  if (part.kind != PartKind::parameter || part.node->kind != JsonKind::real) return;
  const double number = part.node->number;
  const auto single = static_cast<float>(number);
  const bool becomesZero = single == 0 && number != 0;
  if (!becomesZero && std::isfinite(single)) return;
  reporter_.add(rule::floatRange, *part.node, false,
                partName(document_, part) + " is " + described(document_, *part.node),
                becomesZero ? "it becomes zero" : "it becomes infinite, which cannot be written");
}

}  // namespace

Taken checkReading(Reporter& reporter) {
  const JsonDocument& document = reporter.document();
  constexpr std::size_t chunkSize = 65536;
  json::ThrowingAllocator allocator;
  json::Pool pool(chunkSize, &allocator);
  const JsonValue root = jsonValueOf(document, document.root(), pool);
  ReadingObserver observer;
  DocumentReader<Observed> reader{Observed(observer)};
  SystemStyle style(nullptr);
  StyleReadOutcome outcome;
  Taken taken;
  taken.refused = !reader.read(root, {}, style, outcome);
  Walk walk(reporter, observer, taken);
  walk.addRefusals();
  if (document.root().isObject()) walk.visit({PartKind::root, &document.root()}, root);
  return taken;
}

}  // namespace tool
