// The main job as a host does it: read a system and a user directory and walk all that came of it.
#include <gmock/gmock.h>
#include <kostyle/kostyle.h>

#include "support/temporary_directory.h"
#include "support/text.h"

namespace {

using test::utf8;

TEST(MainJob, ReadsAndWalksStyles) {
  const test::TemporaryDirectory directory;
  const auto system = directory.folder("system");
  const auto user = directory.path() / "made" / "user";
  test::writeFile(system / "one.kostyle",
                  R"({"id":"S1","name":"One","vendor":"V","filter":{"genres":["b","a"]},
    "audioEffect":{"EQ":{"parameter":{"gain":1.5,"band":3,"mode":"warm"}},"Reverb":{"parameter":{}}},
    "midiEffect":{"Humanize":{"script":"x","parameter":{"Tarn":1}}}})");
  test::writeFile(system / "bad.kostyle", "{");
  int error = -1;
  KoStyleManager* manager =
      CreateStyleManager(KOSTYLE_TEXT("main-job"), test::pathText(system).c_str(),
                         test::pathText(user).c_str(), nullptr, 0, nullptr, 0, &error);
  ASSERT_NE(manager, nullptr);
  EXPECT_EQ(error, KOSTYLE_OK);
  EXPECT_EQ(StyleManager_readSystemStyles(manager), KOSTYLE_OK);
  EXPECT_EQ(StyleManager_readUserStyles(manager), KOSTYLE_OK);
  EXPECT_EQ(StyleManager_numSystemStyleCreationResult(manager), 2u);
  ASSERT_EQ(StyleManager_numSystemStyle(manager), 1u);
  KoStyleStyle* style = StyleManager_systemStyle(manager, 0);
  EXPECT_EQ(utf8(Style_id(style)), "S1");
  EXPECT_EQ(utf8(Style_genre(style, 0)), "a");
  KoStyleEffect* eq = Style_audioEffect(style, 0);
  KoStyleParameter* band = Effect_parameter(eq, 0);
  EXPECT_EQ(utf8(Parameter_name(band)), "band");
  EXPECT_EQ(utf8(Parameter_name(Parameter_next(band))), "gain");
  EXPECT_EQ(utf8(Effect_id(AudioEffect_next(eq))), "Reverb");
  EXPECT_EQ(utf8(Parameter_name(Effect_parameter(Style_midiEffect(style, 0), 0))), "Tarn630");
  EXPECT_TRUE(StyleManager_destroy(manager));
  EXPECT_FALSE(HasStyleManager(manager));
}

}  // namespace
