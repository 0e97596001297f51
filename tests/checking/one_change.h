// A document with one change somewhere in it, so that what the change does is not hidden by others.
#pragma once

#include <cstdio>
#include <string>
#include <utility>
#include <vector>

#include "checking/style_document.h"
#include "format/reference_json.h"
#include "support/random.h"

namespace test::reference {

inline std::string writtenJson(const Value& value) {
  std::string items;
  for (std::size_t i = 0; i < value.elements.size(); ++i) {
    if (i > 0) items += ',';
    if (value.kind == Value::object) items += written(value.keys[i]) + ':';
    items += writtenJson(value.elements[i]);
  }
  char number[64];
  std::snprintf(number, sizeof number, "%.17e", value.realValue);
  switch (value.kind) {
    case Value::null:
      return "null";
    case Value::boolean:
      return "true";
    case Value::integer:
      return std::to_string(value.integerValue);
    case Value::longInteger:
      return "4294967296";
    case Value::real:
      return number;
    case Value::string:
      return written(value.text);
    case Value::array:
      return '[' + items + ']';
    default:
      return '{' + items + '}';
  }
}

class OneChange {
 public:
  explicit OneChange(Random& random) : random_(random) {}

  void to(Value& root) {
    std::vector<Value*> containers;
    collect(root, containers);
    Value& container = *random_.of(containers);
    const std::size_t size = container.elements.size();
    const std::size_t at = random_.below(size + 1);
    if (size > 1 && random_.oneIn(4)) {
      exchange(container, random_.below(size), random_.below(size));
    } else if (at == size) {
      insert(container, size, key(), other());
    } else if (random_.oneIn(3)) {
      container.elements[at] = other();
    } else if (random_.oneIn(2) || container.kind == Value::array) {
      const Text sameKey = container.kind == Value::object ? container.keys[at] : Text();
      insert(container, random_.below(size + 1), sameKey,
             random_.oneIn(2) ? Value(container.elements[at]) : other());
    } else {
      container.keys[at] = key();
    }
  }

 private:
  static void collect(Value& value, std::vector<Value*>& containers) {
    if (value.kind == Value::array || value.kind == Value::object) containers.push_back(&value);
    for (Value& element : value.elements) collect(element, containers);
  }

  static void exchange(Value& container, std::size_t a, std::size_t b) {
    std::swap(container.elements[a], container.elements[b]);
    if (container.kind == Value::object) std::swap(container.keys[a], container.keys[b]);
  }

  static void insert(Value& container, std::size_t at, const Text& key, Value value) {
    const auto place = static_cast<std::ptrdiff_t>(at);
    container.elements.insert(container.elements.begin() + place, std::move(value));
    if (container.kind == Value::object) container.keys.insert(container.keys.begin() + place, key);
  }

  Text key() {
    static const std::vector<std::string> keys{
        "",       "x",         "Tarn",      "Tarn630", "script", "id",
        "name",   "parameter", "languages", "vendor",  "filter", "genres",
        "colors", "Parameter", "singerIDs", "E",       "F",      "midiEffect"};
    return text(random_.of(keys));
  }

  Value other() {
    static const std::vector<std::string> values{"null",
                                                 "true",
                                                 "0",
                                                 "4",
                                                 "5",
                                                 "-1",
                                                 "4294967296",
                                                 "2.5",
                                                 "1e39",
                                                 "1e-60",
                                                 "\"x\"",
                                                 "\"\"",
                                                 "[]",
                                                 "{}",
                                                 "[1]",
                                                 "[\"x\", \"x\"]",
                                                 "{\"a\":1}",
                                                 "{\"parameter\":{\"a\":1}}",
                                                 "{\"parameter\":[]}",
                                                 "\"a\\u0000b\"",
                                                 "\"0123456789abcdef\"",
                                                 "{\"E\":{\"parameter\":{}}}"};
    const std::string& chosen = random_.of(values);
    return *Parser({chosen.begin(), chosen.end()}).parse();
  }

  Random& random_;
};

}  // namespace test::reference
