// Documents of small styles.
#pragma once

#include <string>

namespace test {

/// A style whose only effect is the audio effect "E"; `members` are further ones of the root.
inline std::string document(const std::string& id, const std::string& name,
                            const std::string& parameters, const std::string& members) {
  return R"({"id":")" + id + R"(","name":")" + name + R"(","audioEffect":{"E":{"parameter":{)" +
         parameters + "}}}" + (members.empty() ? "" : "," + members) + "}";
}

/// The same with one parameter, "p", which is 1.
inline std::string document(const std::string& id, const std::string& name) {
  return document(id, name, R"("p":1)", "");
}

/// The style "I" of the name "N" with further members of the root.
inline std::string documentWith(const std::string& members) {
  return document("I", "N", R"("p":1)", members);
}

/// The style "I" of the name "N" with these parameters.
inline std::string documentWithParameters(const std::string& parameters) {
  return document("I", "N", parameters, "");
}

}  // namespace test
