// The root of a document: what it must hold, and in which order that is checked.
#include "format/style_reader.h"

#include <gmock/gmock.h>

#include "format/sample_documents.h"
#include "model/system_style.h"
#include "model/user_style.h"

namespace {

using namespace Tesk::KoStyle;
using test::documentWith;
using test::outcomeOf;
using test::readBytes;
using test::styleOf;

const std::string sample = documentWith("");

TEST(StyleReader, TakesACompleteDocument) {
  const test::Reading reading = readBytes(sample);
  ASSERT_NE(reading.style, nullptr);
  EXPECT_EQ(reading.outcome.error, KOSTYLE_OK);
  EXPECT_TRUE(reading.outcome.jsonPath.empty());
  EXPECT_EQ(reading.outcome.parseError, 0u);
  EXPECT_EQ(reading.outcome.parseErrorOffset, 0u);
  test::StyleSnapshot expected;
  expected.id = test::text("I");
  expected.name = test::text("N");
  expected.audio = {{test::text("E"), {}}};
  EXPECT_EQ(test::snapshot(*reading.style), expected);
  EXPECT_EQ(test::utf8(reading.style->path()), "");
}

TEST(StyleReader, TheKindDecidesTheStyle) {
  const auto system = readBytes(sample, StyleKind::system).style;
  const auto user = readBytes(sample, StyleKind::user).style;
  ASSERT_TRUE(system && user);
  EXPECT_NE(dynamic_cast<SystemStyle*>(system.get()), nullptr);
  EXPECT_NE(dynamic_cast<UserStyle*>(user.get()), nullptr);
  EXPECT_EQ(system->type(), 0u);
  EXPECT_EQ(user->type(), 1u);
}

TEST(StyleReader, OtherKindsGiveNoStyle) {
  for (const unsigned kind : {2u, 3u, 4294967295u})
    EXPECT_EQ(describe(readBytes(sample, StyleKind{kind})), "3  0@0") << kind;
}

TEST(StyleReader, SyntaxIsCheckedBeforeTheKind) {
  EXPECT_EQ(describe(readBytes("", StyleKind::editable)), "17  1@0");
  EXPECT_EQ(describe(readBytes("[]", StyleKind::editable)), "3  0@0");
}

TEST(StyleReader, LeavesTheFileOpen) {
  const test::TemporaryDirectory directory;
  test::writeFile(directory / "s", sample);
  const platform::File file =
      platform::openForReading(platform::nativePath(test::pathText(directory / "s")));
  StyleReadOutcome outcome;
  EXPECT_NE(readStyleFile(StyleKind::user, nullptr, file.get(), outcome), nullptr);
  ASSERT_EQ(std::fseek(file.get(), 0, SEEK_SET), 0);
  EXPECT_EQ(std::fgetc(file.get()), '{');
}

TEST(StyleReader, ReadsFromWhereTheFileStands) {
  const test::TemporaryDirectory directory;
  test::writeFile(directory / "s", "skipped" + sample);
  const platform::File file =
      platform::openForReading(platform::nativePath(test::pathText(directory / "s")));
  ASSERT_EQ(std::fseek(file.get(), 7, SEEK_SET), 0);
  StyleReadOutcome outcome;
  EXPECT_NE(readStyleFile(StyleKind::user, nullptr, file.get(), outcome), nullptr);
}

TEST(StyleReader, TheRootMustBeAnObject) {
  for (const char* root : {"[]", "\"text\"", "1", "1.5", "true", "false", "null", "[{}]"})
    EXPECT_EQ(outcomeOf(root), "20 / 0@0") << root;
}

TEST(StyleReader, IdAndNameMustBeThere) {
  EXPECT_EQ(outcomeOf("{}"), "19 /id 0@0");
  EXPECT_EQ(outcomeOf(R"({"id":"I"})"), "19 /name 0@0");
  EXPECT_EQ(outcomeOf(R"({"name":"N"})"), "19 /id 0@0");
  EXPECT_EQ(outcomeOf(R"({"Id":"I","ID":"I","name":"N"})"), "19 /id 0@0");
  EXPECT_EQ(outcomeOf(R"({"id ":"I","name":"N"})"), "19 /id 0@0");
  EXPECT_EQ(outcomeOf(R"({"id\u0000":"I","name":"N"})"), "19 /id 0@0");
}

TEST(StyleReader, IdAndNameMustBeStrings) {
  for (const std::string value : {"5", "1.5", "true", "null", "[]", "{}", "[\"I\"]"}) {
    EXPECT_EQ(outcomeOf(R"({"id":)" + value + R"(,"name":"N"})"), "20 /id 0@0") << value;
    EXPECT_EQ(outcomeOf(R"({"id":"I","name":)" + value + "}"), "20 /name 0@0") << value;
  }
}

TEST(StyleReader, IdAndNameMustNotBeEmpty) {
  EXPECT_EQ(outcomeOf(R"({"id":"","name":"N"})"), "21 /id 0@0");
  EXPECT_EQ(outcomeOf(R"({"id":"I","name":""})"), "21 /name 0@0");
}

TEST(StyleReader, TheFirstFailingCheckIsReported) {
  EXPECT_EQ(outcomeOf(R"({"id":5,"name":5})"), "20 /id 0@0");
  EXPECT_EQ(outcomeOf(R"({"id":"","name":""})"), "21 /id 0@0");
  EXPECT_EQ(outcomeOf(R"({"name":"","id":""})"), "21 /id 0@0") << "the order in the file is no matter";
  EXPECT_EQ(outcomeOf(R"({"id":"I","name":5,"audioEffect":[]})"), "20 /name 0@0");
  EXPECT_EQ(outcomeOf(R"({"id":"","name":"N","audioEffect":{}})"), "21 /id 0@0");
  EXPECT_EQ(outcomeOf(R"({"name":"N","audioEffect":{}})"), "19 /id 0@0");
  EXPECT_EQ(outcomeOf(R"([{"id":""}])"), "20 / 0@0");
  EXPECT_EQ(outcomeOf(R"({"id":5,})"), "17  4@9");
}

TEST(StyleReader, AnEffectMustSurvive) {
  EXPECT_EQ(outcomeOf(R"({"id":"I","name":"N"})"), "23 / 0@0");
  for (const std::string chain : {"[]", "{}", "null", "5", "\"E\"", R"({"E":{}})", R"({"E":[]})",
                                  R"({"":{"parameter":{}}})", R"([{"E":{"parameter":{}}}])"}) {
    EXPECT_EQ(outcomeOf(R"({"id":"I","name":"N","audioEffect":)" + chain + "}"), "23 / 0@0") << chain;
    EXPECT_EQ(outcomeOf(R"({"id":"I","name":"N","midiEffect":)" + chain + "}"), "23 / 0@0") << chain;
  }
  EXPECT_EQ(outcomeOf(R"({"id":"I","name":"N","vendor":5,"filter":5})"), "23 / 0@0");
}

TEST(StyleReader, OneEffectOfEitherChainIsEnough) {
  EXPECT_EQ(styleOf(R"({"id":"I","name":"N","audioEffect":{"E":{"parameter":[]}}})").audio.size(), 1u);
  EXPECT_EQ(styleOf(R"({"id":"I","name":"N","midiEffect":{"E":{"parameter":[]}}})").midi.size(), 1u);
}

TEST(StyleReader, IdsAreStoredWholeAtAnyLength) {
  const std::string id(100000, 'x');
  const auto style = styleOf(R"({"id":")" + id + R"(","name":"N","midiEffect":{"E":{"parameter":1}}})");
  EXPECT_EQ(style.id, test::text(id));
}

TEST(StyleReader, NamesOfUpTo100UnitsAreStored) {
  const auto nameFrom = [](const std::string& name) {
    return styleOf(R"({"id":"I","name":")" + name + R"(","audioEffect":{"E":{"parameter":{}}}})").name;
  };
  EXPECT_EQ(nameFrom("x").size(), 1u);
  EXPECT_EQ(nameFrom(std::string(99, 'x')).size(), 99u);
  EXPECT_EQ(nameFrom(std::string(100, 'x')).size(), 100u);
  EXPECT_EQ(nameFrom(std::string(101, 'x')).size(), 0u);
  EXPECT_EQ(nameFrom(std::string(70000, 'x')).size(), 0u);
}

TEST(StyleReader, NamesAreMeasuredInUtf16Units) {
  std::string fifty;
  for (int i = 0; i < 50; ++i) fifty += "\xF0\x9F\x98\x80";
  const std::string rest = R"(","audioEffect":{"E":{"parameter":{}}}})";
  const std::string start = R"({"id":"I","name":")";
  EXPECT_EQ(styleOf(start + fifty + rest).name, test::text(fifty));
  EXPECT_EQ(styleOf(start + fifty + "a" + rest).name, test::text(""));
  std::string hundred;
  for (int i = 0; i < 100; ++i) hundred += "\xC3\xA4";
  EXPECT_EQ(styleOf(start + hundred + rest).name, test::text(hundred));
  EXPECT_EQ(styleOf(start + hundred + "\\u0000" + rest).name, test::text(""));
}

