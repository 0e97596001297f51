// Saving and overwriting with care, where the file system does what it is asked.
#include <fstream>
#include <limits>

#include "cpp/cpp_host.h"
#include "support/style_value.h"

namespace {

using namespace kostyle;
using test::entryNames;
using test::Places;
using test::placesOf;
using test::storedValueOf;
using test::valueOf;
using testing::ElementsAre;
using testing::IsEmpty;
using Kind = ProblemKind;
namespace fs = test::fs;

constexpr float infinity = std::numeric_limits<float>::infinity();

struct CppSafeSave : testing::Test {
  // Expects a refused save to change nothing.
  void expectRefused(MutableStyle style, const Places& places, const SafeSaveOptions& options = {}) {
    const test::StyleValue before = valueOf(style.handle());
    const SafeSaveResult saved = safeSave(style, options);
    ASSERT_FALSE(saved);
    EXPECT_FALSE(saved.style);
    EXPECT_EQ(placesOf(saved.problems), places);
    EXPECT_EQ(valueOf(style.handle()), before);
    EXPECT_THAT(entryNames(host.user), IsEmpty());
    EXPECT_TRUE(host.manager.userStyles().empty());
  }

  test::CppHost host;
};

TEST_F(CppSafeSave, GivesTheStyleThatIsRead) {
  const test::CppHost source;
  const UserStyle original = source.addUserStyle("w", test::wholeDocument("w"));
  const MutableStyle style = createMutableCopy(original, host.manager).style;
  const SafeSaveResult saved = safeSave(style);
  ASSERT_TRUE(saved);
  EXPECT_TRUE(saved.problems.empty());
  EXPECT_FALSE(host.manager.has(style));
  EXPECT_EQ(valueOf(saved.style.handle()), valueOf(original.handle()));
  EXPECT_THAT(entryNames(host.user), ElementsAre(saved.style.path().filename().u8string()));
  EXPECT_TRUE(host.manager.readUserStyles());
  ASSERT_EQ(host.manager.userStyles().size(), 1U);
  EXPECT_EQ(valueOf(host.manager.userStyles()[0].handle()), valueOf(original.handle()));
}

TEST_F(CppSafeSave, WritesTheBytesOfAPlainSave) {
  for (const Layout layout : {Layout::compact, Layout::pretty}) {
    const UserStyle safe = safeSave(host.createMutableStyle(), {layout}).style;
    const UserStyle plain = test::valueOf(host.createMutableStyle().save(layout));
    std::string expected = test::readFile(plain.path());
    expected.replace(expected.find(plain.id().utf8()), plain.id().native().size(), safe.id().utf8());
    EXPECT_EQ(test::readFile(safe.path()), expected);
  }
}

TEST_F(CppSafeSave, RefusesWhatWouldNotComeBack) {
  const MutableStyle style = host.manager.createMutableStyle();
  expectRefused(style, {{Kind::nameMissing, "name"}, {Kind::noEffect, ""}});
  style.setName("N");
  const MutableEffect effect = style.appendAudioEffect("E");
  expectRefused(style, {{Kind::effectWithoutParameters, "audio/E"}, {Kind::noEffect, ""}});
  const MutableParameter parameter = effect.addParameter("p", infinity);
  expectRefused(style, {{Kind::infinite, "audio/E/p"}});
  parameter.setValue(-infinity);
  expectRefused(style, {{Kind::infinite, "audio/E/p"}});
  parameter.setValue(std::numeric_limits<float>::quiet_NaN());
  expectRefused(style, {{Kind::notANumber, "audio/E/p"}});
  parameter.setValue(NativeString{0xD800});
  expectRefused(style, {{Kind::loneSurrogate, "audio/E/p"}});
  parameter.setValue(1);
  effect.addParameter("Tarn");
  expectRefused(style, {{Kind::parameterRenamed, "audio/E/Tarn"}});
}

TEST_F(CppSafeSave, OfAnEmptyViewIsRefused) {
  const SafeSaveResult saved = safeSave(MutableStyle());
  ASSERT_EQ(saved.problems.size(), 1U);
  EXPECT_EQ(saved.problems[0].code, KOSTYLE_ERROR_INVALID_HANDLE);
}

TEST_F(CppSafeSave, RefusesWhatSpoilsTheFileAlsoWhenLossesAreAccepted) {
  const MutableStyle style = host.manager.createMutableStyle();
  style.setName("N");
  style.appendAudioEffect("E");
  expectRefused(style, {{Kind::effectWithoutParameters, "audio/E"}, {Kind::noEffect, ""}},
                {Layout::compact, true});
}

TEST_F(CppSafeSave, SavesWhatWillBeReadWhenLossesAreAccepted) {
  const MutableStyle style = host.createMutableStyle();
  const MutableEffect effect = style.audioEffects()[0];
  effect.addParameter("Tarn", 5);
  effect.addParameter("Tarn630", 6);
  effect.addParameter("q", 7).setName("p");
  style.appendMidiEffect("Empty");
  const SafeSaveResult saved = safeSave(style, {Layout::compact, true});
  ASSERT_TRUE(saved);
  EXPECT_EQ(placesOf(saved.problems), (Places{{Kind::parameterRenamed, "audio/E/Tarn"},
                                              {Kind::parameterRepeated, "audio/E/Tarn630"},
                                              {Kind::parameterRepeated, "audio/E/p"},
                                              {Kind::effectWithoutParameters, "midi/Empty"}}));
  const test::StyleValue inMemory = valueOf(saved.style.handle());
  EXPECT_TRUE(saved.style.midiEffects().empty());
  ASSERT_EQ(saved.style.audioEffects()[0].parameters().size(), 2U);
  EXPECT_EQ(saved.style.audioEffects()[0].parameters()[0].name(), "Tarn630");
  EXPECT_EQ(saved.style.audioEffects()[0].parameters()[0].value(), ParameterValue(5));
  EXPECT_EQ(saved.style.audioEffects()[0].parameters()[1].value(), ParameterValue(1));
  EXPECT_TRUE(host.manager.readUserStyles());
  EXPECT_EQ(valueOf(host.manager.userStyles()[0].handle()), inMemory);
}

TEST_F(CppSafeSave, MakesAMissingUserDirectory) {
  fs::remove(host.user);
  EXPECT_TRUE(safeSave(host.createMutableStyle()));
  EXPECT_EQ(entryNames(host.user).size(), 1U);
}

TEST_F(CppSafeSave, SaysWhenThereIsNoUserDirectory) {
  fs::remove(host.user);
  test::writeFile(host.user, "");
  const MutableStyle style = host.createMutableStyle();
  const SafeSaveResult saved = safeSave(style);
  ASSERT_EQ(saved.problems.size(), 1U);
  EXPECT_EQ(saved.problems[0].kind, Kind::folderFailed);
  EXPECT_EQ(saved.problems[0].where, host.user.u8string());
  EXPECT_TRUE(saved.problems[0].cause);
  EXPECT_TRUE(host.manager.has(style));
}

struct CppSafeOverwrite : CppSafeSave {
  // Expects a refused overwrite to change nothing.
  void expectRefused(MutableStyle style, const Places& places) {
    const std::string bytes = host.bytes("u");
    const test::StoredValue before = storedValueOf(target.handle());
    const SafeSaveResult saved = safeOverwrite(style, target);
    ASSERT_FALSE(saved);
    EXPECT_EQ(placesOf(saved.problems), places);
    EXPECT_TRUE(host.manager.has(style));
    EXPECT_EQ(storedValueOf(target.handle()), before);
    EXPECT_EQ(host.bytes("u"), bytes);
    EXPECT_THAT(entryNames(host.user), ElementsAre("u.kostyle"));
  }

