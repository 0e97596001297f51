#include "checking/left_out_words.h"

#include <fmt/core.h>

#include "format/style_keys.h"

namespace tool {
namespace {

using Tesk::KoStyle::LeftOut;

const char* outcomeOf(PartKind kind) {
  switch (kind) {
    case PartKind::vendor:
      return "the vendor is left out";
    case PartKind::identity:
      return "the style has no name and cannot be written";
    case PartKind::filter:
      return "the filter is left out";
    case PartKind::languages:
    case PartKind::texts:
      return "the list is left out";
    case PartKind::language:
    case PartKind::text:
      return "the value is left out";
    case PartKind::chain:
      return "the chain is left out";
    case PartKind::effect:
      return "the effect is left out";
    case PartKind::parameters:
      return "the effect is taken without parameters";
    case PartKind::parameter:
      return "the parameter is left out";
    case PartKind::root:
      break;
  }
  return "the file is refused";
}

const char* typeOf(PartKind kind) {
  switch (kind) {
    case PartKind::vendor:
      return "the vendor is a string";
    case PartKind::filter:
      return "the filter is an object";
    case PartKind::languages:
    case PartKind::texts:
      return "a list is an array";
    case PartKind::language:
      return rule::languageRange.sentence;
    case PartKind::text:
      return "the values of this list are strings";
    case PartKind::chain:
      return "a chain is an object whose members are effects";
    case PartKind::effect:
      return "an effect is an object";
    case PartKind::parameters:
      return R"("parameter" is an object whose members are parameters)";
    case PartKind::parameter:
      return "a parameter is a number or a string";
    case PartKind::identity:
    case PartKind::root:
      break;
  }
  return rule::wrongType.sentence;
}

bool isSingerId(const JsonDocument& document, const Part& part) {
  const auto key = Tesk::KoStyle::key::list(Tesk::KoStyle::Attribute::singerID);
  return part.kind == PartKind::text && document.key(*part.node->parent()) == key;
}

Finding& addUnfit(Reporter& reporter, const Part& part) {
  const JsonDocument& document = reporter.document();
  const JsonNode& node = *part.node;
  const char* const outcome = outcomeOf(part.kind);
  const std::size_t units = document.text(node).size();
  if (part.kind == PartKind::language) {
    return reporter.add(rule::languageRange, node, false,
                        "the language " + described(document, node) + " does not exist", outcome);
  }
  if (part.kind == PartKind::identity) {
    return reporter.add(rule::nameLength, node, false, fmt::format("the name has {} units", units),
                        outcome);
  }
  if (isSingerId(document, part)) {
    return reporter.add(
        rule::singerIdLength, node, false,
        fmt::format("the singer identifier {} has {} units", described(document, node), units),
        outcome);
  }
  return reporter.add(rule::emptyValue, node, false,
                      "a value of " + textInQuotes(document.key(*node.parent())) + " is empty",
                      outcome);
}

Finding& addWrongType(Reporter& reporter, const Part& part) {
  const JsonDocument& document = reporter.document();
  const JsonNode& node = *part.node;
  const bool isValue = part.kind == PartKind::text || part.kind == PartKind::language;
  const std::string found = (isValue ? "a value of " + textInQuotes(document.key(*node.parent()))
                                     : partName(document, part)) +
                            " is " + described(document, node);
  const bool isWide = node.kind == JsonKind::wideInteger;
  if (isWide && part.kind == PartKind::parameter)
    return reporter.add(rule::integerRange, node, false, found, outcomeOf(part.kind));
  if (isWide && part.kind == PartKind::language)
    return reporter.add(rule::languageRange, node, false, found, outcomeOf(part.kind));
  Finding& finding = reporter.add(rule::wrongType, node, false, found, outcomeOf(part.kind));
  finding.requirement = typeOf(part.kind);
  return finding;
}

Finding& addRepeated(Reporter& reporter, const Part& part) {
  const std::string found = partName(reporter.document(), part) + " repeats";
  const Rule& rule = part.kind == PartKind::effect      ? rule::repeatedEffect
                     : part.kind == PartKind::parameter ? rule::repeatedParameter
                                                        : rule::repeatedValue;
  return reporter.add(rule, *part.node, true, found, outcomeOf(part.kind));
}

}  // namespace

std::string partName(const JsonDocument& document, const Part& part) {
  const JsonNode& node = *part.node;
  switch (part.kind) {
    case PartKind::root:
      return "the root";
    case PartKind::effect:
      return "the effect " + textInQuotes(document.key(node));
    case PartKind::parameter:
      return "the parameter " + textInQuotes(document.key(node));
    case PartKind::language:
      return "the language " + described(document, node);
    case PartKind::text:
      return "the value " + described(document, node);
    default:
      return textInQuotes(document.key(node));
  }
}

Finding& addLeftOut(Reporter& reporter, const Part& part, LeftOut why) {
  switch (why) {
    case LeftOut::wrongType:
      return addWrongType(reporter, part);
    case LeftOut::unfit:
      return addUnfit(reporter, part);
    case LeftOut::repeated:
      return addRepeated(reporter, part);
    case LeftOut::noParameters:
      return reporter.add(rule::effectWithoutParameter, *part.node, true,
                          partName(reporter.document(), part) + R"( has no member "parameter")",
                          outcomeOf(part.kind));
    case LeftOut::emptyKey:
      break;
  }
  const char* const found =
      part.kind == PartKind::effect ? "an effect has no name" : "a parameter has no name";
  return reporter.add(rule::emptyName, *part.node, true, found, outcomeOf(part.kind));
}

}  // namespace tool
