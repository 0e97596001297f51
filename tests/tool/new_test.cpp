#include <kostyle/kostyle.h>

#include "tool/held_file.h"
#include "tool/tool.h"

namespace test {
namespace {

class New : public testing::Test {
 protected:
  Outcome create(const Arguments& arguments) const {
    return runTool(Arguments{"new", "--user", argument(user_)} + arguments);
  }

  /// The only style of the user directory, as JSON.
  rapidjson::Document written() const {
    const auto listed = runTool({"list", "--json", "--system", argument(user_)});
    expectSuccess(listed);
    auto document = parseJson(listed.out);
    if (document["styles"].Size() != 1) throw std::runtime_error("not one style: " + listed.out);
    rapidjson::Document style;
    style.CopyFrom(document["styles"][0], style.GetAllocator());
    return style;
  }

  const TemporaryDirectory directory_;
  const fs::path user_ = directory_ / "made" / fs::u8path("ユーザー");
};

const Arguments anEffect{"--audio-effect", "E", "--param", "E.p=1"};

TEST_F(New, WritesAStyleThatTheLibraryReads) {
  const Outcome outcome = create({"--name",         "Nachtfahrt 夜",
                                  "--language",     "3",
                                  "--language",     "0",
                                  "--singer-group", "Duo",
                                  "--singer-id",    "0123456789abcdef",
                                  "--genre",        "Pop",
                                  "--genre",        "演歌",
                                  "--sub-genre",    "Ballad",
                                  "--color",        "red",
                                  "--audio-effect", "EQ",
                                  "--audio-effect", "Reverb",
                                  "--midi-effect",  "Arp",
                                  "--param",        "Reverb.mix=0.25",
                                  "--param",        "EQ.band=-3",
                                  "--param",        "Arp.mode=up down"});
  expectSuccess(outcome);
  int error = -1;
  KoStyleManager* manager = CreateStyleManager(KOSTYLE_TEXT("new"), pathText(user_).c_str(),
                                               pathText(user_).c_str(), nullptr, 0, nullptr, 0, &error);
  ASSERT_NE(manager, nullptr);
  StyleManager_readUserStyles(manager);
  ASSERT_EQ(StyleManager_numUserStyle(manager), 1u);
  KoStyleStyle* style = StyleManager_userStyle(manager, 0);
  EXPECT_EQ(utf8(Style_name(style)), "Nachtfahrt 夜");
  EXPECT_EQ(Style_numLanguage(style), 2u);
  EXPECT_EQ(Style_language(style, 1), 3);
  EXPECT_EQ(utf8(Style_singerGroup(style, 0)), "Duo");
  EXPECT_EQ(utf8(Style_singerID(style, 0)), "0123456789abcdef");
  EXPECT_EQ(utf8(Style_genre(style, 1)), "演歌");
  EXPECT_EQ(utf8(Style_subGenre(style, 0)), "Ballad");
  EXPECT_EQ(utf8(Style_color(style, 0)), "red");
  EXPECT_EQ(utf8(Effect_id(Style_audioEffect(style, 1))), "Reverb");
  EXPECT_EQ(Parameter_valueFloat(Effect_parameter(Style_audioEffect(style, 1), 0)), 0.25f);
  EXPECT_EQ(Parameter_valueInt(Effect_parameter(Style_audioEffect(style, 0), 0)), -3);
  EXPECT_EQ(utf8(Parameter_valueString(Effect_parameter(Style_midiEffect(style, 0), 0))), "up down");
  EXPECT_EQ(outcome.out, utf8(Style_id(style)) + "\t" +
                             printed(user_ / (utf8(Style_id(style)) + ".kostyle")) + "\n");
  StyleManager_destroy(manager);
}

TEST_F(New, WritesCompactOrPretty) {
  const Outcome compact = create(Arguments{"--name", "N"} + anEffect);
  const std::string id = compact.out.substr(0, compact.out.find('\t'));
  EXPECT_EQ(readFile(user_ / (id + ".kostyle")),
            R"({"id":")" + id + R"(","name":"N","audioEffect":{"E":{"parameter":{"p":1}}}})");
  const Outcome laidOut = create(Arguments{"--name", "N", "--pretty"} + anEffect);
  const std::string other = laidOut.out.substr(0, laidOut.out.find('\t'));
  EXPECT_THAT(readFile(user_ / (other + ".kostyle")), HasSubstr("\",\n    \"name\": \"N\",\n"));
}

TEST_F(New, TypeFollowsFormOfValue) {
  struct Case {
    const char *value, *type;
  };
  const Case cases[] = {{"3", "int"},     {"-3", "int"},     {"007", "int"},  {"2147483647", "int"},
                        {"3.0", "float"}, {"-2e3", "float"}, {".5", "float"}, {"", "text"},
                        {"3 dB", "text"}, {"inf", "text"},   {"nan", "text"}, {"0x10", "text"},
                        {"+3", "text"},   {"1,5", "text"},   {"=", "text"},   {"-", "text"}};
  Arguments arguments{"--name", "N", "--audio-effect", "E"};
  int number = 100;
  for (const Case& each : cases)
    arguments = arguments + Arguments{"--param", "E.p" + std::to_string(number++) + "=" + each.value};
  expectSuccess(create(arguments));
  const auto style = written();
  number = 100;
  for (const Case& each : cases)
    EXPECT_STREQ(parameter(style, "p" + std::to_string(number++))["type"].GetString(), each.type)
        << each.value;
  EXPECT_EQ(parameter(style, "p102")["value"].GetInt(), 7);
  EXPECT_EQ(parameter(style, "p105")["value"].GetDouble(), -2000.0);
  EXPECT_STREQ(parameter(style, "p114")["value"].GetString(), "=");
}

TEST_F(New, TypeCanBeForced) {
  expectSuccess(create({"--name", "N", "--audio-effect", "E", "--param", "E.a:int=3", "--param",
                        "E.b:float=3", "--param", "E.c:text=3", "--param", "E.d:int:text=4"}));
  const auto style = written();
  EXPECT_EQ(parameter(style, "a")["value"].GetInt(), 3);
  EXPECT_STREQ(parameter(style, "b")["type"].GetString(), "float");
  EXPECT_STREQ(parameter(style, "c")["value"].GetString(), "3");
  EXPECT_STREQ(parameter(style, "d:int")["value"].GetString(), "4");
}

TEST_F(New, LongestEffectIdWins) {
  expectSuccess(create({"--name", "N", "--audio-effect", "a", "--audio-effect", "a.b", "--audio-effect",
                        "a.b=c", "--param", "a.b.x=1", "--param", "a.c.x=2", "--param", "a.b=c.x=3"}));
  const auto style = written();
  EXPECT_THAT(effects(style["audioEffects"]), ElementsAre("a(c.x int)", "a.b(x int)", "a.b=c(x int)"));
}

TEST_F(New, ChainTellsEffectsOfOneIdApart) {
  expectSuccess(create({"--name", "N", "--audio-effect", "E", "--midi-effect", "E", "--midi-effect",
                        "M", "--param", "audio:E.a=1", "--param", "midi:E.m=1", "--param", "midi:M.x=1",
                        "--param", "M.y=1"}));
  const auto style = written();
  EXPECT_THAT(effects(style["audioEffects"]), ElementsAre("E(a int)"));
  EXPECT_THAT(effects(style["midiEffects"]), ElementsAre("E(m int)", "M(x int,y int)"));
}

TEST_F(New, ChainWinsOverAnIdentifierThatStartsSo) {
  expectSuccess(create({"--name", "N", "--audio-effect", "E", "--midi-effect", "audio:E", "--param",
                        "audio:E.a=1", "--param", "midi:audio:E.m=1"}));
  const auto style = written();
  EXPECT_THAT(effects(style["audioEffects"]), ElementsAre("E(a int)"));
  EXPECT_THAT(effects(style["midiEffects"]), ElementsAre("audio:E(m int)"));
}

TEST_F(New, SaysThatParametersAreLost) {
  const Outcome outcome =
      create({"--name", "N", "--audio-effect", "E", "--param", "E.Tarn=1", "--param", "E.Tarn630=2"});
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_THAT(outcome.err, HasSubstr("notice: effects or parameters are lost"));
  EXPECT_EQ(written()["audioEffects"][0]["parameters"].Size(), 1u);
}

TEST_F(New, TakesTextsAsTheyAre) {
  expectSuccess(create(Arguments{"--name", "--", "--genre", "[a,b]", "--genre", "{}", "--genre", "%%",
                                 "--genre", "a\"b\\", "--genre", "-x"} +
                       anEffect));
  const auto style = written();
  EXPECT_STREQ(style["name"].GetString(), "--");
  EXPECT_THAT(texts(style["genres"]),
              testing::UnorderedElementsAre("[a,b]", "{}", "%%", "a\"b\\", "-x"));
}

TEST_F(New, AcceptsTheLongestName) {
  std::string name;
  for (int i = 0; i < 50; ++i) name += "𝄞";
  expectSuccess(create(Arguments{"--name", name} + anEffect));
  EXPECT_EQ(written()["name"].GetString(), name);
}

TEST_F(New, SaysThatEffectsWithoutParametersAreLost) {
  const Outcome outcome = create(Arguments{"--name", "N", "--midi-effect", "Bare"} + anEffect);
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_THAT(outcome.err, HasSubstr("notice: effects without parameters"));
  EXPECT_EQ(written()["midiEffects"].Size(), 0u);
}

TEST_F(New, RefusalWritesNothing) {
  struct Case {
    Arguments arguments;
    int exitCode;
    const char* why;
  };
  const Arguments named{"--name", "N"};
  const Arguments good = named + anEffect;
  const Case cases[] = {
      {anEffect, 2, "--name is required"},
      {Arguments{"--name", ""} + anEffect, 1, "name \"\" is refused"},
      {Arguments{"--name", std::string(101, 'n')} + anEffect, 1, "not 1 to 100 UTF-16 units long"},
      {good + Arguments{"--name", "M"}, 2, "--name"},
      {named, 1, "the style has no effect; --audio-effect EFFECT --param"},
      {named + Arguments{"--audio-effect", "E"}, 1, "no effect has a parameter"},
      {good + Arguments{"--language", "5"}, 1, "language 5 is refused"},
      {good + Arguments{"--language", "-1"}, 1, "language -1 is refused"},
      {good + Arguments{"--language", "1", "--language", "1"}, 1, "there already"},
      {good + Arguments{"--language", "en"}, 2, "--language en: not a value of type int"},
      {good + Arguments{"--language", ""}, 2, "not a value of type int"},
      {good + Arguments{"--language", "0x3"}, 2, "not a value of type int"},
      {good + Arguments{"--language", " 1"}, 2, "not a value of type int"},
      {good + Arguments{"--language", "+1"}, 2, "not a value of type int"},
      {good + Arguments{"--genre", "a", "--genre", "a"}, 1, "genre \"a\" is there already"},
      {good + Arguments{"--singer-group", ""}, 1, "singer-group \"\" is refused"},
      {good + Arguments{"--sub-genre", ""}, 1, "sub-genre \"\" is refused"},
      {good + Arguments{"--color", "c", "--color", "c"}, 1, "color \"c\" is there already"},
      {good + Arguments{"--singer-id", "0123456789abcde"}, 1, "not 16 UTF-16 units long"},
      {good + Arguments{"--audio-effect", "E"}, 1, "audio-effect \"E\" is there already"},
      {good + Arguments{"--midi-effect", ""}, 1, "midi-effect \"\" is refused"},
      {good + Arguments{"--param", "F.x=1"}, 1, "F.x=1: the style has no such effect"},
      {good + Arguments{"--param", "midi:E.x=1"}, 1, "the style has no such effect"},
      {good + Arguments{"--midi-effect", "E", "--param", "E.x=1"}, 1,
       "E.p=1 names more than one effect"},
      {good + Arguments{"--param", "E.=1"}, 1, "the parameter's name is empty"},
      {good + Arguments{"--param", "E.p=2"}, 2, "the parameter is given twice"},
      {good + Arguments{"--param", "x=1"}, 2, "EFFECT.NAME"},
      {good + Arguments{"--param", "E.x"}, 2, "=VALUE"},
      {good + Arguments{"--param", "E.x:double=1"}, 2, "double: not a type"},
      {good + Arguments{"--param", "E.x:int=1.5"}, 2, "E.x:int=1.5: 1.5: not a value of type int"},
      {good + Arguments{"--param", "E.x:float=inf"}, 2, "inf: not a value of type float"},
      {good + Arguments{"--param", "E.x:float="}, 2, "not a value of type float"},
      {good + Arguments{"--param", "E.x=2147483648"}, 2, "out of the range of type int"},
      {good + Arguments{"--param", "E.x=1e39"}, 2, "out of the range of type float"},
      {good + Arguments{"--add-genre", "a"}, 2, "--add-genre"},
      {good + Arguments{"--system", argument(directory_ / "no")}, 2, "no such directory"},
  };
  for (const Case& each : cases) {
    SCOPED_TRACE(each.why);
    expectFailure(create(each.arguments), each.exitCode, each.why);
    EXPECT_TRUE(fs::is_empty(directory_.path()));
  }
}

TEST_F(New, RefusalLeavesDirectoriesThatWereThere) {
  fs::create_directories(user_);
  expectFailure(create({"--name", "N"}), 1, "the style has no effect");
  EXPECT_TRUE(fs::is_empty(user_));
}

TEST_F(New, RefusesUserDirectoriesThatCannotBe) {
  const auto file = directory_ / "file";
  writeFile(file, "x");
  expectFailure(runTool(Arguments{"new", "--user", argument(file), "--name", "N"} + anEffect), 2,
                "not a directory");
  expectFailure(runTool(Arguments{"new", "--user", argument(file / "below"), "--name", "N"} + anEffect),
                1, "the user directory cannot be created: ");
  expectFailure(runTool(Arguments{"new", "--name", "N"} + anEffect), 2, "--user is required");
}

TEST_F(New, WaitsForAnotherThatChangesTheFolder) {
  fs::create_directories(user_);
  const HeldLock held(user_ / "kostyle.lock");
  ASSERT_TRUE(held.isOpen());
  expectFailure(create(Arguments{"--name", "N", "--wait", "0"} + anEffect), 1,
                "another kostyle is changing files of this folder");
  EXPECT_THAT(entryNames(user_), ElementsAre("kostyle.lock"));
}

#if !defined(_WIN32)
TEST_F(New, RefusesTextThatIsNoUtf8) {
  for (const char* option : {"--genre", "--audio-effect", "--name"})
    expectFailure(
        create(Arguments{option, "a\xFF"} +
               (std::string(option) == "--name" ? anEffect : Arguments{"--name", "N"} + anEffect)),
        2, "not valid UTF-8");
  expectFailure(create(Arguments{"--name", "N", "--param", "E.x=\xED\xA0\x80"} + anEffect), 2,
                "not valid UTF-8");
  EXPECT_TRUE(fs::is_empty(directory_.path()));
}

TEST_F(New, LeavesNothingOnAFullDisk) {
  const Outcome outcome =
      runToolOnFullDisk(0, Arguments{"new", "--user", argument(user_), "--name", "N"} + anEffect);
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_THAT(outcome.out, HasSubstr(": the file cannot be written: File too large\n"));
  EXPECT_TRUE(fs::is_empty(directory_.path()));
}

TEST_F(New, LeavesNothingWhenItCannotPrint) {
  const TemporaryDirectory other;
  EXPECT_EQ(runToolWithoutOutput(other / "err",
                                 Arguments{"new", "--user", argument(user_), "--name", "N"} + anEffect),
            1);
  EXPECT_THAT(readFile(other / "err"), HasSubstr("the output cannot be written"));
  EXPECT_TRUE(fs::is_empty(directory_.path()));
}

TEST_F(New, NeedsATemporaryDirectory) {
  expectFailure(runToolInScript(R"(TMPDIR=/nowhere exec "$0" "$@")",
                                Arguments{"new", "--user", argument(user_), "--name", "N"} + anEffect),
                1, "no temporary directory: ");
  EXPECT_TRUE(fs::is_empty(directory_.path()));
}

TEST_F(New, NeedsAWorkingDirectoryForARelativePath) {
  const auto gone = directory_.folder("gone");
  expectFailure(runToolInScript(R"(cd "${@: -1}" && rmdir "${@: -1}" && exec "$0" "${@:1:$#-1}")",
                                Arguments{"new", "--user", "here", "--name", "N"} + anEffect +
                                    Arguments{argument(gone)}),
                1, "here: no working directory: ");
  EXPECT_TRUE(fs::is_empty(directory_.path()));
}
#endif

}  // namespace
}  // namespace test
