// Small style documents for tests.
#pragma once

#include <string>

#include "format/style_file.h"
#include "format/style_snapshot.h"

namespace test {

/// A document that is taken: identifier "I", name "N", one audio effect "E", and further root members.
inline std::string documentWith(const std::string& members) {
  return R"({"id":"I","name":"N","audioEffect":{"E":{"parameter":{}}})" +
         (members.empty() ? "" : "," + members) + "}";
}

/// A document whose only effect "E" has these parameters.
inline std::string documentWithParameters(const std::string& members) {
  return R"({"id":"I","name":"N","audioEffect":{"E":{"parameter":{)" + members + "}}}}";
}

/// How a refused file's outcome reads in tests: error, path, parser's code and offset.
inline std::string describe(const Reading& reading) {
  if (reading.style) return "taken";
  const Tesk::KoStyle::StyleReadOutcome& outcome = reading.outcome;
  return std::to_string(outcome.error) + " " + utf8(outcome.jsonPath) + " " +
         std::to_string(outcome.parseError) + "@" + std::to_string(outcome.parseErrorOffset);
}

/// The same, of a file with these bytes.
inline std::string outcomeOf(std::string_view bytes) { return describe(readBytes(bytes)); }

/// The style that comes of a document; throws when it is refused.
inline StyleSnapshot styleOf(std::string_view bytes) {
  const Reading reading = readBytes(bytes);
  if (!reading.style) throw std::runtime_error("refused with " + std::to_string(reading.outcome.error));
  return snapshot(*reading.style);
}

/// The parameters of the only effect of documentWithParameters().
inline std::vector<ParameterSnapshot> parametersOf(const std::string& members) {
  return styleOf(documentWithParameters(members)).audio.at(0).parameters;
}

}  // namespace test
