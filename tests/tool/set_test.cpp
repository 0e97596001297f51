#include "tool/tool.h"

namespace test {
namespace {

class Set : public testing::Test {
 protected:
  Outcome change(const Arguments& arguments) const {
    return runTool(Arguments{"set", "S", "--user", argument(user_)} + arguments);
  }
  rapidjson::Document show() const { return styleIn(file_); }

  const TemporaryDirectory directory_;
  const fs::path user_ = directory_.folder("user");
  const fs::path file_ = user_ / "mine.kostyle";
};

constexpr const char* wholeStyle = R"({"id":"S","name":"Whole",
  "filter":{"languages":[0,2],"singerGroups":["Choir","Duo"],"singerIDs":["0123456789abcdef"],
            "genres":["Pop","Folk"],"subGenres":["Waltz"],"colors":["red"]},
  "audioEffect":{"EQ":{"parameter":{"gain":0.1,"band":-3,"mode":"warm","note":""}},
                 "Reverb":{"parameter":{"mix":0.5}}},
  "midiEffect":{"Arp":{"parameter":{"rate":2.0}}}})";

TEST_F(Set, KeepsWhatIsNotChanged) {
  writeFile(file_, wholeStyle);
  auto before = show();
  const Outcome outcome = change({"--name", "Renamed"});
  expectSuccess(outcome);
  EXPECT_EQ(outcome.out, "S\t" + printed(file_) + "\n");
  EXPECT_THAT(entryNames(user_), ElementsAre("mine.kostyle"));
  before["name"] = "Renamed";
  EXPECT_EQ(show(), before);
}

TEST_F(Set, ChangesEverything) {
  writeFile(file_, wholeStyle);
  expectSuccess(change({"--add-language",
                        "4",
                        "--delete-language",
                        "0",
                        "--add-singer-group",
                        "Solo",
                        "--delete-singer-group",
                        "Duo",
                        "--add-singer-id",
                        "fedcba9876543210",
                        "--delete-singer-id",
                        "0123456789abcdef",
                        "--add-genre",
                        "Rock",
                        "--delete-genre",
                        "Pop",
                        "--add-sub-genre",
                        "Polka",
                        "--delete-sub-genre",
                        "Waltz",
                        "--add-color",
                        "blue",
                        "--delete-color",
                        "red",
                        "--audio-effect",
                        "Delay",
                        "--delete-audio-effect",
                        "Reverb",
                        "--midi-effect",
                        "Swing",
                        "--delete-midi-effect",
                        "Arp",
                        "--param",
                        "EQ.band:float=0.5",
                        "--param",
                        "Delay.time=3",
                        "--param",
                        "Swing.amount=0.1",
                        "--delete-param",
                        "EQ.mode",
                        "--delete-param",
                        "audio:EQ.note"}));
  const auto style = show();
  EXPECT_STREQ(style["name"].GetString(), "Whole");
  EXPECT_EQ(style["languages"][0].GetInt(), 2);
  EXPECT_EQ(style["languages"][1].GetInt(), 4);
  EXPECT_THAT(texts(style["singerGroups"]), ElementsAre("Choir", "Solo"));
  EXPECT_THAT(texts(style["singerIDs"]), ElementsAre("fedcba9876543210"));
  EXPECT_THAT(texts(style["genres"]), ElementsAre("Folk", "Rock"));
  EXPECT_THAT(texts(style["subGenres"]), ElementsAre("Polka"));
  EXPECT_THAT(texts(style["colors"]), ElementsAre("blue"));
  EXPECT_THAT(effects(style["audioEffects"]),
              ElementsAre("EQ(band float,gain float)", "Delay(time int)"));
  EXPECT_THAT(effects(style["midiEffects"]), ElementsAre("Swing(amount float)"));
}

