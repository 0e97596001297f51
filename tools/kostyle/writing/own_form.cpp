#include "writing/own_form.h"

#include <fmt/core.h>
#include <kostyle/helpers.h>

#include <algorithm>
#include <system_error>
#include <utility>

#include "basics/failure.h"
#include "basics/files.h"
#include "editing/losses.h"
#include "editing/style_differences.h"
#include "printing/differences.h"
#include "reading/attributes.h"
#include "reading/style_content.h"
#include "reading/style_file.h"
#include "writing/mutable_style.h"
#include "writing/saving.h"

namespace tool {
namespace {

bool isBare(const EffectContent& effect) { return effect.parameters.empty(); }

// What of a content the library reads again from a file that it wrote.
StyleContent readBackOf(StyleContent content) {
  content.vendor.clear();
  for (ChainContent& chain : content.chains)
    chain.erase(std::remove_if(chain.begin(), chain.end(), isBare), chain.end());
  return content;
}

std::string written(const fs::path& path, const std::string& document, const StyleContent& kept,
                    bool pretty) {
  const TemporaryDirectory directory;
  const fs::path rewritten = directory.path() / "style.kostyle";
  writeCopy(rewritten, document, path);
  StyleDirectories directories;
  directories.user = directory.path();
  const Manager manager(directories);
  MutableStyle style(manager);
  if (kept.name.empty())
    throw Refused(
        fmt::format("the name has more than {} UTF-16 units; \"kostyle set --name\" gives another",
                    static_cast<int>(KOSTYLE_MAX_NAME_LENGTH)));
  style.setName(kept.name);
  style.fill(kept);
  requireWritable(style.handle());
  int error = KOSTYLE_OK;
  MutableStyle_overwrite(style.handle(), kept.id.c_str(), pretty, &error);
  if (error != KOSTYLE_OK)
    throw Refused(fmt::format("{}: {}", shownPath(path), KoStyle_codeText(error)));
  std::string bytes = readBytes(rewritten);
  // A full disk is no error to the library.
  if (const std::error_code full = writingError(rewritten))
    throw Refused(
        fmt::format("{}: its new form cannot be written: {}", shownPath(path), full.message()));
  return bytes;
}

// An effect that is added stands where the document has a place for it.
void moveToEnd(ChainContent& chain, const ChainContent& added) {
  for (const EffectContent& effect : added) {
    const auto isIt = [&](const EffectContent& other) { return other.id == effect.id; };
    const auto found = std::find_if(chain.begin(), chain.end(), isIt);
    if (found != chain.end()) std::rotate(found, found + 1, chain.end());
  }
}

StyleContent contentRead(const fs::path& path, const std::string& bytes) {
  try {
    return contentOf(StyleFile(path, bytes).style());
  } catch (const Refused& error) {
    throw Refused(fmt::format("{}; the file is left as it is, because applications would refuse it",
                              error.what()));
  }
}

}  // namespace

NewContent ownForm(const fs::path& path, const std::string& document, const StyleContent& style,
                   bool pretty) {
  requireParameter(style);
  StyleContent kept = readBackOf(style);
  std::string bytes = written(path, document, kept, pretty);
  std::vector<std::string> lost = losses(document, bytes);
  return {std::move(bytes), std::move(kept), std::move(lost)};
}

void requireStyle(const fs::path& path, const std::string& bytes, const StyleContent& style,
                  const StyleChange& added) {
  StyleContent found = contentRead(path, bytes);
  for (std::size_t chain = 0; chain < found.chains.size(); ++chain)
    moveToEnd(found.chains[chain], added.chains[chain].added);
  const std::vector<Difference> differing = differences(style, found);
  if (!differing.empty())
    throw Refused(
        fmt::format("{}: left as it is, because the library would read something else from it "
                    "than was asked for: {}",
                    shownPath(path), differenceWords(differing.front())));
}

}  // namespace tool
