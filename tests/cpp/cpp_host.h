// A host that uses the C++ layer: a manager with a system and a user folder of its own.
#pragma once

#include <gmock/gmock.h>
#include <kostyle/kostyle.hpp>

#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "support/document.h"
#include "support/host.h"
#include "support/temporary_directory.h"

namespace test {

/// What a Result holds; ends the test with a failure when it holds none.
template <class Value>
Value valueOf(kostyle::Result<Value> result) {
  if (!result) throw std::runtime_error(result.sentence());
  return *std::move(result);
}

inline std::vector<std::string> utf8Of(const kostyle::Problems& problems) {
  std::vector<std::string> messages;
  for (const kostyle::Problem& problem : problems) messages.push_back(problem.message());
  return messages;
}

/// Problems as kinds and places.
using Places = std::vector<std::pair<kostyle::ProblemKind, std::string>>;

inline Places placesOf(const kostyle::Problems& problems) {
  Places places;
  for (const kostyle::Problem& problem : problems) places.emplace_back(problem.kind, problem.where);
  return places;
}

template <class Range>
std::vector<std::string> utf8Of(const Range& texts) {
  std::vector<std::string> result;
  for (const kostyle::Text text : texts) result.push_back(text.utf8());
  return result;
}

struct CppHost {
  TemporaryDirectory directory;
  fs::path system = directory.folder("system");
  fs::path user = directory.folder("user");
  kostyle::Manager manager = valueOf(kostyle::Manager::create(freshAppID(), system, user));

  /// Puts a document into a folder and reads its set again.
  kostyle::SystemStyle addSystemStyle(const std::string& id, const std::string& content) const {
    writeFile(system / (id + ".kostyle"), content);
    EXPECT_TRUE(manager.readSystemStyles());
    return find(manager.systemStyles(), id);
  }
  kostyle::UserStyle addUserStyle(const std::string& id, const std::string& content) const {
    writeFile(user / (id + ".kostyle"), content);
    EXPECT_TRUE(manager.readUserStyles());
    return find(manager.userStyles(), id);
  }
  kostyle::UserStyle addUserStyle(const std::string& id) const {
    return addUserStyle(id, document(id, "Old"));
  }

  /// A mutable style that can be saved.
  kostyle::MutableStyle createMutableStyle() const {
    const kostyle::MutableStyle style = manager.createMutableStyle();
    style.setName("New");
    style.appendAudioEffect("E").addParameter("p", 1);
    return style;
  }

  std::string bytes(const std::string& id) const { return readFile(user / (id + ".kostyle")); }

 private:
  template <class Range>
  static typename Range::value_type find(const Range& styles, const std::string& id) {
    for (const auto style : styles)
      if (style.id() == id) return style;
    return {};
  }
};

/// A document with something in every place.
inline std::string wholeDocument(const std::string& id) {
  return R"({"id":")" + id +
         R"(","name":"Whole","filter":{"languages":[0,3],"singerGroups":["a","b"],)" +
         R"("singerIDs":["0123456789abcdef"],"genres":["Folk","Pop"],"subGenres":["s"],"colors":["red"]},)" +
         R"("audioEffect":{"Z":{"parameter":{"f":-0.0,"i":-7,"t":"text","e":""}},"A":{"parameter":{"x":0.1}}},)" +
         R"("midiEffect":{"M":{"parameter":{"big":2147483647}}}})";
}

}  // namespace test