TEST_F(Set, DeletesBeforeItAdds) {
  writeFile(file_, wholeStyle);
  expectSuccess(change({"--add-genre", "Pop", "--delete-genre", "Pop", "--audio-effect", "EQ",
                        "--delete-audio-effect", "EQ", "--param", "EQ.new=1"}));
  const auto style = show();
  EXPECT_THAT(texts(style["genres"]), ElementsAre("Folk", "Pop"));
  EXPECT_THAT(effects(style["audioEffects"]), ElementsAre("Reverb(mix float)", "EQ(new int)"));
}

TEST_F(Set, RefusalLeavesTheFile) {
  struct Case {
    Arguments arguments;
    int exitCode;
    const char* why;
  };
  const Case cases[] = {
      {{}, 2, "nothing is to be changed"},
      {{"--name", ""}, 1, "name \"\" is refused"},
      {{"--name", std::string(101, 'n')}, 1, "not 1 to 100 UTF-16 units long"},
      {{"--add-language", "1", "--add-language", "3", "--add-language", "4", "--add-language", "5"},
       1,
       "language 5 is refused"},
      {{"--delete-language", "1"}, 1, "language 1 is not there"},
      {{"--add-genre", "Pop"}, 1, "genre \"Pop\" is there already"},
      {{"--delete-genre", "Rock"}, 1, "genre \"Rock\" is not there"},
      {{"--delete-color", ""}, 1, "color \"\" is not there"},
      {{"--add-singer-id", "short"}, 1, "not 16 UTF-16 units long"},
      {{"--audio-effect", "EQ"}, 1, "audio-effect \"EQ\" is there already"},
      {{"--delete-audio-effect", "Arp"}, 1, "audio-effect \"Arp\" is not there"},
      {{"--delete-midi-effect", "EQ"}, 1, "midi-effect \"EQ\" is not there"},
      {{"--delete-param", "EQ.missing"}, 1, "the effect has no such parameter"},
      {{"--delete-param", "Gone.x"}, 1, "the style has no such effect"},
      {{"--delete-param", "EQ"}, 2, "EFFECT.NAME"},
      {{"--param", "Gone.x=1"}, 1, "Gone.x=1: the style has no such effect\n"},
      {{"--param", "Reverv.mix=1"}, 1, "no such effect; did you mean \"Reverb\"?"},
      {{"--param", "midi:Revreb.mix=1"}, 1, "no such effect; did you mean \"Reverb\"?"},
      {{"--param", "audio:New.x=1"}, 1, "the style has no such effect"},
      {{"--add", "--param", "New.x=1"}, 1, "the style has no such effect"},
      {{"--param", "EQ.gian=1"}, 1, "no such parameter; did you mean \"gain\"?; --add adds it"},
      {{"--param", "EQ.x=1"}, 1, "EQ.x=1: the effect has no such parameter; --add adds it\n"},
      {{"--param", "EQ.gain=0,7"},
       1,
       "EQ.gain=0,7: 0,7: not a number: the decimal sign is a point, not a comma"},
      {{"--param", "EQ.gain:=1"}, 2, "gain:=1: no type follows the colon"},
      {{"--param", "EQ.gain=loud"}, 1, "the parameter is of type float, NAME:TYPE=VALUE changes that"},
      {{"--param", "EQ.gain=1e39"}, 1, "1e39: out of the range of type float"},
      {{"--param", "EQ.band=0.5"}, 1, "0.5: not a value of type int; the parameter is of type int"},
      {{"--param", "EQ.band=2147483648"}, 1, "2147483648: out of the range of type int"},
      {{"--delete-genre", "folk"}, 1, "genre \"folk\" is not there; did you mean \"Folk\"?"},
      {{"--delete-param", "EQ.Mode"}, 1, "no such parameter; did you mean \"mode\"?"},
      {{"--name", "X", "--pretty"}, 2, "--pretty needs --reformat"},
      {{"--name", "X", "--wait", "-1"}, 2, "--wait"},
      {{"--param", "EQ.gain=1", "--param", "EQ.gain=2"}, 2, "given twice"},
      {{"--delete-audio-effect", "EQ", "--delete-audio-effect", "Reverb", "--delete-midi-effect",
        "Arp"},
       1,
       "the style has no effect"},
      {{"--reformat", "--delete-audio-effect", "EQ", "--delete-midi-effect", "Arp", "--delete-param",
        "Reverb.mix"},
       1,
       "no effect has a parameter"},
      {{"--genre", "Rock"}, 2, "--genre"},
  };
  writeFile(file_, wholeStyle);
  const auto before = contents(directory_.path());
  for (const Case& each : cases) {
    SCOPED_TRACE(each.why);
    expectFailure(change(each.arguments), each.exitCode, each.why);
    EXPECT_EQ(contents(directory_.path()), before);
  }
}

