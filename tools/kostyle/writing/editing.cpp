#include "writing/editing.h"

#include <fmt/core.h>

#include <exception>
#include <iostream>
#include <string>
#include <system_error>
#include <vector>

#include "basics/failure.h"
#include "basics/files.h"
#include "basics/output.h"
#include "basics/terminal.h"
#include "checking/check_run.h"
#include "checking/file_check.h"
#include "editing/editor_text.h"
#include "printing/findings.h"
#include "reading/manager.h"
#include "reading/style_content.h"
#include "reading/style_file.h"
#include "writing/editor.h"
#include "writing/file_replacement.h"
#include "writing/own_form.h"
#include "writing/saving.h"
#include "writing/system_files.h"

namespace tool {
namespace {

// What was found in the edited text, under a name for it, errors and warnings alone.
std::vector<FileReport> checked(const std::string& name, const std::string& text) {
  std::vector<FileReport> reports{checkContent(name, text)};
  dropBelow(Severity::warning, reports);
  return reports;
}

// Who ends the command here instead of answering finds the text where it says.
bool wantsAgain(const fs::path& text, bool isUsual) {
  if (!canAsk()) return false;
  printOnStderr(fmt::format("The text is in {}\nEdit again? {} ", printable(shownPath(text)),
                            isUsual ? "[Y/n]" : "[y/N]"));
  std::string answer;
  if (!std::getline(std::cin, answer)) return false;
  if (answer.empty()) return isUsual;
  return answer.front() == 'y' || answer.front() == 'Y';
}

class Editing {
 public:
  Editing(const fs::path& path, const StyleDirectories& directories)
      : path_(path),
        file_(throughLinks(path)),
        shown_(shownPath(path)),
        directories_(directories),
        before_(readBytes(file_)),
        original_(shown_, before_),
        copy_(folder_.path() / path.filename()) {
    writeCopy(copy_, original_.text(), path);
  }

  /// Edits, writes or throws; the text stays where it is when it would be lost.
  void run(std::chrono::milliseconds limit) {
    try {
      const std::string text = editedText();
      if (text == original_.text()) {
        notice(fmt::format("{}: nothing was changed", shown_));
        return;
      }
      write(text, limit);
    } catch (const std::exception& error) {
      if (!isEdited()) throw;
      folder_.keep();
      throw Refused(fmt::format("{}; the edited text is kept in {}", error.what(), shownPath(copy_)));
    }
  }

 private:
  // A text that cannot be read back is one that the user may want to have.
  bool isEdited() const {
    try {
      return readBytes(copy_) != original_.text();
    } catch (const Refused&) {
      std::error_code ignored;
      return fs::is_regular_file(fs::symlink_status(copy_, ignored));
    } catch (const std::exception&) {  // too little memory to tell
      return true;
    }
  }

  std::string editedText() const {
    for (;;) {
      runEditor(copy_);
      std::string saved = readBytes(copy_);
      if (saved == original_.text()) return saved;
      std::string text = savedText(shownPath(copy_), saved);
      const auto inCopy = checked(shownPath(copy_), text);
      const bool isRefused = countsOf(inCopy).errors > 0;
      // The lines are those of the file that is to be.
      printOnStderr(findingsText(isRefused ? inCopy : checked(shown_, text), false));
      if (!inCopy.front().findings.empty() && wantsAgain(copy_, isRefused)) continue;
      if (isRefused) throw Refused(fmt::format("{}: left as it is: the text has errors", shown_));
      return text;
    }
  }

  void write(const std::string& text, std::chrono::milliseconds limit) const {
    const FolderLock lock(file_.parent_path(), limit);
    if (readBytes(file_) != before_)
      throw Refused(fmt::format("{}: another program has changed the file meanwhile", shown_));
    const StyleContent style = contentOf(StyleFile(path_, text).style());
    requireOwnIdentifier(style.id);
    const std::string after = original_.bytesOf(text);
    const auto verify = [&](const std::string& bytes) { requireStyle(path_, bytes, style); };
    replaceContent(lock, file_, {before_, after}, verify, limit);
    try {
      printWritten(style.id, path_);
    } catch (const Refused&) {
      if (after != before_) FileReplacement(lock, file_, before_).finish(limit);
      throw;
    }
  }

  // An identifier that the file has had before is not its fault.
  void requireOwnIdentifier(const Text& id) const {
    if (checkContent(shown_, before_).id == id) return;
    StyleDirectories directories = directories_;
    if (!directories.system && !directories.user)
      directories.system = path_.has_parent_path() ? path_.parent_path() : fs::path(".");
    const Manager manager(directories);
    for (KoStyleStyle* style : manager.styles())
      if (Style_id(style) == id)
        throw Refused(fmt::format("{}: left as it is: {} has the identifier {}", shown_,
                                  pathToUtf8(Style_path(style)), inQuotes(toUtf8(id))));
  }

  fs::path path_;
  fs::path file_;
  std::string shown_;
  StyleDirectories directories_;
  std::string before_;
  EditorText original_;
  TemporaryDirectory folder_;
  fs::path copy_;
};

}  // namespace

void editStyle(const fs::path& path, const StyleDirectories& directories,
               std::chrono::milliseconds limit) {
  requireEditor();
  const fs::path file = throughLinks(path);
  requireWriteAccess(file);
  requireWritableFolder(file.parent_path());
  Editing(path, directories).run(limit);
}

}  // namespace tool
