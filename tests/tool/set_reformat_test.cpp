// `set --reformat`: the library's own form of a file, and what that loses.
#include "support/encodings.h"
#include "tool/tool.h"

namespace test {
namespace {

class SetReformat : public testing::Test {
 protected:
  Outcome reformat(const std::string& bytes, const Arguments& arguments = {}) const {
    writeFile(file_, bytes);
    return runTool(Arguments{"set", "S", "--user", argument(user_), "--reformat"} + arguments);
  }
  std::string file() const { return readFile(file_); }

  const TemporaryDirectory directory_;
  const fs::path user_ = directory_.folder("user");
  const fs::path file_ = user_ / "mine.kostyle";
};

const std::string aChain = R"("audioEffect":{"E":{"parameter":{"p":1}}})";

TEST_F(SetReformat, WritesTheCompactForm) {
  expectSuccess(reformat("{ \"name\": \"N\", \"id\": \"S\",\n" + aChain + "}\n"));
  EXPECT_EQ(file(), document("S", "N"));
}

TEST_F(SetReformat, WritesThePrettyForm) {
  expectSuccess(reformat(document("S", "N"), {"--pretty"}));
  EXPECT_EQ(file().substr(0, 16), "{\n    \"id\": \"S\",");
}

TEST_F(SetReformat, MakesTheChangeToo) {
  expectSuccess(reformat(document("S", "N"), {"--name", "M"}));
  EXPECT_EQ(file(), document("S", "M"));
}

TEST_F(SetReformat, NamesWhatIsLost) {
  const Outcome outcome = reformat(
      R"({"id":"S","name":"N","vendor":"Ours","mood":{"deep":[1]},
  "filter":{"genres":["Pop","Pop",7],"genres":["Rock"],"key":"C"},
  "audioEffect":{"Bare":{"parameter":{}},
    "E":{"parameter":{"p":1,"q":true,"p":2,"Tarn":3,"r":0.123456789123,"s":0.4},"note":"mine"}}})");
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_EQ(outcome.err,
            "kostyle: notice: /vendor is lost: \"Ours\"\n"
            "kostyle: notice: /mood is lost: {\"deep\":[1]}\n"
            "kostyle: notice: /filter/genres/1 is lost: \"Pop\"\n"
            "kostyle: notice: /filter/genres/2 is lost: 7\n"
            "kostyle: notice: /filter/genres is lost: [\"Rock\"]\n"
            "kostyle: notice: /filter/key is lost: \"C\"\n"
            "kostyle: notice: /audioEffect/Bare is lost: {\"parameter\":{}}\n"
            "kostyle: notice: /audioEffect/E/parameter/q is lost: true\n"
            "kostyle: notice: /audioEffect/E/parameter/p is lost: 2\n"
            "kostyle: notice: /audioEffect/E/parameter/Tarn is renamed to \"Tarn630\"\n"
            "kostyle: notice: /audioEffect/E/parameter/r is rounded: 0.123456789123 to 0.12345679\n"
            "kostyle: notice: /audioEffect/E/note is lost: \"mine\"\n");
  EXPECT_THAT(file(), HasSubstr(R"("Tarn630":3)"));
}

TEST_F(SetReformat, NamesTheEncoding) {
  const Outcome outcome = reformat(encoded(document("S", "N"), Encoding::utf16be, true));
  EXPECT_EQ(outcome.err,
            "kostyle: notice: the encoding UTF-16BE becomes UTF-8\n"
            "kostyle: notice: the byte-order mark is lost\n");
  EXPECT_EQ(file(), document("S", "N"));
}

TEST_F(SetReformat, DoesNotNameWhatIsAskedFor) {
  expectSuccess(reformat(document("S", "N", R"("p":1,"q":2)", ""), {"--delete-param", "E.q"}));
  EXPECT_EQ(file(), document("S", "N"));
}

TEST_F(SetReformat, RefusesWhatTheLibraryCannotWrite) {
  const auto refused = [&](const std::string& text, const char* why) {
    expectFailure(reformat(text, {"--add-genre", "Pop"}), 1, why);
    EXPECT_EQ(file(), text);
  };
  refused(R"({"id":"S","name":"N","audioEffect":{"E":{"parameter":{"p":1e39}}}})", "infinite");
  refused(R"({"id":"S","name":"a\udc41",)" + aChain + "}", "lone surrogate");
  refused(R"({"id":"S","name":"N","filter":{"colors":["a\udc41"]},)" + aChain + "}", "lone surrogate");
  refused(R"({"id":"S","name":"N","audioEffect":{"E\udc41":{"parameter":{"p":1}}}})", "lone surrogate");
  refused(R"({"id":"S","name":"N","audioEffect":{"E":{"parameter":{"p\udc41":1}}}})", "lone surrogate");
  refused(R"({"id":"S","name":"N","audioEffect":{"E":{"parameter":{"p":"\udc41"}}}})",
          "lone surrogate");
  refused(R"({"id":"S","name":"N","filter":{"genres":["a\u0000a","a\u0000b"]},)" + aChain + "}",
          "genre \"a\" is there already");
  refused(document("S", std::string(101, 'n')),
          "the name has more than 100 UTF-16 units; \"kostyle set --name\" gives another");
  expectSuccess(reformat(R"({"id":"S","name":"N","audioEffect":{"E":{"parameter":{"p":1e39}}}})",
                         {"--param", "E.p:int=1"}));
  EXPECT_EQ(file(), document("S", "N"));
}

}  // namespace
}  // namespace test
