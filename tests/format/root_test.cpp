// The root of a document: what it must hold, and in which order that is checked.
#include <gmock/gmock.h>

#include "support/file_reader.h"

namespace {

using test::documentWith;
using test::outcomeOf;
using test::refused;
using test::styleOf;
using test::syntaxError;

TEST(Root, OfACompleteDocumentGivesAStyle) {
  const test::Reading reading = test::FileReader().read(documentWith(""));
  EXPECT_EQ(reading.outcome, test::taken());
  test::StoredValue expected;
  expected.id = test::text("I");
  expected.name = test::text("N");
  expected.chains[KOSTYLE_EFFECT_AUDIO] = {
      {test::text("E"), {test::ParameterValue::ofInt(test::text("p"), 1)}}};
  EXPECT_EQ(reading.style, expected);
}

TEST(Root, GivesAStyleOfTheKindThatIsRead) {
  const test::Host host;
  KoStyleStyle* const user = host.addUserStyle("U");
  KoStyleStyle* const system = host.addSystemStyle("S");
  EXPECT_EQ(Style_type(user), KOSTYLE_KIND_USER);
  EXPECT_EQ(Style_type(system), KOSTYLE_KIND_SYSTEM);
  EXPECT_EQ(test::valueOf(user).chains, test::valueOf(system).chains);
}

TEST(Root, MustBeAnObject) {
  for (const char* root : {"[]", "\"text\"", "1", "1.5", "true", "false", "null", "[{}]"})
    EXPECT_EQ(outcomeOf(root), refused(KOSTYLE_ERROR_WRONG_TYPE, "/")) << root;
}

TEST(Root, IdAndNameMustBeThere) {
  EXPECT_EQ(outcomeOf("{}"), refused(KOSTYLE_ERROR_MEMBER_MISSING, "/id"));
  EXPECT_EQ(outcomeOf(R"({"id":"I"})"), refused(KOSTYLE_ERROR_MEMBER_MISSING, "/name"));
  EXPECT_EQ(outcomeOf(R"({"name":"N"})"), refused(KOSTYLE_ERROR_MEMBER_MISSING, "/id"));
  EXPECT_EQ(outcomeOf(R"({"Id":"I","ID":"I","name":"N"})"),
            refused(KOSTYLE_ERROR_MEMBER_MISSING, "/id"));
  EXPECT_EQ(outcomeOf(R"({"id ":"I","name":"N"})"), refused(KOSTYLE_ERROR_MEMBER_MISSING, "/id"));
  EXPECT_EQ(outcomeOf(R"({"id\u0000":"I","name":"N"})"), refused(KOSTYLE_ERROR_MEMBER_MISSING, "/id"));
}

TEST(Root, IdAndNameMustBeStrings) {
  for (const std::string value : {"5", "1.5", "true", "null", "[]", "{}", "[\"I\"]"}) {
    EXPECT_EQ(outcomeOf(R"({"id":)" + value + R"(,"name":"N"})"),
              refused(KOSTYLE_ERROR_WRONG_TYPE, "/id"))
        << value;
    EXPECT_EQ(outcomeOf(R"({"id":"I","name":)" + value + "}"),
              refused(KOSTYLE_ERROR_WRONG_TYPE, "/name"))
        << value;
  }
}

TEST(Root, IdAndNameMustNotBeEmpty) {
  EXPECT_EQ(outcomeOf(R"({"id":"","name":"N"})"), refused(KOSTYLE_ERROR_EMPTY_STRING, "/id"));
  EXPECT_EQ(outcomeOf(R"({"id":"I","name":""})"), refused(KOSTYLE_ERROR_EMPTY_STRING, "/name"));
}

TEST(Root, TheFirstFailingCheckIsReported) {
  EXPECT_EQ(outcomeOf(R"({"id":5,"name":5})"), refused(KOSTYLE_ERROR_WRONG_TYPE, "/id"));
  EXPECT_EQ(outcomeOf(R"({"id":"","name":""})"), refused(KOSTYLE_ERROR_EMPTY_STRING, "/id"));
  EXPECT_EQ(outcomeOf(R"({"name":"","id":""})"), refused(KOSTYLE_ERROR_EMPTY_STRING, "/id"))
      << "the order in the file is no matter";
  EXPECT_EQ(outcomeOf(R"({"id":"I","name":5,"audioEffect":[]})"),
            refused(KOSTYLE_ERROR_WRONG_TYPE, "/name"));
  EXPECT_EQ(outcomeOf(R"({"id":"","name":"N","audioEffect":{}})"),
            refused(KOSTYLE_ERROR_EMPTY_STRING, "/id"));
  EXPECT_EQ(outcomeOf(R"({"name":"N","audioEffect":{}})"),
            refused(KOSTYLE_ERROR_MEMBER_MISSING, "/id"));
  EXPECT_EQ(outcomeOf(R"([{"id":""}])"), refused(KOSTYLE_ERROR_WRONG_TYPE, "/"));
  EXPECT_EQ(outcomeOf(R"({"id":5,})"), syntaxError(KOSTYLE_PARSE_OBJECT_NAME_MISSING, 9));
}

TEST(Root, AnEffectMustSurvive) {
  EXPECT_EQ(outcomeOf(R"({"id":"I","name":"N"})"), refused(KOSTYLE_ERROR_NO_EFFECT, "/"));
  for (const std::string chain : {"[]", "{}", "null", "5", "\"E\"", R"({"E":{}})", R"({"E":[]})",
                                  R"({"":{"parameter":{}}})", R"([{"E":{"parameter":{}}}])"}) {
    EXPECT_EQ(outcomeOf(R"({"id":"I","name":"N","audioEffect":)" + chain + "}"),
              refused(KOSTYLE_ERROR_NO_EFFECT, "/"))
        << chain;
    EXPECT_EQ(outcomeOf(R"({"id":"I","name":"N","midiEffect":)" + chain + "}"),
              refused(KOSTYLE_ERROR_NO_EFFECT, "/"))
        << chain;
  }
  EXPECT_EQ(outcomeOf(R"({"id":"I","name":"N","vendor":5,"filter":5})"),
            refused(KOSTYLE_ERROR_NO_EFFECT, "/"));
}

TEST(Root, OneEffectOfEitherChainIsEnough) {
  EXPECT_EQ(styleOf(R"({"id":"I","name":"N","audioEffect":{"E":{"parameter":[]}}})")
                .chains[KOSTYLE_EFFECT_AUDIO]
                .size(),
            1u);
  EXPECT_EQ(styleOf(R"({"id":"I","name":"N","midiEffect":{"E":{"parameter":[]}}})")
                .chains[KOSTYLE_EFFECT_MIDI]
                .size(),
            1u);
}

TEST(Root, IdsAreStoredWholeAtAnyLength) {
  const std::string id(100000, 'x');
  const auto style = styleOf(R"({"id":")" + id + R"(","name":"N","midiEffect":{"E":{"parameter":1}}})");
  EXPECT_EQ(style.id, test::text(id));
}

TEST(Root, NamesOfUpTo100UnitsAreStored) {
  const auto nameFrom = [](const std::string& name) { return styleOf(test::document("I", name)).name; };
  EXPECT_EQ(nameFrom("x").size(), 1u);
  EXPECT_EQ(nameFrom(std::string(99, 'x')).size(), 99u);
  EXPECT_EQ(nameFrom(std::string(100, 'x')).size(), 100u);
  EXPECT_EQ(nameFrom(std::string(101, 'x')).size(), 0u);
  EXPECT_EQ(nameFrom(std::string(70000, 'x')).size(), 0u);
}

TEST(Root, NamesAreMeasuredInUtf16Units) {
  std::string fifty;
  for (int i = 0; i < 50; ++i) fifty += "\xF0\x9F\x98\x80";
  const auto nameFrom = [](const std::string& name) { return styleOf(test::document("I", name)).name; };
  EXPECT_EQ(nameFrom(fifty), test::text(fifty));
  EXPECT_EQ(nameFrom(fifty + "a"), test::text(""));
  std::string hundred;
  for (int i = 0; i < 100; ++i) hundred += "\xC3\xA4";
  EXPECT_EQ(nameFrom(hundred), test::text(hundred));
  EXPECT_EQ(nameFrom(hundred + "\\u0000"), test::text(""));
}

TEST(Root, VendorIsTakenWhenItIsAString) {
  EXPECT_EQ(styleOf(documentWith(R"("vendor":"V")")).vendor, test::text("V"));
  EXPECT_EQ(styleOf(documentWith(R"("vendor":"")")).vendor, test::text(""));
  EXPECT_EQ(styleOf(documentWith(R"("vendor":")" + std::string(5000, 'v') + "\"")).vendor.size(),
            5000u);
  for (const std::string value : {"5", "1.5", "true", "null", "[\"V\"]", "{\"vendor\":\"V\"}"})
    EXPECT_EQ(styleOf(documentWith(R"("vendor":)" + value)).vendor, test::text("")) << value;
}

