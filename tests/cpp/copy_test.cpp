// Mutable copies of stored styles, and what a file would not give back of a style.
#include <limits>

#include "cpp/cpp_host.h"
#include "support/style_value.h"

namespace {

using namespace kostyle;
using test::Places;
using test::placesOf;
using test::valueOf;
using Kind = ProblemKind;

TEST(CppCopy, HasEverythingThatTheStoredStyleHas) {
  const test::CppHost host;
  const UserStyle user = host.addUserStyle("w", test::wholeDocument("w"));
  const SystemStyle system = host.addSystemStyle("s", test::wholeDocument("s"));
  const MutableCopy ofUser = createMutableCopy(user);
  const MutableCopy ofSystem = createMutableCopy(system);
  EXPECT_EQ(valueOf(ofUser.style.handle()), valueOf(user.handle()));
  EXPECT_EQ(valueOf(ofSystem.style.handle()), valueOf(system.handle()));
  EXPECT_TRUE(ofUser.notCopied.empty() && ofSystem.notCopied.empty());
  EXPECT_TRUE(host.manager.has(ofUser.style));
}

TEST(CppCopy, IsMadeInAnyManager) {
  const test::CppHost host;
  const test::CppHost other;
  const UserStyle style = host.addUserStyle("w", test::wholeDocument("w"));
  const MutableStyle copy = createMutableCopy(style, other.manager).style;
  EXPECT_TRUE(other.manager.has(copy));
  EXPECT_EQ(valueOf(copy.handle()), valueOf(style.handle()));
}

TEST(CppCopy, ListsWhatCannotBeCopied) {
  const test::CppHost host;
  const UserStyle style = host.addUserStyle(
      "u",
      R"({"id":"u","name":")" + std::string(101, 'n') + R"(","vendor":"Maker",)" +
          R"("filter":{"genres":["a","a\u0000b"],"singerIDs":["\u0000123456789abcdef"]},)" +
          R"("audioEffect":{"E":{"parameter":{"p":1,"p\u0000":2,"q":3}},"E\u0000":{"parameter":{"r":1}}},)" +
          R"("midiEffect":{"\u0000":{"parameter":{"r":1}}}})");
  ASSERT_TRUE(style);
  const MutableCopy copy = createMutableCopy(style);
  EXPECT_EQ(placesOf(copy.notCopied), (Places{{Kind::vendorLost, "vendor"},
                                              {Kind::nameMissing, "name"},
                                              {Kind::textLost, "singerIDs/"},
                                              {Kind::textLost, "genres/a"},
                                              {Kind::textLost, "audio/E/p"},
                                              {Kind::textLost, "audio/E"},
                                              {Kind::textLost, "midi/"}}));
  EXPECT_EQ(copy.style.audioEffects()[0].parameters().size(), 2U);
}

TEST(CppFindProblems, FindsNoneInAStyleThatComesBack) {
  const test::CppHost host;
  EXPECT_TRUE(findProblems(host.createMutableStyle()).empty());
  EXPECT_TRUE(findProblems(host.addUserStyle("w", test::wholeDocument("w"))).empty());
}

TEST(CppFindProblems, FindsEachInAMutableStyle) {
  const test::CppHost host;
  const MutableStyle style = host.manager.createMutableStyle();
  EXPECT_EQ(placesOf(findProblems(style)), (Places{{Kind::nameMissing, "name"}, {Kind::noEffect, ""}}));
  const NativeString lone = {0xDC00};
  const NativeString high = {0xD800, 'x'};
  style.setName(lone), style.addGenre(high), style.appendMidiEffect("Empty");
  const MutableEffect effect = style.appendAudioEffect("E");
  effect.addParameter("b", std::numeric_limits<float>::infinity());
  effect.addParameter("c", std::numeric_limits<float>::quiet_NaN());
  effect.addParameter("d", lone);
  effect.addParameter("Tarn", 1);
  effect.addParameter("e").setName("d");
  EXPECT_EQ(placesOf(findProblems(style)), (Places{{Kind::loneSurrogate, "name"},
                                                   {Kind::loneSurrogate, "genres/\xEF\xBF\xBDx"},
                                                   {Kind::parameterRenamed, "audio/E/Tarn"},
                                                   {Kind::infinite, "audio/E/b"},
                                                   {Kind::notANumber, "audio/E/c"},
                                                   {Kind::loneSurrogate, "audio/E/d"},
                                                   {Kind::parameterRepeated, "audio/E/d"},
                                                   {Kind::effectWithoutParameters, "midi/Empty"}}));
}

TEST(CppFindProblems, LooksIntoEveryText) {
  const test::CppHost host;
  const MutableStyle style = host.createMutableStyle();
  const NativeString lone = {0xD800};
  const NativeString pair = {0xD834, 0xDD1E};
  style.addSingerGroup(lone), style.addSingerID(NativeString(15, 'a') + lone), style.addSubGenre(lone);
  style.addColor(lone), style.addColor(pair), style.appendMidiEffect(lone).addParameter(lone, 1);
  EXPECT_EQ(placesOf(findProblems(style)),
            (Places{{Kind::loneSurrogate, "singerGroups/\xEF\xBF\xBD"},
                    {Kind::loneSurrogate, "singerIDs/aaaaaaaaaaaaaaa\xEF\xBF\xBD"},
                    {Kind::loneSurrogate, "subGenres/\xEF\xBF\xBD"},
                    {Kind::loneSurrogate, "colors/\xEF\xBF\xBD"},
                    {Kind::loneSurrogate, "midi/\xEF\xBF\xBD"},
                    {Kind::loneSurrogate, "midi/\xEF\xBF\xBD/\xEF\xBF\xBD"}}));
}

TEST(CppFindProblems, FindsWhyAStoredStyleCannotBeWrittenAgain) {
  const test::CppHost host;
  const auto find = [&](const std::string& parameters, const std::string& members) {
    return placesOf(
        findProblems(host.addUserStyle("u", test::document("u", "N", parameters, members))));
  };
  EXPECT_EQ(find(R"("p":1e39)", R"("vendor":"Maker")"),
            (Places{{Kind::vendorLost, "vendor"}, {Kind::infinite, "audio/E/p"}}));
  EXPECT_EQ(find(R"("p":[])", ""),
            (Places{{Kind::effectWithoutParameters, "audio/E"}, {Kind::noEffect, ""}}));
  EXPECT_EQ(find(R"("p":"\uDC00")", ""), (Places{{Kind::loneSurrogate, "audio/E/p"}}));
  EXPECT_EQ(find(R"("p":1,"p\u0000":2)", ""), Places());
}

TEST(CppProblem, HasASentenceForEachKind) {
  std::set<std::string> sentences;
  for (int kind = 0; kind <= static_cast<int>(Kind::notRestored); ++kind) {
    const Problem problem{static_cast<Kind>(kind), "", KOSTYLE_ERROR_NO_EFFECT};
    EXPECT_TRUE(sentences.insert(problem.sentence()).second) << problem.sentence();
    EXPECT_EQ(problem.message(), problem.sentence());
    EXPECT_EQ(problem.isLoss(), kind <= static_cast<int>(Kind::parameterRepeated));
  }
  EXPECT_STREQ((Problem{Kind::refused, "", KOSTYLE_ERROR_OPEN_FAILED}).sentence(),
               KoStyle_codeText(KOSTYLE_ERROR_OPEN_FAILED));
  const auto cause = std::make_error_code(std::errc::no_space_on_device);
  EXPECT_EQ((Problem{Kind::infinite, "audio/E/p", KOSTYLE_OK, cause}).message(),
            "audio/E/p: an infinite value cannot be written (" + cause.message() + ")");
}

}  // namespace
