#include "writing/style_edits.h"

#include <fmt/core.h>

#include <CLI/CLI.hpp>
#include <algorithm>

#include "basics/failure.h"
#include "writing/value_argument.h"

namespace tool {
namespace {

template <typename Lists>
bool allEmpty(const Lists& lists) {
  return std::all_of(lists.begin(), lists.end(), [](const Texts& texts) { return texts.empty(); });
}

// One value for each time that the option is given.
void addRepeated(CLI::App& command, const std::string& option, Texts& values, const char* type,
                 const std::string& description) {
  command.add_option("--" + option, values, description)->allow_extra_args(false)->type_name(type);
}

int languageOf(const std::string& option, const std::string& argument) {
  try {
    return intOf(argument);
  } catch (const WrongUse& error) {
    throw WrongUse(fmt::format("{} {}", option, error.what()));
  }
}

void addLanguages(CLI::App& command, const std::string& option, std::vector<int>& languages,
                  const std::string& description) {
  const auto take = [&languages, option](const Texts& arguments) {
    for (const std::string& argument : arguments) languages.push_back(languageOf(option, argument));
  };
  command.add_option_function<Texts>(option, take, description)
      ->allow_extra_args(false)
      ->type_name("NUMBER");
}

void addCommonOptions(CLI::App& command, StyleEdits& edits) {
  for (std::size_t i = 0; i < chains().size(); ++i) {
    const Chain& chain = chains()[i];
    addRepeated(command, chain.option, edits.effects[i], "ID",
                fmt::format("Append an effect to the {} chain", chain.name));
  }
  addRepeated(command, "param", edits.parameters, "EFFECT.NAME[:TYPE]=VALUE",
              "Give an effect a parameter; TYPE is int, float or text");
  command.add_flag("--pretty", edits.pretty, "Write one line for each member")->disable_flag_override();
}

}  // namespace

bool changesNothing(const StyleEdits& edits) {
  return !edits.name && edits.languages.empty() && edits.deletedLanguages.empty() &&
         allEmpty(edits.texts) && allEmpty(edits.deletedTexts) && allEmpty(edits.effects) &&
         allEmpty(edits.deletedEffects) && edits.parameters.empty() &&
         edits.deletedParameters.empty() && !edits.reformat;
}

void addCreationOptions(CLI::App& command, StyleEdits& edits) {
  command.add_option("--name", edits.name, "Name of the style")->required()->type_name("TEXT");
  addLanguages(command, "--language", edits.languages, "Language, 0 to 4");
  for (std::size_t i = 0; i < textLists().size(); ++i)
    addRepeated(command, textLists()[i].option, edits.texts[i], "TEXT",
                fmt::format("One of the {}", textLists()[i].title));
  addCommonOptions(command, edits);
}

void addChangeOptions(CLI::App& command, StyleEdits& edits) {
  command.add_option("--name", edits.name, "New name of the style")->type_name("TEXT");
  addLanguages(command, "--add-language", edits.languages, "Add a language, 0 to 4");
  addLanguages(command, "--delete-language", edits.deletedLanguages, "Delete a language");
  for (std::size_t i = 0; i < textLists().size(); ++i) {
    const TextList& list = textLists()[i];
    addRepeated(command, fmt::format("add-{}", list.option), edits.texts[i], "TEXT",
                fmt::format("Add one of the {}", list.title));
    addRepeated(command, fmt::format("delete-{}", list.option), edits.deletedTexts[i], "TEXT",
                fmt::format("Delete one of the {}", list.title));
  }
  for (std::size_t i = 0; i < chains().size(); ++i) {
    const Chain& chain = chains()[i];
    addRepeated(command, fmt::format("delete-{}", chain.option), edits.deletedEffects[i], "ID",
                fmt::format("Delete an effect of the {} chain", chain.name));
  }
  addRepeated(command, "delete-param", edits.deletedParameters, "EFFECT.NAME", "Delete a parameter");
  command.add_flag("--add", edits.add, "Let --param add what is not there")->disable_flag_override();
  auto* reformat =
      command.add_flag("--reformat", edits.reformat, "Write the library's own form of the file")
          ->disable_flag_override();
  addCommonOptions(command, edits);
  command.get_option("--pretty")->needs(reformat);
}

}  // namespace tool
