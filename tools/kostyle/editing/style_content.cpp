#include "editing/style_content.h"

#include <fmt/format.h>

#include <algorithm>

namespace tool {
namespace {

std::string shown(const Text& text) { return inQuotes(toUtf8(text)); }

std::string textDifference(const char* what, const Text& expected, const Text& found) {
  if (expected == found) return {};
  return fmt::format("the {} is {} instead of {}", what, shown(found), shown(expected));
}

template <typename Element>
std::vector<Element> sorted(std::vector<Element> elements) {
  std::sort(elements.begin(), elements.end());
  return elements;
}

// Of two lists, whose order means nothing.
template <typename Element, typename Show>
std::string listDifference(const std::vector<Element>& expected, const std::vector<Element>& found,
                           Show show) {
  const std::vector<Element> wanted = sorted(expected);
  const std::vector<Element> given = sorted(found);
  const auto [want, give] = std::mismatch(wanted.begin(), wanted.end(), given.begin(), given.end());
  if (want == wanted.end() && give == given.end()) return {};
  if (want == wanted.end() || (give != given.end() && *give < *want))
    return fmt::format("{} is there", show(*give));
  return fmt::format("{} is not there", show(*want));
}

std::string parameterDifference(const EffectContent& expected, const EffectContent& found) {
  const auto byName = [](std::vector<ParameterContent> parameters) {
    std::stable_sort(parameters.begin(), parameters.end(),
                     [](const auto& a, const auto& b) { return a.name < b.name; });
    return parameters;
  };
  const auto wanted = byName(expected.parameters);
  const auto given = byName(found.parameters);
  const auto same = [](const ParameterContent& a, const ParameterContent& b) {
    return a.name == b.name && areSame(a.value, b.value);
  };
  const auto [want, give] =
      std::mismatch(wanted.begin(), wanted.end(), given.begin(), given.end(), same);
  const std::string effect = toUtf8(expected.id);
  if (want == wanted.end() && give == given.end()) return {};
  if (want == wanted.end() || (give != given.end() && give->name < want->name))
    return fmt::format("{}.{} is there", effect, toUtf8(give->name));
  if (give == given.end() || give->name != want->name)
    return fmt::format("{}.{} is not there", effect, toUtf8(want->name));
  return fmt::format("{}.{} is {} {} instead of {} {}", effect, toUtf8(want->name),
                     typeText(give->value), valueText(give->value), typeText(want->value),
                     valueText(want->value));
}

std::string chainDifference(const ChainContent& expected, const ChainContent& found) {
  const auto same = [](const EffectContent& a, const EffectContent& b) { return a.id == b.id; };
  const auto [want, give] =
      std::mismatch(expected.begin(), expected.end(), found.begin(), found.end(), same);
  if (want != expected.end())
    return fmt::format("the effect {} is not there or not at its place", shown(want->id));
  if (give != found.end()) return fmt::format("the effect {} is there", shown(give->id));
  for (std::size_t i = 0; i < expected.size(); ++i)
    if (auto text = parameterDifference(expected[i], found[i]); !text.empty()) return text;
  return {};
}

}  // namespace

std::string difference(const StyleContent& expected, const StyleContent& found) {
  for (auto text : {textDifference("identifier", expected.id, found.id),
                    textDifference("name", expected.name, found.name),
                    textDifference("vendor text", expected.vendor, found.vendor)})
    if (!text.empty()) return text;
  const auto showLanguage = [](int language) { return fmt::format("the language {}", language); };
  if (auto text = listDifference(expected.languages, found.languages, showLanguage); !text.empty())
    return text;
  for (std::size_t i = 0; i < expected.texts.size(); ++i)
    if (auto text = listDifference(expected.texts[i], found.texts[i], shown); !text.empty())
      return text;
  for (std::size_t i = 0; i < expected.chains.size(); ++i)
    if (auto text = chainDifference(expected.chains[i], found.chains[i]); !text.empty()) return text;
  return {};
}

}  // namespace tool
