// Random styles, saved by one manager and read by another, before and after they are overwritten,
// edited and removed.
#include <gmock/gmock.h>
#include <kostyle/kostyle.h>

#include <map>
#include <string>
#include <vector>

#include "support/host.h"
#include "support/random_style.h"
#include "support/style_files.h"
#include "support/style_walk.h"

namespace {

using test::asReread;
using test::asStored;
using test::Random;
using test::StyleValue;
using test::Text;
using test::text;
using test::utf8;
using test::valueOf;

constexpr int styleCount = 10000;
constexpr int batchSize = 500;
constexpr int filesWithVendor = 20;

/// A style of the user directory: what the writing manager holds and what the file holds.
struct Entry {
  KoStyleStyle* handle;
  StyleValue stored;
  StyleValue written;
  std::string vendorInFile;
};

class RoundTrip : public testing::TestWithParam<int> {
 protected:
  /// A random style as a mutable style of the writing manager, with its value. Some have two
  /// parameters of one name.
  StyleValue build(KoStyleStyle*& style) {
    StyleValue value = test::randomStyle(random);
    style = StyleManager_createMutableStyle(host.manager);
    test::fill(style, value, random);
    for (std::size_t kind = 0; kind < value.chains.size(); ++kind) {
      for (std::size_t i = 0; i < value.chains[kind].size(); ++i) {
        auto& parameters = value.chains[kind][i].parameters;
        if (parameters.size() < 2 || !random.oneIn(4)) continue;
        const std::size_t renamed = random.below(parameters.size());
        parameters[renamed].name = random.oneIn(4) ? text("Tarn") : random.of(parameters).name;
        KoStyleEffect* const effect = test::chains()[kind].mutableAt(style, i);
        MutableParameter_setName(MutableEffect_parameter(effect, renamed),
                                 parameters[renamed].name.c_str());
      }
    }
    EXPECT_EQ(valueOf(style), value);
    return value;
  }

  void save() {
    KoStyleStyle* style = nullptr;
    const StyleValue value = build(style);
    KoStyleStyle* const saved = test::Host::save(style, random.oneIn(2));
    entries.push_back({saved, asStored(value), value, ""});
    EXPECT_EQ(valueOf(saved), asStored(value));
  }

  void overwrite(Entry& entry) {
    KoStyleStyle* style = nullptr;
    const StyleValue value = build(style);
    int error = -1;
    EXPECT_EQ(MutableStyle_overwrite(style, Style_id(entry.handle), random.oneIn(2), &error),
              entry.handle);
    EXPECT_EQ(error, KOSTYLE_OK);
    entry = {entry.handle, asStored(value), value, ""};
  }

  void edit(Entry& entry) {
    const StyleValue properties = test::randomStyle(random);
    KoStylePropertyEditor* const editor = UserStyle_createPropertyEditor(entry.handle);
    EXPECT_TRUE(PropertyEditor_setStyleName(editor, properties.name.c_str()));
    for (const Text& each : test::shuffled(random, properties.lists[test::subGenres]))
      EXPECT_TRUE(PropertyEditor_addSubGenre(editor, each.c_str()));
    for (const Text& each : test::shuffled(random, properties.lists[test::colors]))
      EXPECT_TRUE(PropertyEditor_addColor(editor, each.c_str()));
    EXPECT_TRUE(PropertyEditor_save(editor, random.oneIn(2)));
    entry.stored.name = properties.name;
    entry.stored.lists[test::subGenres] = properties.lists[test::subGenres];
    entry.stored.lists[test::colors] = properties.lists[test::colors];
    entry.written = entry.stored;
    entry.vendorInFile = "";
  }

  /// Puts files with a vendor text there, which saving never writes.
  void putFilesWithVendor() {
    for (int i = 0; i < filesWithVendor; ++i) {
      const std::string id = "vendor-" + std::to_string(i);
      test::writeFile(host.user / (id + ".kostyle"),
                      R"({"vendor":"V","id":")" + id + R"(","name":"n",)" +
                          R"("midiEffect":{"M":{"parameter":{"p":1}}}})");
    }
    ASSERT_EQ(StyleManager_readUserStyles(host.manager), KOSTYLE_OK);
    for (std::size_t i = 0; KoStyleStyle* style = StyleManager_userStyle(host.manager, i); ++i)
      entries.push_back({style, valueOf(style), valueOf(style), "V"});
    ASSERT_EQ(entries.size(), static_cast<std::size_t>(filesWithVendor));
  }

  void expectWritingManagerHoldsAll() {
    ASSERT_EQ(StyleManager_numUserStyle(host.manager), entries.size());
    for (std::size_t i = 0; i < entries.size(); ++i) {
      ASSERT_EQ(StyleManager_userStyle(host.manager, i), entries[i].handle);
      ASSERT_EQ(valueOf(entries[i].handle), entries[i].stored);
      test::expectStyleWalks(entries[i].handle);
    }
    EXPECT_EQ(test::entryNames(host.user).size(), entries.size());
  }

  void expectReadingManagerReadsAll() {
    ASSERT_EQ(StyleManager_readUserStyles(reading), KOSTYLE_OK);
    std::map<Text, KoStyleStyle*> read;
    for (KoStyleStyle* style = StyleManager_userStyle(reading, 0); style; style = UserStyle_next(style))
      read[Style_path(style)] = style;
    std::size_t readable = 0;
    for (const Entry& entry : entries) {
      const auto found = read.find(Style_path(entry.handle));
      const auto expected = asReread(entry.written);
      ASSERT_EQ(found != read.end(), expected.has_value()) << utf8(Style_path(entry.handle));
      if (!expected) continue;
      ++readable;
      ASSERT_EQ(valueOf(found->second), *expected);
      ASSERT_EQ(Text(Style_id(found->second)), Style_id(entry.handle));
      ASSERT_EQ(utf8(Style_vendor(found->second)), entry.vendorInFile);
    }
    EXPECT_EQ(read.size(), readable);
    ASSERT_EQ(StyleManager_numUserStyleCreationResult(reading), entries.size());
    for (std::size_t i = 0;
         KoStyleCreationResult* record = StyleManager_userStyleCreationResult(reading, i); ++i) {
      const int code = StyleCreationResult_error(record);
      EXPECT_EQ(code, read.count(StyleCreationResult_filePath(record)) ? KOSTYLE_OK
                                                                       : KOSTYLE_ERROR_NO_EFFECT);
    }
  }

  Random random{static_cast<std::uint64_t>(GetParam())};
  test::Host host;
  test::Manager reading{host.system, host.user};
  std::vector<Entry> entries;
};

INSTANTIATE_TEST_SUITE_P(Batch, RoundTrip, testing::Range(0, styleCount / batchSize));

TEST_P(RoundTrip, KeepsEveryStyle) {
  putFilesWithVendor();
  for (int i = 0; i < batchSize; ++i) save();
  ASSERT_FALSE(HasFailure());
  expectWritingManagerHoldsAll();
  expectReadingManagerReadsAll();
  ASSERT_FALSE(HasFailure());

  for (std::size_t i = entries.size(); i-- > 0;) {
    switch (random.below(4)) {
      case 0:
        overwrite(entries[i]);
        break;
      case 1:
        edit(entries[i]);
        break;
      case 2:
        EXPECT_EQ(UserStyle_remove(entries[i].handle), KOSTYLE_OK);
        entries.erase(entries.begin() + static_cast<std::ptrdiff_t>(i));
        break;
      default:
        break;
    }
  }
  ASSERT_FALSE(HasFailure());
  expectWritingManagerHoldsAll();
  expectReadingManagerReadsAll();
}

}  // namespace
