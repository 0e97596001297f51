#include "reading/style_filter.h"

#include <fmt/core.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <utility>

#include "basics/text.h"

namespace tool {
namespace {

using Strings = std::vector<std::string>;

std::string withoutCase(std::string text) {
  for (char& c : text)
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c + ('a' - 'A'));
  return text;
}

// Whether one of the values is one of those that are wanted, if any are.
bool hasWanted(const Strings& wanted, const Strings& values) {
  return wanted.empty() || std::any_of(wanted.begin(), wanted.end(), [&](const std::string& text) {
           const auto isIt = [folded = withoutCase(text)](const std::string& value) {
             return withoutCase(value) == folded;
           };
           return std::any_of(values.begin(), values.end(), isIt);
         });
}

bool holdsWanted(const Strings& wanted, const Strings& values) {
  return wanted.empty() || std::any_of(wanted.begin(), wanted.end(), [&](const std::string& text) {
           const auto holds = [folded = withoutCase(text)](const std::string& value) {
             return withoutCase(value).find(folded) != std::string::npos;
           };
           return std::any_of(values.begin(), values.end(), holds);
         });
}

bool hasWantedLanguage(const std::vector<int>& wanted, const std::vector<int>& languages) {
  return wanted.empty() || std::find_first_of(languages.begin(), languages.end(), wanted.begin(),
                                              wanted.end()) != languages.end();
}

Strings effectIds(KoStyleStyle* style) {
  Strings ids;
  for (const Chain& chain : chains())
    for (std::size_t i = 0; i < chain.count(style); ++i)
      ids.push_back(toUtf8(Effect_id(chain.stored(style, i))));
  return ids;
}

Strings allTexts(KoStyleStyle* style) {
  Strings all = effectIds(style);
  for (const KoStyleChar* text : {Style_name(style), Style_id(style), Style_vendor(style)})
    all.push_back(toUtf8(text));
  for (const TextList& list : textLists())
    for (std::string& text : values(list, style)) all.push_back(std::move(text));
  return all;
}

}  // namespace

bool StyleFilter::matches(KoStyleStyle* style) const {
  for (std::size_t i = 0; i < texts.size(); ++i)
    if (!hasWanted(texts[i], values(textLists()[i], style))) return false;
  return hasWantedLanguage(languages, tool::languages(style)) && hasWanted(effects, effectIds(style)) &&
         holdsWanted(anywhere, allTexts(style));
}

void addFilterOptions(CLI::App& command, StyleFilter& filter) {
  const auto add = [&](const std::string& name, Strings& wanted, const char* type,
                       const std::string& description) {
    command.add_option("--" + name, wanted, description)->allow_extra_args(false)->type_name(type);
  };
  command
      .add_option("--language", filter.languages,
                  "Only styles with a language; may be repeated, as the next")
      ->allow_extra_args(false)
      ->type_name("NUMBER")
      ->check(CLI::Range(Style_minLangID(), Style_maxLangID()));
  for (std::size_t i = 0; i < textLists().size(); ++i)
    add(textLists()[i].option, filter.texts[i], "TEXT",
        fmt::format("Only styles with one of the {}", textLists()[i].title));
  add("effect", filter.effects, "ID", "Only styles with an effect in either chain");
  add("text", filter.anywhere, "TEXT",
      "Only styles with a text in name, identifier, vendor, attributes or effects");
}

}  // namespace tool