  UserStyle target = host.addUserStyle("u");
};

TEST_F(CppSafeOverwrite, GivesTheStyleItsNewContentAndFile) {
  const MutableStyle style = createMutableCopy(target).style;
  style.setName("New");
  style.appendMidiEffect("M").addParameter("x", "y");
  const test::StyleValue expected = valueOf(style.handle());
  const SafeSaveResult saved = safeOverwrite(style, target, {Layout::pretty});
  ASSERT_TRUE(saved);
  EXPECT_TRUE(saved.problems.empty());
  EXPECT_EQ(saved.style, target);
  EXPECT_FALSE(host.manager.has(style));
  EXPECT_EQ(valueOf(target.handle()), expected);
  EXPECT_THAT(entryNames(host.user), ElementsAre("u.kostyle"));
  EXPECT_NE(host.bytes("u").find("\n    \"name\": \"New\""), std::string::npos);
  EXPECT_TRUE(host.manager.readUserStyles());
  EXPECT_EQ(valueOf(host.manager.userStyles()[0].handle()), expected);
  EXPECT_EQ(host.manager.userStyles()[0].id(), "u");
}

TEST_F(CppSafeOverwrite, RefusesWhatWouldNotComeBack) {
  const MutableStyle style = host.createMutableStyle();
  style.audioEffects()[0].parameters()[0].setValue(infinity);
  expectRefused(style, {{Kind::infinite, "audio/E/p"}});
}

TEST_F(CppSafeOverwrite, TellsOfAVendorTextThatWouldBeLost) {
  target = host.addUserStyle("u", test::document("u", "U", R"("p":1)", R"("vendor":"Maker")"));
  const MutableStyle style = host.createMutableStyle();
  expectRefused(style, {{Kind::vendorLost, "vendor"}});
  const SafeSaveResult saved = safeOverwrite(style, target, {Layout::compact, true});
  ASSERT_TRUE(saved);
  EXPECT_EQ(placesOf(saved.problems), (Places{{Kind::vendorLost, "vendor"}}));
}

TEST_F(CppSafeOverwrite, RefusesAStoredStyleWhoseFileCannotBeWrittenAgain) {
  target = host.addUserStyle("u", test::document("u", "U", R"("p":1e39,"q":"\uDC00")", ""));
  expectRefused(createMutableCopy(target).style,
                {{Kind::infinite, "audio/E/p"}, {Kind::loneSurrogate, "audio/E/q"}});
  target = host.addUserStyle("u", test::document("u", "U", R"("p":[])", ""));
  expectRefused(createMutableCopy(target).style,
                {{Kind::effectWithoutParameters, "audio/E"}, {Kind::noEffect, ""}});
}

TEST_F(CppSafeOverwrite, RefusesATargetOfAnotherManager) {
  const test::CppHost other;
  const MutableStyle style = host.createMutableStyle();
  for (const UserStyle foreign : {other.addUserStyle("x"), UserStyle()}) {
    const SafeSaveResult saved = safeOverwrite(style, foreign);
    ASSERT_EQ(saved.problems.size(), 1U);
    EXPECT_EQ(saved.problems[0].kind, Kind::refused);
    EXPECT_EQ(saved.problems[0].code, KOSTYLE_ERROR_USER_STYLE_NOT_FOUND);
  }
  EXPECT_EQ(safeOverwrite(MutableStyle(), target).problems[0].code, KOSTYLE_ERROR_INVALID_HANDLE);
  EXPECT_TRUE(host.manager.has(style));
}

TEST_F(CppSafeOverwrite, SaysWhenTheFileIsGoneOrNone) {
  const std::string place = (host.user / "u.kostyle").u8string();
  const MutableStyle style = host.createMutableStyle();
  fs::remove(host.user / "u.kostyle");
  EXPECT_EQ(placesOf(safeOverwrite(style, target).problems), (Places{{Kind::notReplaceable, place}}));
  fs::create_directory(host.user / "u.kostyle");
  EXPECT_EQ(placesOf(safeOverwrite(style, target).problems), (Places{{Kind::notReplaceable, place}}));
  EXPECT_EQ(target.name(), "Old");
  EXPECT_TRUE(host.manager.has(style));
  EXPECT_THAT(entryNames(host.user), ElementsAre("u.kostyle"));
}

// As by a plain overwrite: elsewhere the directory decides whether a file may be replaced.
TEST_F(CppSafeOverwrite, RefusesAReadOnlyFileOnWindows) {
  fs::permissions(host.user / "u.kostyle", fs::perms::owner_read);
  const SafeSaveResult saved = safeOverwrite(host.createMutableStyle(), target);
  EXPECT_THAT(entryNames(host.user), ElementsAre("u.kostyle"));
#if defined(_WIN32)
  ASSERT_EQ(saved.problems.size(), 1U);
  EXPECT_EQ(saved.problems[0].kind, Kind::notReplaceable);
  EXPECT_EQ(saved.problems[0].cause, std::errc::permission_denied);
  EXPECT_EQ(host.bytes("u"), test::document("u", "Old"));
  fs::permissions(host.user / "u.kostyle", fs::perms::all);
#else
  EXPECT_TRUE(saved);
#endif
}

TEST_F(CppSafeOverwrite, RefusesAFileThatIsHeldOpenOnWindows) {
  const std::ifstream held(host.user / "u.kostyle");
  const SafeSaveResult saved = safeOverwrite(host.createMutableStyle(), target);
  EXPECT_THAT(entryNames(host.user), ElementsAre("u.kostyle"));
#if defined(_WIN32)
  ASSERT_EQ(saved.problems.size(), 1U);
  EXPECT_EQ(saved.problems[0].kind, Kind::notReplaceable);
  EXPECT_TRUE(saved.problems[0].cause);
  EXPECT_EQ(host.bytes("u"), test::document("u", "Old"));
#else
  EXPECT_TRUE(saved);
#endif
}

#if !defined(_WIN32)
TEST_F(CppSafeOverwrite, ReplacesASymbolicLinkAndLeavesWhatItLeadsTo) {
  const fs::path linked = host.directory / "linked";
  fs::rename(host.user / "u.kostyle", linked);
  fs::create_symlink(linked, host.user / "u.kostyle");
  EXPECT_TRUE(safeOverwrite(host.createMutableStyle(), target));
  EXPECT_FALSE(fs::is_symlink(host.user / "u.kostyle"));
  EXPECT_EQ(test::readFile(linked), test::document("u", "Old"));
  EXPECT_THAT(entryNames(host.user), ElementsAre("u.kostyle"));
}
#endif

TEST_F(CppSafeOverwrite, ServesStylesOfFurtherDirectories) {
  const fs::path further = host.directory.folder("further");
  test::writeFile(further / "f.kostyle", test::document("f", "Old"));
  host.manager =
      test::valueOf(Manager::create(test::freshAppID(), host.system, host.user, {{}, {further}}));
  fs::remove(host.user / "u.kostyle");
  ASSERT_TRUE(host.manager.readUserStyles());
  ASSERT_TRUE(safeOverwrite(host.createMutableStyle(), host.manager.userStyles()[0]));
  EXPECT_THAT(entryNames(host.user), IsEmpty());
  EXPECT_THAT(entryNames(further), ElementsAre("f.kostyle"));
  EXPECT_NE(test::readFile(further / "f.kostyle").find("\"New\""), std::string::npos);
}

}  // namespace
