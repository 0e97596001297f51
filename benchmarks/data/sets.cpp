#include <string>

#include "data/make_files.h"
#include "data/output_file.h"
#include "data/style_json.h"

namespace bench {
namespace {

constexpr std::uint64_t seed = 20240229;

std::string fileName(std::size_t i) { return "style" + std::to_string(i) + ".kostyle"; }

}  // namespace

void makeSets(const std::filesystem::path& data, std::size_t files) {
  const auto sets = data / "sets";
  Random random(seed);
  for (std::size_t i = 0; i < files; ++i) {
    const StyleContent content = makeContent(random, i, typicalShape);
    const JsonDocument document = buildDocument(content, Vendor::written);
    writeIndented(document, OutputFile(sets / "typical" / fileName(i)).get());
    writeCompact(document, OutputFile(sets / "compact" / fileName(i)).get());
    writeUtf16(document, OutputFile(sets / "utf16" / fileName(i)).get());

    const StyleContent small = makeContent(random, i, smallShape);
    writeIndented(buildDocument(small, Vendor::written),
                  OutputFile(sets / "small" / fileName(i)).get());
  }
}

}  // namespace bench
