// Random documents of styles as authors may have written them: with every layout, escapes, members that
// repeat and members that no style takes.
#pragma once

#include <algorithm>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "support/random.h"

namespace test {

struct JsonMember;

/// A value of a document, with the white space in it.
struct JsonText {
  enum Kind { integer, wide, real, string, literal, array, object };
  Kind kind;
  std::string raw;  // of what is neither array nor object
  std::vector<JsonMember> children;

  bool isContainer() const { return kind == array || kind == object; }
};

struct JsonMember {
  std::string name;  // empty for elements
  std::string key;   // as it is written
  JsonText value;
  std::string before, beforeColon, afterColon, after;  // white space; `after` stands before a comma
};

/// How a document is laid out.
struct DocumentLayout {
  enum Kind { compact, oneLine, lines, anyhow };
  Kind kind;
  std::string lineEnd;
  std::string step;
};

/// Puts white space everywhere.
inline void layOut(JsonText& value, const DocumentLayout& layout, Random& random,
                   std::size_t depth = 0) {
  const auto indent = [&](std::size_t level) {
    std::string space = layout.lineEnd;
    while (level-- > 0) space += layout.step;
    return space;
  };
  const auto any = [&] {
    const std::vector<std::string> spaces{"", "", " ", "\n", "\n\n  ", "\t", "\r\n ", "   "};
    return random.of(spaces);
  };
  for (JsonMember& child : value.children) {
    const bool isFirst = &child == &value.children.front();
    const bool isLast = &child == &value.children.back();
    child.before = child.beforeColon = child.afterColon = child.after = "";
    if (layout.kind == DocumentLayout::oneLine) {
      child.before = isFirst ? "" : " ";
      child.afterColon = " ";
    } else if (layout.kind == DocumentLayout::lines) {
      child.before = indent(depth + 1);
      child.afterColon = " ";
      if (isLast) child.after = indent(depth);
    } else if (layout.kind == DocumentLayout::anyhow) {
      child.before = any(), child.beforeColon = any(), child.afterColon = any(), child.after = any();
    }
    layOut(child.value, layout, random, depth + 1);
  }
}

/// Also gives where one of the values stands.
inline void print(const JsonText& value, std::string& out, const JsonText* watched = nullptr,
                  std::pair<std::size_t, std::size_t>* place = nullptr) {
  if (&value == watched) place->first = out.size();
  if (value.isContainer()) {
    out += value.kind == JsonText::array ? '[' : '{';
    for (const JsonMember& child : value.children) {
      if (&child != &value.children.front()) out += ',';
      out += child.before + child.key;
      if (!child.key.empty()) out += child.beforeColon + ':' + child.afterColon;
      print(child.value, out, watched, place);
      out += child.after;
    }
    out += value.kind == JsonText::array ? ']' : '}';
  } else {
    out += value.raw;
  }
  if (&value == watched) place->second = out.size();
}

inline std::string printed(const JsonText& value) {
  std::string text;
  print(value, text);
  return text;
}

inline std::string withoutSpace(JsonText value) {
  Random unused(0);
  layOut(value, {DocumentLayout::compact, "", ""}, unused);
  return printed(value);
}

/// White space outside of strings taken out.
inline std::string withoutSpace(const std::string& text) {
  std::string result;
  bool inString = false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (inString && text[i] == '\\') {
      result += text[i++];
    } else if (text[i] == '"') {
      inString = !inString;
    } else if (!inString && std::string(" \t\r\n").find(text[i]) != std::string::npos) {
      continue;
    }
    result += text[i];
  }
  return result;
}

class DocumentMaker {
 public:
  explicit DocumentMaker(Random& random) : random_(random) {}

  /// The style "S" with at least two audio effects, and a filter with languages and genres.
  JsonText style() {
    JsonText root{JsonText::object, "", {}};
    root.children = {member("id", quoted("S")), member("name", quoted("N")), member("filter", filter()),
                     member("audioEffect", chain(2)), unknown()};
    if (random_.oneIn(2)) root.children.push_back(member("midiEffect", chain(1)));
    if (random_.oneIn(2)) root.children.push_back(member("vendor", quoted("V \xC3\xA9")));
    std::shuffle(root.children.begin(), root.children.end(), engine());
    if (random_.oneIn(3)) root.children.push_back(member("name", quoted("another")));
    if (random_.oneIn(4)) root.children.push_back(member("filter", {JsonText::literal, "null", {}}));
    if (random_.oneIn(4)) root.children.push_back(member("audioEffect", chain(1)));
    return root;
  }

