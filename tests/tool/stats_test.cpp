// kostyle stats. The outputs for diff/before and diff/after stand whole in golden/.
#include "tool/samples.h"

namespace test {
namespace {

TEST(Stats, CountsStyles) {
  const Outcome outcome = runInSamples({"stats", "diff/before", "diff/after"});
  EXPECT_EQ(outcome.exitCode, 1);  // two identifiers repeat
  EXPECT_EQ(outcome.err, "");
  EXPECT_EQ(outcome.out, golden("stats.txt"));
}

TEST(Stats, PrintsJson) {
  const Outcome outcome = runInSamples({"stats", "--json", "diff/before", "diff/after"});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_EQ(outcome.err, "");
  EXPECT_EQ(outcome.out, golden("stats.json"));
  EXPECT_EQ(parseJson(outcome.out)["parameters"].Size(), 8u);
}

TEST(Stats, CountsAnEffectInEachChain) {
  const TemporaryDirectory directory;
  writeFile(directory / "a.kostyle", documentWith(R"("midiEffect":{"E":{"parameter":{"p":"x"}}})"));
  const Outcome outcome = runTool({"stats", "--json", argument(directory.path())});
  expectSuccess(outcome);
  const auto document = parseJson(outcome.out);
  EXPECT_EQ(document["effects"].Size(), 2u);
  EXPECT_STREQ(document["parameters"][0]["type"].GetString(), "int");
  EXPECT_STREQ(document["parameters"][1]["type"].GetString(), "text");
}

TEST(Stats, CountsTheFilesThatAreRefused) {
  const TemporaryDirectory directory;
  writeFile(directory / "good.kostyle", document("S", "N"));
  writeFile(directory / "bad.kostyle", "{");
  writeFile(directory / "other.txt", "{");
  const Outcome outcome = runTool({"stats", argument(directory.path())});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_THAT(outcome.out, StartsWith("FILES  READ  REFUSED\n2      1     1\n"));
}

TEST(Stats, OfAnEmptyDirectoryAreZero) {
  const TemporaryDirectory directory;
  const Outcome outcome = runTool({"stats", argument(directory.path())});
  expectSuccess(outcome);
  EXPECT_EQ(outcome.out, "FILES  READ  REFUSED\n0      0     0\n");
}

TEST(Stats, KeepTheTerminalAsItIs) {
  const TemporaryDirectory directory;
  writeFile(directory / "a.kostyle", documentWith(R"("filter":{"genres":["\u001b[2J\u202e"]})"));
  const Outcome outcome = runTool({"stats", argument(directory.path())});
  EXPECT_THAT(outcome.out, HasSubstr("\n\\u001b[2J\\u202e  1\n"));
}

TEST(Stats, NeedsDirectories) {
  const TemporaryDirectory directory;
  writeFile(directory / "a.kostyle", document("S", "N"));
  expectFailure(runTool({"stats"}), 2, "DIR is required");
  expectFailure(runTool({"stats", ""}), 2, "the path of a directory is empty");
  expectFailure(runTool({"stats", argument(directory / "none")}), 2, "none: no such directory");
  expectFailure(runTool({"stats", argument(directory / "a.kostyle")}), 2, "not a directory");
}

}  // namespace
}  // namespace test