TEST(StyleReader, VendorIsTakenWhenItIsAString) {
  EXPECT_EQ(styleOf(documentWith(R"("vendor":"V")")).vendor, test::text("V"));
  EXPECT_EQ(styleOf(documentWith(R"("vendor":"")")).vendor, test::text(""));
  EXPECT_EQ(styleOf(documentWith(R"("vendor":")" + std::string(5000, 'v') + "\"")).vendor.size(),
            5000u);
  for (const std::string value : {"5", "1.5", "true", "null", "[\"V\"]", "{\"vendor\":\"V\"}"})
    EXPECT_EQ(styleOf(documentWith(R"("vendor":)" + value)).vendor, test::text("")) << value;
}

TEST(StyleReader, UnknownKeysAreIgnoredAtEveryLevel) {
  const auto plain = styleOf(
      R"({"id":"I","name":"N","audioEffect":{"E":{"parameter":{"p":1}}},"filter":{"genres":["g"]}})");
  const auto rich = styleOf(
      R"({"x":1,"id":"I","Vendor":"V","name":"N","audioeffect":{"F":{"parameter":{}}},
          "audioEffect":{"E":{"script":"s","y":[1,{"z":null}],"parameter":{"p":1}}},"parameter":{"q":2},
          "genres":["h"],"filter":{"genres":["g"],"Genres":["h"],"moods":["m"],"languages ":[1]},
          "script":"s","path":"p","type":1,"":{"id":"J"}})");
  EXPECT_EQ(rich, plain);
}

