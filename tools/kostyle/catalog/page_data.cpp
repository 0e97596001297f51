#include "catalog/page_data.h"

#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <algorithm>
#include <set>
#include <string_view>

#include "basics/text.h"
#include "basics/text_width.h"
#include "reading/attributes.h"
#include "reading/parameter_value.h"

namespace tool {
namespace {

// A file with more shows what is wrong with it by the first of them.
constexpr std::size_t mostFindings = 100;

// Takes so many columns of a terminal off the text.
std::string_view takeColumns(std::string_view& text, std::size_t columns) {
  std::string_view rest = text;
  while (!rest.empty()) {
    std::string_view next = rest;
    takeCodePoint(next);
    if (widthOf(text.substr(0, text.size() - next.size())) > columns) break;
    rest = next;
  }
  const std::string_view taken = text.substr(0, text.size() - rest.size());
  text = rest;
  return taken;
}

// Writes the parts of the page's data.
class PageDataWriter {
 public:
  explicit PageDataWriter(rapidjson::StringBuffer& buffer) : writer_(buffer) {}

  void collection(const Collection& collection, const std::string& title) {
    writer_.StartObject();
    member("title", title);
    list("directories", collection.directories(), [this](const auto& name) { text(name); });
    list("files", collection.files(), [this](const CollectedFile& file) { this->file(file); });
    rules();
    writer_.EndObject();
  }

 private:
  void text(std::string_view anything) {
    const std::string shown = printable(toUtf8(fromUtf8(anything)));
    writer_.String(shown.data(), static_cast<rapidjson::SizeType>(shown.size()));
  }

  void member(const char* key, std::string_view utf8) {
    writer_.Key(key);
    text(utf8);
  }

  void member(const char* key, std::size_t number) {
    writer_.Key(key);
    writer_.Uint64(number);
  }

  template <typename Elements, typename Write>
  void list(const char* key, const Elements& elements, const Write& write) {
    writer_.Key(key);
    writer_.StartArray();
    for (const auto& element : elements) write(element);
    writer_.EndArray();
  }

  void file(const CollectedFile& file) {
    writer_.StartObject();
    member("file", file.report.file);
    member("directory", file.directory);
    if (file.style) style(file.style);
    const auto& findings = file.report.findings;
    const auto shown = std::min(findings.size(), mostFindings);
    const std::vector<Finding> first(findings.begin(),
                                     findings.begin() + static_cast<std::ptrdiff_t>(shown));
    list("findings", first, [this](const Finding& finding) { this->finding(finding); });
    if (const std::size_t more = findings.size() - shown + numUnkept(file.report)) member("more", more);
    writer_.EndObject();
  }

  void style(KoStyleStyle* style) {
    writer_.Key("style");
    writer_.StartObject();
    member("name", toUtf8(Style_name(style)));
    member("id", toUtf8(Style_id(style)));
    member("vendor", toUtf8(Style_vendor(style)));
    list("languages", languages(style), [this](int language) { writer_.Int(language); });
    for (const TextList& texts : textLists())
      list(texts.key, values(texts, style), [this](const auto& value) { text(value); });
    for (const Chain& chain : chains()) this->chain(style, chain);
    writer_.EndObject();
  }

  void chain(KoStyleStyle* style, const Chain& chain) {
    writer_.Key(chain.key);
    writer_.StartArray();
    for (std::size_t i = 0; i < chain.count(style); ++i) effect(chain.stored(style, i));
    writer_.EndArray();
  }

  // The identifier, then name, type and value of each parameter.
  void effect(KoStyleEffect* effect) {
    writer_.StartArray();
    text(toUtf8(Effect_id(effect)));
    for (std::size_t i = 0; i < Effect_numParameter(effect); ++i) {
      KoStyleParameter* parameter = Effect_parameter(effect, i);
      const Value value = valueOf(parameter);
      const auto* const string = std::get_if<Text>(&value);
      text(toUtf8(Parameter_name(parameter)));
      text(typeText(value));
      text(string ? toUtf8(*string) : valueText(value));
    }
    writer_.EndArray();
  }

  void finding(const Finding& finding) {
    rules_.insert(finding.rule);
    writer_.StartObject();
    member("rule", finding.rule->id);
    if (finding.place) place(*finding.place);
    if (!finding.path.empty()) member("path", finding.path);
    member("found", headline(finding));
    if (finding.requirement != finding.rule->sentence) member("requirement", finding.requirement);
    member("outcome", finding.outcome);
    if (finding.excerpt.width > 0) excerpt(finding.excerpt);
    if (finding.related) related(*finding.related);
    writer_.EndObject();
  }

  void place(const Place& place) {
    member("line", place.begin.line);
    member("column", place.begin.column);
  }

  // What stands before the mark, in it and behind.
  void excerpt(const Excerpt& excerpt) {
    std::string_view rest = excerpt.line;
    writer_.Key("excerpt");
    writer_.StartArray();
    text(takeColumns(rest, excerpt.caret));
    text(takeColumns(rest, excerpt.width));
    text(rest);
    writer_.EndArray();
  }

  void related(const Related& related) {
    writer_.Key("related");
    writer_.StartObject();
    member("file", related.file);
    if (related.place) place(*related.place);
    member("text", related.text);
    writer_.EndObject();
  }

  // Those that something was found by.
  void rules() {
    writer_.Key("rules");
    writer_.StartObject();
    for (const Rule* rule : allRules()) {
      if (rules_.count(rule) == 0) continue;
      writer_.Key(rule->id);
      writer_.StartObject();
      member("severity", severityName(rule->severity));
      member("sentence", rule->sentence);
      writer_.EndObject();
    }
    writer_.EndObject();
  }

  rapidjson::Writer<rapidjson::StringBuffer, rapidjson::UTF8<>, rapidjson::ASCII<>> writer_;
  std::set<const Rule*> rules_;
};

// What could end the element that the data stand in; outside of strings JSON has none of it.
std::string withoutMarkup(std::string_view json) {
  std::string result;
  result.reserve(json.size());
  for (const char c : json) {
    if (c == '<') {
      result += "\\u003c";
    } else if (c == '>') {
      result += "\\u003e";
    } else if (c == '&') {
      result += "\\u0026";
    } else {
      result += c;
    }
  }
  return result;
}

}  // namespace

std::string pageData(const Collection& collection, const std::string& title) {
  rapidjson::StringBuffer buffer;
  PageDataWriter(buffer).collection(collection, title);
  return withoutMarkup({buffer.GetString(), buffer.GetSize()});
}

}  // namespace tool
