// Text in and out.
#include "cpp/cpp_host.h"

namespace {

using kostyle::fromPath;
using kostyle::fromUtf8;
using kostyle::NativeString;
using kostyle::Text;
using kostyle::TextArgument;
using kostyle::TextView;
using kostyle::toPath;
using kostyle::toUtf8;

// One character of each length in UTF-8.
constexpr char utf8[] = "a\xC3\xA4\xE2\x82\xAC\xF0\x9D\x84\x9E";
const NativeString native = KOSTYLE_TEXT("a\u00E4\u20AC\U0001D11E");

TEST(CppText, IsConvertedBothWays) {
  EXPECT_EQ(fromUtf8(utf8), native);
  EXPECT_EQ(fromUtf8(std::string_view(utf8, 3)), native.substr(0, 2));
  EXPECT_EQ(toUtf8(native.c_str()), utf8);
  EXPECT_EQ(Text(native.c_str()).utf8(), utf8);
  EXPECT_EQ(Text(native.c_str()).native(), native);
}

TEST(CppText, OfInvalidUtf8AndLoneSurrogatesHasReplacementCharacters) {
  EXPECT_EQ(fromUtf8("a\xFF"), KOSTYLE_TEXT("a\uFFFD"));
  const KoStyleChar lone[] = {0xD800, 0};
  EXPECT_EQ(Text(lone).utf8(), "\xEF\xBF\xBD");
}

TEST(CppText, OfNullIsEmpty) {
  EXPECT_TRUE(Text().empty());
  EXPECT_TRUE(Text(nullptr).empty());
  EXPECT_EQ(Text().native(), TextView());
  EXPECT_EQ(Text().utf8(), "");
  EXPECT_EQ(*Text().c_str(), 0);
  EXPECT_EQ(toUtf8(nullptr), "");
  EXPECT_EQ(fromUtf8(static_cast<const char*>(nullptr)), NativeString());
  EXPECT_FALSE(Text(native.c_str()).empty());
}

TEST(CppText, IsComparedWithTextsOfEveryKind) {
  const Text text(native.c_str());
  const NativeString copy = native;
  EXPECT_TRUE(text == Text(copy.c_str()) && text == TextView(copy) && TextView(copy) == text);
  EXPECT_TRUE(text == copy.c_str() && text == utf8 && utf8 == text && text == std::string(utf8));
  EXPECT_FALSE(text != Text(copy.c_str()) || text != TextView(copy) || TextView(copy) != text);
  EXPECT_FALSE(text != utf8 || utf8 != text);
  EXPECT_TRUE(text != "a" && "a" != text && text != TextView(KOSTYLE_TEXT("a")) && !(text == Text()));
  EXPECT_TRUE(Text(KOSTYLE_TEXT("a")) < Text(KOSTYLE_TEXT("b")));
  EXPECT_FALSE(Text(KOSTYLE_TEXT("a")) < Text(KOSTYLE_TEXT("a")));
  EXPECT_TRUE(Text(KOSTYLE_TEXT("b")) > Text(KOSTYLE_TEXT("a")));
  EXPECT_FALSE(Text(KOSTYLE_TEXT("a")) > Text(KOSTYLE_TEXT("a")));
  EXPECT_TRUE(Text(KOSTYLE_TEXT("a")) <= Text(KOSTYLE_TEXT("a")));
  EXPECT_FALSE(Text(KOSTYLE_TEXT("b")) <= Text(KOSTYLE_TEXT("a")));
  EXPECT_TRUE(Text(KOSTYLE_TEXT("a")) >= Text(KOSTYLE_TEXT("a")));
  EXPECT_FALSE(Text(KOSTYLE_TEXT("a")) >= Text(KOSTYLE_TEXT("b")));
}

TEST(CppTextArgument, IsMadeOfTextsOfEveryKind) {
  const auto passed = [](const TextArgument& argument) { return NativeString(argument.c_str()); };
  const std::string owned = utf8;
  EXPECT_EQ(passed(utf8), native);
  EXPECT_EQ(passed(owned), native);
  EXPECT_EQ(passed(std::string_view(utf8, 1)), KOSTYLE_TEXT("a"));
  EXPECT_EQ(passed(native), native);
  EXPECT_EQ(passed(native.c_str()), native);
  EXPECT_EQ(passed(TextView(native).substr(0, 2)), native.substr(0, 2));
  EXPECT_EQ(passed(Text(native.c_str())), native);
  EXPECT_EQ(passed(Text()), NativeString());
}

TEST(CppTextArgument, KeepsNullAndCopiesNoNativeText) {
  EXPECT_EQ(TextArgument(static_cast<const char*>(nullptr)).c_str(), nullptr);
  EXPECT_EQ(TextArgument(static_cast<const KoStyleChar*>(nullptr)).c_str(), nullptr);
  EXPECT_EQ(TextArgument(native).c_str(), native.c_str());
  EXPECT_EQ(TextArgument(native.c_str()).c_str(), native.c_str());
  EXPECT_EQ(TextArgument(Text(native.c_str())).c_str(), native.c_str());
}

TEST(CppPath, ComesBackAsItWas) {
  const test::TemporaryDirectory directory;
  const auto path = directory / test::fs::u8path(utf8);
  EXPECT_EQ(toPath(Text(fromPath(path).c_str())), path);
}

#if defined(_WIN32)

TEST(CppPath, IsMadeAbsoluteWithSingleBackslashes) {
  EXPECT_EQ(fromPath(L"C:/a/.\\\\b/../c/"), L"C:\\a\\c");
  EXPECT_EQ(fromPath(L"C:/"), L"C:\\");
  EXPECT_EQ(fromPath(L"relative"), (test::fs::current_path() / L"relative").native());
}

TEST(CppPath, WithAPrefixIsTakenAsItIs) {
  EXPECT_EQ(fromPath(L"\\\\?\\C:\\a\\"), L"\\\\?\\C:\\a\\");
  EXPECT_EQ(fromPath(L"\\\\server\\share"), L"\\\\server\\share");
  EXPECT_EQ(fromPath(L""), L"");
}

#else

TEST(CppPath, KeepsBytesThatAreNoUtf8) {
  const test::fs::path path = "/tmp/\xFF/../a/";
  EXPECT_EQ(fromPath(path), KOSTYLE_TEXT("/tmp/\xDCFF/../a/"));
  EXPECT_EQ(toPath(Text(fromPath(path).c_str())), path);
}

TEST(CppPath, OfATextThatIsNoPathIsEmpty) {
  EXPECT_EQ(toPath(Text(KOSTYLE_TEXT("/tmp/\xD800"))), test::fs::path());
}

#endif

}  // namespace