TEST(StyleReader, OfDuplicateMembersTheFirstCounts) {
  const auto style = styleOf(
      R"({"id":"I","id":"J","name":"N","name":5,"vendor":"V","vendor":"W",
          "audioEffect":{"E":{"parameter":{"p":1},"parameter":{"q":1}}},"audioEffect":{"F":{"parameter":{}}},
          "filter":{"genres":["g"],"genres":["h"]},"filter":{"colors":["c"]}})");
  test::StyleSnapshot expected;
  expected.id = test::text("I");
  expected.name = test::text("N");
  expected.vendor = test::text("V");
  expected.genres = {test::text("g")};
  expected.audio = {{test::text("E"), {test::ParameterSnapshot::ofInt(test::text("p"), 1)}}};
  EXPECT_EQ(style, expected);
}

TEST(StyleReader, AFirstDuplicateOfTheWrongTypeHidesTheSecond) {
  EXPECT_EQ(outcomeOf(R"({"id":5,"id":"I","name":"N"})"), "20 /id 0@0");
  EXPECT_EQ(outcomeOf(R"({"id":"I","name":"","name":"N"})"), "21 /name 0@0");
  EXPECT_EQ(outcomeOf(R"({"id":"I","name":"N","audioEffect":[],"audioEffect":{"E":{"parameter":{}}}})"),
            "23 / 0@0");
  EXPECT_EQ(styleOf(documentWith(R"("vendor":5,"vendor":"V")")).vendor, test::text(""));
}

TEST(StyleReader, MembersMayStandInAnyOrder) {
  EXPECT_EQ(styleOf(R"({"filter":{"colors":["c"]},"midiEffect":{"M":{"parameter":{}}},"vendor":"V",
                       "audioEffect":{"E":{"parameter":{}}},"name":"N","id":"I"})"),
            styleOf(R"({"id":"I","name":"N","audioEffect":{"E":{"parameter":{}}},"vendor":"V",
                       "midiEffect":{"M":{"parameter":{}}},"filter":{"colors":["c"]}})"));
}

}  // namespace