TEST(Root, UnknownKeysAreIgnoredAtEveryLevel) {
  const auto plain = styleOf(
      R"({"id":"I","name":"N","audioEffect":{"E":{"parameter":{"p":1}}},"filter":{"genres":["g"]}})");
  const auto withMore = styleOf(
      R"({"x":1,"id":"I","Vendor":"V","name":"N","audioeffect":{"F":{"parameter":{}}},
          "audioEffect":{"E":{"script":"s","y":[1,{"z":null}],"parameter":{"p":1}}},"parameter":{"q":2},
          "genres":["h"],"filter":{"genres":["g"],"Genres":["h"],"moods":["m"],"languages ":[1]},
          "script":"s","path":"p","type":1,"":{"id":"J"}})");
  EXPECT_EQ(withMore, plain);
}

TEST(Root, OfDuplicateMembersTheFirstCounts) {
  const auto style = styleOf(
      R"({"id":"I","id":"J","name":"N","name":5,"vendor":"V","vendor":"W",
          "audioEffect":{"E":{"parameter":{"p":1},"parameter":{"q":1}}},"audioEffect":{"F":{"parameter":{}}},
          "filter":{"genres":["g"],"genres":["h"]},"filter":{"colors":["c"]}})");
  test::StoredValue expected;
  expected.id = test::text("I");
  expected.name = test::text("N");
  expected.vendor = test::text("V");
  expected.lists[test::genres] = {test::text("g")};
  expected.chains[KOSTYLE_EFFECT_AUDIO] = {
      {test::text("E"), {test::ParameterValue::ofInt(test::text("p"), 1)}}};
  EXPECT_EQ(style, expected);
}

