// What is found in single files, beyond what the outputs of the tool show.
#include "checking/file_check.h"

#include <gmock/gmock.h>

#include "support/document.h"
#include "support/encodings.h"

namespace {

using test::Encoding;
using testing::ElementsAre;
using testing::StartsWith;
using tool::checkContent;
using tool::FileReport;
using tool::Finding;

// "line:column rule path" of each finding.
std::vector<std::string> foundIn(const std::string& bytes) {
  std::vector<std::string> found;
  for (const Finding& finding : checkContent("style", bytes).findings) {
    const tool::Position at = finding.place->begin;
    found.push_back(std::to_string(at.line) + ':' + std::to_string(at.column) + ' ' + finding.rule->id +
                    ' ' + finding.path);
  }
  return found;
}

std::string requirementOf(const std::string& bytes) {
  return checkContent("style", bytes).findings.at(0).requirement;
}

TEST(FileCheck, FindsTheSamePlacesInEveryEncoding) {
  const std::u32string document =
      U"{\"id\":\"\U0001F3B5\",\"x\":1,\n\"name\":\"n\",\r\n\"audioEffect\":{\"\u00E9\":{\"parameter\":"
      U"{\"p\":null,"
      U"\"q\":1}}}}";
  for (const Encoding encoding : test::allEncodings()) {
    EXPECT_THAT(foundIn(encoded(document, encoding, false)),
                testing::IsSupersetOf(
                    {"1:11 unknown-member /x", "3:38 wrong-type /audioEffect/\u00E9/parameter/p"}))
        << test::nameOf(encoding);
  }
}

TEST(FileCheck, TellsOfTheEncodingWhatWritingChanges) {
  const std::u32string document =
      U"{\"id\":\"i\",\"name\":\"n\",\"audioEffect\":{\"E\":{\"parameter\":{\"p\":1}}}}";
  for (const Encoding encoding : test::allEncodings()) {
    for (const bool mark : {false, true}) {
      const auto found = foundIn(encoded(document, encoding, mark));
      if (encoding == Encoding::utf8 && !mark) {
        EXPECT_THAT(found, ElementsAre());
      } else {
        EXPECT_THAT(found, ElementsAre("1:1 encoding-changed "));
      }
    }
  }
}

TEST(FileCheck, TellsWhatStandsBehindTheEnd) {
  using namespace std::string_literals;
  EXPECT_THAT(foundIn(test::document("I", "N") + "\0{}"s), ElementsAre("1:64 behind-end "));
}

TEST(FileCheck, KnowsTheBoundsOfNames) {
  EXPECT_THAT(foundIn(test::document("I", std::string(100, 'n'))), ElementsAre());
  EXPECT_THAT(foundIn(test::document("I", std::string(101, 'n'))),
              ElementsAre("1:18 name-length /name"));
}

TEST(FileCheck, TakesShortDecimalsAsTheyAre) {
  const auto rules = [](const std::string& number) {
    return foundIn(test::documentWithParameters("\"p\":" + number));
  };
  for (const char* const kept :
       {"0.1", "0.4", "1e-7", "0.4000000059604645", "16777216.0", "0.0", "-0.0", "3e38"})
    EXPECT_THAT(rules(kept), ElementsAre()) << kept;
  for (const char* const rounded : {"0.123456789", "16777217.0", "3.14159265358979"})
    EXPECT_THAT(rules(rounded), ElementsAre("1:59 float-precision /audioEffect/E/parameter/p"))
        << rounded;
  for (const char* const lost : {"1e39", "-1e300", "1e-60"})
    EXPECT_THAT(rules(lost), ElementsAre("1:59 float-range /audioEffect/E/parameter/p")) << lost;
}

TEST(FileCheck, SaysWhatWasProbablyMeant) {
  EXPECT_EQ(requirementOf("{\"a\": NaN}"), "JSON has neither NaN nor infinity");
  EXPECT_EQ(requirementOf("{\"a\": nan}"), "JSON has neither NaN nor infinity");
  EXPECT_EQ(requirementOf("{\"a\": -Infinity}"), "JSON has neither NaN nor infinity");
  EXPECT_EQ(requirementOf("{\"a\": True}"), "true, false and null are written in lower case");
  EXPECT_EQ(requirementOf("{\"a\": 1, // one\n}"), "JSON has no comments");
  EXPECT_EQ(requirementOf("{'a': 1}"), "strings stand in double quotation marks");
  EXPECT_EQ(requirementOf("{\"a\": [1,]}"), "no comma stands behind the last member or element");
  EXPECT_EQ(requirementOf("{\"a\": +1}"), "numbers start with a digit or a minus sign");
  EXPECT_EQ(requirementOf("{\"a\": 1 \"b\": 2}"), "a comma separates members and elements");
  EXPECT_EQ(requirementOf("{\"a\": 1"), "the file ends too early");
  EXPECT_EQ(requirementOf("{\"a\": 1]"), tool::rule::jsonSyntax.sentence);
}

TEST(FileCheck, CutsLongLinesAroundThePlace) {
  const std::string spaces(5000, ' ');
  const FileReport report = checkContent("style", "{" + spaces + "\t?" + spaces);
  const tool::Excerpt& excerpt = report.findings.at(0).excerpt;
  EXPECT_THAT(excerpt.line, StartsWith("... "));
  EXPECT_EQ(excerpt.line.at(excerpt.caret), '?');
  EXPECT_LT(excerpt.line.size(), 120u);
  EXPECT_EQ(excerpt.line.find('\t'), std::string::npos);
}

TEST(FileCheck, MarksWideCharactersWhereTheyStand) {
  const std::string song = "\xE6\xAD\x8C";
  const FileReport report = checkContent("style", "[\"" + song + song + "\" ?");
  const tool::Excerpt& excerpt = report.findings.at(0).excerpt;
  EXPECT_EQ(excerpt.caret, 8u);
  EXPECT_EQ(excerpt.width, 1u);
}

TEST(FileCheck, FindsAllThatIsWrongInARefusedFile) {
  EXPECT_THAT(foundIn("{\"ID\":1,\"name\":5,\"vendor\":7}"),
              ElementsAre("1:1 member-missing /", "1:1 no-effect /", "1:2 unknown-member /ID",
                          "1:16 member-type /name", "1:27 wrong-type /vendor"));
  EXPECT_EQ(checkContent("style", "{\"ID\":1}").findings.back().suggestion, "id");
}

}  // namespace
