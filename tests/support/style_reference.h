// A simple reference of a manager: what a host knows of its mutable styles, its stored styles and their
// files. It holds the handles that the library gave, but calls nothing.
#pragma once

#include <algorithm>
#include <array>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "support/kostyle.h"
#include "support/style_files.h"
#include "support/style_value.h"

namespace test {

struct ParameterReference {
  KoStyleParameter* handle;
  ParameterValue value;
};

struct EffectReference {
  KoStyleEffect* handle;
  Text id;
  std::vector<ParameterReference> parameters;

  bool hasName(const Text& name) const {
    return std::any_of(parameters.begin(), parameters.end(),
                       [&](const ParameterReference& each) { return each.value.name == name; });
  }
  void add(KoStyleParameter* handle_, const Text& name) {
    parameters.push_back({handle_, ParameterValue::ofInt(name, 0)});
    std::stable_sort(parameters.begin(), parameters.end(),
                     [](const ParameterReference& a, const ParameterReference& b) {
                       return a.value.name < b.value.name;
                     });
  }
};

struct MutableReference {
  KoStyleStyle* handle;
  StyleValue attributes;  // without chains
  std::array<std::vector<EffectReference>, 2> chains;

  bool hasEffect() const { return !chains[0].empty() || !chains[1].empty(); }

  StyleValue value() const {
    StyleValue result = attributes;
    for (std::size_t kind = 0; kind < chains.size(); ++kind) {
      for (const EffectReference& effect : chains[kind]) {
        result.chains[kind].push_back({effect.id, {}});
        for (const ParameterReference& each : effect.parameters)
          result.chains[kind].back().parameters.push_back(each.value);
      }
    }
    return result;
  }
};

struct EditorReference {
  KoStylePropertyEditor* handle;
  Text name;
  std::set<Text> subGenres;
  std::set<Text> colors;
};

struct StoredReference {
  KoStyleStyle* handle;
  std::string fileName;
  Text id;
  Text vendor;
  StyleValue value;
  std::optional<EditorReference> editor;
};

/// What reading a file gives.
struct FileReference {
  int code;  // KOSTYLE_OK, KOSTYLE_ERROR_NO_EFFECT or KOSTYLE_ERROR_JSON_SYNTAX
  Text id;
  Text vendor;
  StyleValue value;

  /// The file that is written for a style.
  static FileReference of(const Text& id, const StyleValue& written) {
    std::optional<StyleValue> reread = asReread(written);
    if (!reread) return {KOSTYLE_ERROR_NO_EFFECT, {}, {}, {}};
    return {KOSTYLE_OK, id, {}, *std::move(reread)};
  }
};

struct RecordReference {
  std::string fileName;
  Text id;
  int code;
};

/// The stored styles of one kind, the records of reading them, and the files of their directory.
struct SetReference {
  std::vector<StoredReference> styles;
  std::vector<RecordReference> records;
  std::map<std::string, FileReference> files;

  StoredReference* find(const Text& id) {
    const auto found = std::find_if(styles.begin(), styles.end(),
                                    [&](const StoredReference& style) { return style.id == id; });
    return found == styles.end() ? nullptr : &*found;
  }

  /// Reads the files in an order, beside the styles of the other set.
  void read(const std::vector<std::string>& order, SetReference& other) {
    styles.clear();
    records.clear();
    for (const std::string& name : order) {
      const FileReference& file = files.at(name);
      const bool taken = file.code == KOSTYLE_OK && (find(file.id) || other.find(file.id));
      records.push_back({name, file.id, taken ? KOSTYLE_ERROR_DUPLICATE_ID : file.code});
      if (file.code == KOSTYLE_OK && !taken)
        styles.push_back({nullptr, name, file.id, file.vendor, file.value, std::nullopt});
    }
  }
};

}  // namespace test
