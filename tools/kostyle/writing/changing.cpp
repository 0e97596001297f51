#include "writing/changing.h"

#include <fmt/format.h>

#include <algorithm>

#include "basics/failure.h"
#include "basics/files.h"
#include "editing/edited_document.h"
#include "editing/losses.h"
#include "editing/style_differences.h"
#include "printing/differences.h"
#include "reading/style_content.h"
#include "reading/style_file.h"
#include "writing/file_replacement.h"
#include "writing/folder_lock.h"
#include "writing/mutable_style.h"
#include "writing/notices.h"
#include "writing/own_form.h"
#include "writing/requested_change.h"
#include "writing/saving.h"
#include "writing/system_files.h"

namespace tool {
namespace {

// An effect that is added stands where the document has a place for it.
void moveToEnd(ChainContent& chain, const ChainContent& added) {
  for (const EffectContent& effect : added) {
    const auto isIt = [&](const EffectContent& other) { return other.id == effect.id; };
    const auto found = std::find_if(chain.begin(), chain.end(), isIt);
    if (found != chain.end()) std::rotate(found, found + 1, chain.end());
  }
}

// The library has the last word about what is in a file.
void requireContent(const fs::path& path, const std::string& bytes, const StyleContent& expected,
                    const StyleChange& change) {
  StyleContent found = contentOf(StyleFile(path, bytes).style());
  for (std::size_t chain = 0; chain < found.chains.size(); ++chain)
    moveToEnd(found.chains[chain], change.chains[chain].added);
  const std::vector<Difference> differing = differences(expected, found);
  if (!differing.empty())
    throw Refused(
        fmt::format("{}: left as it is, because the library would read something else from it "
                    "than was asked for: {}",
                    shownPath(path), differenceWords(differing.front())));
}

struct NewFile {
  std::string bytes;
  StyleContent content;
  std::vector<std::string> lost;
};

NewFile newFile(const fs::path& path, const std::string& before, const RequestedChange& requested,
                const StyleEdits& edits) {
  std::string edited = editedDocument(shownPath(path), before, requested.change);
  if (!edits.reformat) return {std::move(edited), requested.after, {}};
  std::string written = ownForm(path, before, requested.after, edits.pretty);
  std::vector<std::string> lost = losses(edited, written);
  for (std::size_t chain = 0; chain < chains().size(); ++chain)
    for (const EffectContent& effect : requested.after.chains[chain])
      if (effect.parameters.empty())
        lost.push_back(fmt::format("the {} {} is lost: one without parameters is not read again",
                                   chains()[chain].option, inQuotes(toUtf8(effect.id))));
  return {std::move(written), readBackOf(requested.after), std::move(lost)};
}

}  // namespace

void changeStyle(KoStyleStyle* style, const StyleEdits& edits, std::chrono::milliseconds limit) {
  const Text id = Style_id(style);
  const fs::path path = pathOf(TextView(Style_path(style)));
  const fs::path file = throughLinks(path);
  const FolderLock lock(file.parent_path(), limit);
  requireWriteAccess(file);
  const std::string before = readBytes(file);
  const StyleContent content = contentOf(StyleFile(path, before).style());
  if (content.id != id)
    throw Refused(fmt::format("{}: another style stands in the file by now", shownPath(path)));

  const RequestedChange requested = requestedChange(edits, content);
  requireTaken(requested.change);
  const NewFile after = newFile(path, before, requested, edits);
  if (after.bytes != before) {
    FileReplacement replacement(lock, file, after.bytes);
    requireContent(path, readBytes(replacement.path()), after.content, requested.change);
    if (readBytes(file) != before)
      throw Refused(fmt::format("{}: another program has changed the file meanwhile", shownPath(path)));
    replacement.finish(limit);
  }
  try {
    printWritten(id, path);
  } catch (const Refused&) {
    if (after.bytes != before) FileReplacement(lock, file, before).finish(limit);
    throw;
  }
  noticeLost(after.lost);
}

}  // namespace tool
