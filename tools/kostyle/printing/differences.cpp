#include "printing/differences.h"

#include <fmt/core.h>

#include "printing/json_writing.h"
#include "printing/value_json.h"
#include "reading/attributes.h"

namespace tool {
namespace {

using What = Difference::What;

// As --param names effects and parameters.
std::string subject(const Difference& difference) {
  switch (difference.what) {
    case What::id:
      return "id";
    case What::name:
      return "name";
    case What::vendor:
      return "vendor";
    case What::language:
      return "language";
    case What::text:
      return textLists()[difference.index].option;
    case What::effect:
      return fmt::format("{}:{}", chains()[difference.index].name, toUtf8(difference.effect));
    case What::parameter:
      break;
  }
  return fmt::format("{}:{}.{}", chains()[difference.index].name, toUtf8(difference.effect),
                     toUtf8(difference.parameter));
}

std::string shown(const Difference& difference, const Value& value) {
  if (difference.what == What::effect) return "place " + valueText(value);
  if (difference.what == What::parameter) return typeText(value) + (' ' + valueText(value));
  return valueText(value);
}

class DifferenceLines {
 public:
  explicit DifferenceLines(bool colors) : colors_(colors) {}

  void add(const StylePair& pair) {
    if (pair.before.empty() || pair.after.empty()) {
      const bool isNew = pair.before.empty();
      addLine(isNew ? green : red, isNew ? '+' : '-',
              fmt::format("style {} {} ({})", inQuotes(toUtf8(pair.id)), inQuotes(toUtf8(pair.name)),
                          printable(isNew ? pair.after : pair.before)));
      return;
    }
    text_ += styled(bold, "--- " + printable(pair.before)) + '\n';
    text_ += styled(bold, "+++ " + printable(pair.after)) + '\n';
    for (const Difference& difference : pair.differences) {
      const std::string what = printable(subject(difference));
      if (difference.before)
        addLine(red, '-', fmt::format("{}: {}", what, shown(difference, *difference.before)));
      if (difference.after)
        addLine(green, '+', fmt::format("{}: {}", what, shown(difference, *difference.after)));
    }
  }

  const std::string& text() const { return text_; }

 private:
  static constexpr const char* bold = "1";
  static constexpr const char* red = "31";
  static constexpr const char* green = "32";

  void addLine(const char* color, char sign, const std::string& text) {
    text_ += styled(color, fmt::format("{} {}", sign, text)) + '\n';
  }
  std::string styled(const char* code, const std::string& text) const {
    return colors_ ? fmt::format("\x1b[{}m{}\x1b[0m", code, text) : text;
  }

  const bool colors_;
  std::string text_;
};

const char* kindOf(const Difference& difference) {
  switch (difference.what) {
    case What::id:
      return "id";
    case What::name:
      return "name";
    case What::vendor:
      return "vendor";
    case What::language:
      return "languages";
    case What::text:
      return textLists()[difference.index].key;
    case What::effect:
      return "effect";
    case What::parameter:
      break;
  }
  return "parameter";
}

void writeSide(JsonWriter& writer, const char* key, const std::optional<Value>& value, bool typed) {
  writer.Key(key);
  if (!value) {
    writer.Null();
  } else if (typed) {
    writer.StartObject();
    writeMember(writer, "type", typeText(*value));
    writer.Key("value");
    writeValue(writer, *value);
    writer.EndObject();
  } else {
    writeValue(writer, *value);
  }
}

void writeDifference(JsonWriter& writer, const Difference& difference) {
  const bool isParameter = difference.what == What::parameter;
  writer.StartObject();
  writeMember(writer, "what", kindOf(difference));
  if (isParameter || difference.what == What::effect) {
    writeMember(writer, "chain", chains()[difference.index].name);
    writeMember(writer, "effect", toUtf8(difference.effect));
  }
  if (isParameter) writeMember(writer, "parameter", toUtf8(difference.parameter));
  writeSide(writer, "before", difference.before, isParameter);
  writeSide(writer, "after", difference.after, isParameter);
  writer.EndObject();
}

void writePath(JsonWriter& writer, const char* key, const std::string& path) {
  if (!path.empty()) return writeMember(writer, key, path);
  writer.Key(key);
  writer.Null();
}

}  // namespace

std::string differencesText(const std::vector<StylePair>& pairs, bool colors) {
  DifferenceLines form(colors);
  for (const StylePair& pair : pairs) form.add(pair);
  return form.text();
}

std::string differencesJson(const std::vector<StylePair>& pairs) {
  rapidjson::StringBuffer buffer;
  JsonWriter writer(buffer);
  writer.StartObject();
  writer.Key("styles");
  writer.StartArray();
  for (const StylePair& pair : pairs) {
    writer.StartObject();
    writeMember(writer, "id", toUtf8(pair.id));
    writeMember(writer, "name", toUtf8(pair.name));
    writePath(writer, "before", pair.before);
    writePath(writer, "after", pair.after);
    writer.Key("differences");
    writer.StartArray();
    for (const Difference& difference : pair.differences) writeDifference(writer, difference);
    writer.EndArray();
    writer.EndObject();
  }
  writer.EndArray();
  writer.EndObject();
  return linesOf(buffer);
}

std::string differenceWords(const Difference& difference) {
  const std::string what = subject(difference);
  const auto& [before, after] = std::tie(difference.before, difference.after);
  if (before && after)
    return fmt::format("{} is {} instead of {}", what, shown(difference, *after),
                       shown(difference, *before));
  const std::string value = difference.what == What::effect || difference.what == What::parameter
                                ? ""
                                : ' ' + shown(difference, before ? *before : *after);
  return fmt::format("{}{} is {}there", what, value, before ? "not " : "");
}

}  // namespace tool
