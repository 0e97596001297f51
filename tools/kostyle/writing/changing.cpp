#include "writing/changing.h"

#include <fmt/core.h>

#include <utility>

#include "basics/failure.h"
#include "basics/files.h"
#include "editing/edited_document.h"
#include "editing/losses.h"
#include "reading/style_content.h"
#include "reading/style_file.h"
#include "writing/file_replacement.h"
#include "writing/mutable_style.h"
#include "writing/notices.h"
#include "writing/requested_change.h"
#include "writing/saving.h"
#include "writing/system_files.h"

namespace tool {

NewContent changedContent(const fs::path& path, const std::string& before,
                          const RequestedChange& requested, const StyleEdits& edits) {
  std::string edited = editedDocument(shownPath(path), before, requested.change);
  if (!edits.reformat) return {std::move(edited), requested.after, {}};
  NewContent own = ownForm(path, edited, requested.after, edits.pretty);
  const std::vector<std::string> encoding = encodingLosses(before);
  own.lost.insert(own.lost.begin(), encoding.begin(), encoding.end());
  return own;
}

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
  const NewContent after = changedContent(path, before, requested, edits);
  const auto verify = [&](const std::string& bytes) {
    requireStyle(path, bytes, after.style, requested.change);
  };
  replaceContent(lock, file, {before, after.bytes}, verify, limit);
  try {
    printWritten(id, path);
  } catch (const Refused&) {
    if (after.bytes != before) FileReplacement(lock, file, before).finish(limit);
    throw;
  }
  noticeLost(after.lost);
}

}  // namespace tool
