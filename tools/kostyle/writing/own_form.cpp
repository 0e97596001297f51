#include "writing/own_form.h"

#include <fmt/format.h>
#include <kostyle/helpers.h>

#include <algorithm>
#include <system_error>

#include "basics/failure.h"
#include "basics/files.h"
#include "writing/mutable_style.h"
#include "writing/saving.h"

namespace tool {

std::string ownForm(const fs::path& path, const std::string& bytes, const StyleContent& after,
                    bool pretty) {
  const TemporaryDirectory directory;
  const fs::path rewritten = directory.path() / "style.kostyle";
  writeCopy(rewritten, bytes, path);
  StyleDirectories directories;
  directories.user = directory.path();
  const Manager manager(directories);
  MutableStyle style(manager);
  if (!after.name.empty()) style.setName(after.name);  // otherwise it was too long to be read
  style.fill(after);
  requireWritable(style.handle());
  int error = KOSTYLE_OK;
  MutableStyle_overwrite(style.handle(), after.id.c_str(), pretty, &error);
  if (error != KOSTYLE_OK)
    throw Refused(fmt::format("{}: {}", shownPath(path), KoStyle_codeText(error)));
  std::string written = readBytes(rewritten);
  // A full disk is no error to the library.
  if (const std::error_code full = writingError(rewritten))
    throw Refused(
        fmt::format("{}: its new form cannot be written: {}", shownPath(path), full.message()));
  return written;
}

StyleContent readBackOf(StyleContent content) {
  content.vendor.clear();
  for (ChainContent& chain : content.chains) {
    const auto isBare = [](const EffectContent& effect) { return effect.parameters.empty(); };
    chain.erase(std::remove_if(chain.begin(), chain.end(), isBare), chain.end());
  }
  return content;
}

}  // namespace tool