TEST(Root, AFirstDuplicateOfTheWrongTypeHidesTheSecond) {
  EXPECT_EQ(outcomeOf(R"({"id":5,"id":"I","name":"N"})"), refused(KOSTYLE_ERROR_WRONG_TYPE, "/id"));
  EXPECT_EQ(outcomeOf(R"({"id":"I","name":"","name":"N"})"),
            refused(KOSTYLE_ERROR_EMPTY_STRING, "/name"));
  EXPECT_EQ(outcomeOf(R"({"id":"I","name":"N","audioEffect":[],"audioEffect":{"E":{"parameter":{}}}})"),
            refused(KOSTYLE_ERROR_NO_EFFECT, "/"));
  EXPECT_EQ(styleOf(documentWith(R"("vendor":5,"vendor":"V")")).vendor, test::text(""));
}

TEST(Root, MembersMayStandInAnyOrder) {
  EXPECT_EQ(styleOf(R"({"filter":{"colors":["c"]},"midiEffect":{"M":{"parameter":{}}},"vendor":"V",
                       "audioEffect":{"E":{"parameter":{}}},"name":"N","id":"I"})"),
            styleOf(R"({"id":"I","name":"N","audioEffect":{"E":{"parameter":{}}},"vendor":"V",
                       "midiEffect":{"M":{"parameter":{}}},"filter":{"colors":["c"]}})"));
}

}  // namespace