TEST_F(Set, ChangesUserStylesOnly) {
  const auto system = directory_.folder("system");
  writeFile(system / "s.kostyle", document("S", "System"));
  writeFile(file_, document("S", "User"));
  const auto before = contents(directory_.path());
  expectFailure(change({"--name", "X", "--system", argument(system)}), 1,
                "S: a system style is never changed");
  expectFailure(runTool({"set", "T", "--user", argument(user_), "--name", "X"}), 1,
                "T: no style has this identifier");
  EXPECT_EQ(contents(directory_.path()), before);
}

TEST_F(Set, ChangesStylesOfFurtherDirectoriesInPlace) {
  const auto more = directory_.folder("more");
  writeFile(more / "far.kostyle", document("far", "Far"));
  const Outcome outcome = runTool(
      {"set", "far", "--user", argument(user_), "--user-extra", argument(more), "--name", "Near"});
  expectSuccess(outcome);
  EXPECT_EQ(outcome.out, "far\t" + printed(more / "far.kostyle") + "\n");
  EXPECT_THAT(readFile(more / "far.kostyle"), HasSubstr("\"name\":\"Near\""));
  EXPECT_TRUE(fs::is_empty(user_));
}

TEST_F(Set, RefusesWrongUse) {
  expectFailure(runTool({"set", "--user", argument(user_), "--name", "X"}), 2, "ID is required");
  expectFailure(runTool({"set", "S", "--name", "X"}), 2, "--user is required");
  expectFailure(runTool({"set", "S", "--user", argument(directory_ / "no"), "--name", "X"}), 2,
                "no such directory");
  EXPECT_FALSE(fs::exists(directory_ / "no"));
}

#if !defined(_WIN32)
TEST_F(Set, KeepsTheFileWhenItCannotPrint) {
  writeFile(file_, wholeStyle);
  const TemporaryDirectory other;
  const auto before = contents(directory_.path());
  EXPECT_EQ(runToolWithoutOutput(other / "err", {"set", "S", "--user", argument(user_), "--name", "X"}),
            1);
  EXPECT_THAT(readFile(other / "err"), HasSubstr("the output cannot be written"));
  EXPECT_EQ(contents(directory_.path()), before);
}

TEST_F(Set, ChangesStylesOnOtherVolumes) {
  const fs::path memory = "/dev/shm";
  if (!fs::is_directory(memory)) GTEST_SKIP() << "there is no other volume";
  const OtherTemporaryPath otherPath(memory);
  const TemporaryDirectory other;
  writeFile(other / "far.kostyle", document("far", "Far"));
  expectSuccess(runTool({"set", "far", "--user", argument(user_), "--user-extra",
                         argument(other.path()), "--name", "Near"}));
  EXPECT_THAT(readFile(other / "far.kostyle"), HasSubstr("\"name\":\"Near\""));
  EXPECT_THAT(entryNames(other.path()), ElementsAre("far.kostyle"));
  EXPECT_TRUE(fs::is_empty(user_));
}
#endif

}  // namespace
}  // namespace test