 private:
  std::mt19937_64 engine() { return std::mt19937_64(random_.bits()); }

  JsonText quoted(const std::string& plain) {
    std::string raw = "\"";
    for (const char each : plain) {
      const char digits[] = "0123456789abcdef";
      const auto code = static_cast<unsigned char>(each);
      if (code < 0x80 && random_.oneIn(8)) {
        raw += {'\\', 'u', '0', '0', digits[code >> 4], digits[code & 15]};
      } else {
        raw += each;
      }
    }
    return {JsonText::string, raw + '"', {}};
  }

  JsonMember member(const std::string& name, JsonText value) {
    return {name, quoted(name).raw, std::move(value), "", "", "", ""};
  }
  static JsonMember element(JsonText value) { return {"", "", std::move(value), "", "", "", ""}; }

  JsonText scalar() {
    const std::vector<JsonText> values{{JsonText::integer, "7", {}},
                                       {JsonText::integer, "-0", {}},
                                       {JsonText::real, "0.40", {}},
                                       {JsonText::real, "5e-1", {}},
                                       {JsonText::real, "1E+2", {}},
                                       {JsonText::real, "99999999999999999999", {}},
                                       {JsonText::wide, "4294967296", {}},
                                       {JsonText::literal, "true", {}},
                                       {JsonText::literal, "null", {}},
                                       {JsonText::string, "\"a\\\"\\\\b{[,:]}\"", {}},
                                       {JsonText::string, "\"\"", {}},
                                       {JsonText::string, "\"\xF0\x9D\x84\x9E \\ud834\\udd1e\"", {}}};
    return random_.of(values);
  }

  JsonMember unknown() {
    JsonText list{JsonText::array, "", {}};
    for (std::size_t i = random_.below(4); i > 0; --i) list.children.push_back(element(scalar()));
    JsonText object{JsonText::object, "", {member("//", quoted("a remark")), member("list", list)}};
    return member("mood", random_.oneIn(2) ? std::move(object) : scalar());
  }

  JsonText filter() {
    JsonText languages{JsonText::array, "", {element({JsonText::integer, "0", {}})}};
    if (random_.oneIn(2)) languages.children.push_back(element(scalar()));
    JsonText genres{JsonText::array, "", {}};
    for (std::size_t i = random_.below(5); i > 0; --i)
      genres.children.push_back(element(
          random_.oneIn(6) ? scalar() : quoted(std::string("g") + char('a' + random_.below(3)))));
    JsonText filter{JsonText::object, "", {member("languages", languages), member("genres", genres)}};
    if (random_.oneIn(3)) filter.children.push_back(member("key", scalar()));
    if (random_.oneIn(4)) filter.children.push_back(member("genres", genres));
    return filter;
  }

  JsonText effect(bool isGood) {
    JsonText parameters{JsonText::object, "", {}};
    const std::vector<std::string> names{"p", "q", "r", "Tarn", "Tarn630"};
    for (std::size_t i = random_.below(5); i > 0; --i)
      parameters.children.push_back(member(random_.of(names), scalar()));
    if (isGood) parameters.children.push_back(member("z", {JsonText::integer, "3", {}}));
    JsonText effect{JsonText::object, "", {}};
    if (random_.oneIn(4)) effect.children.push_back(unknown());
    if (isGood || !random_.oneIn(4)) effect.children.push_back(member("parameter", parameters));
    if (random_.oneIn(4)) effect.children.push_back(member("script", quoted("x()")));
    return effect;
  }

  JsonText chain(std::size_t good) {
    JsonText chain{JsonText::object, "", {}};
    for (std::size_t i = 0; i < good; ++i)
      chain.children.push_back(member("E" + std::to_string(i), effect(true)));
    const std::vector<std::string> names{"E0", "E1", "E2", "F"};
    for (std::size_t i = random_.below(4); i > 0; --i)
      chain.children.push_back(member(random_.of(names), random_.oneIn(5) ? scalar() : effect(false)));
    std::shuffle(chain.children.begin(), chain.children.end(), engine());
    return chain;
  }

  Random& random_;
};

}  // namespace test
