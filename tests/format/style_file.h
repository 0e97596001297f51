// Bytes through the reader by way of a real file.
#pragma once

#include <memory>
#include <stdexcept>
#include <string_view>

#include "format/style_reader.h"
#include "platform/platform.h"
#include "support/temporary_directory.h"

namespace test {

/// What the reader made of a file.
struct Reading {
  std::unique_ptr<Tesk::KoStyle::Style> style;
  Tesk::KoStyle::StyleReadOutcome outcome;
};

/// A file that can be read again and again with other content.
class StyleFile {
 public:
  Reading read(std::string_view bytes,
               Tesk::KoStyle::StyleKind kind = Tesk::KoStyle::StyleKind::user) const {
    namespace platform = Tesk::KoStyle::platform;
    fs::remove(path_);  // some systems wait for the disk when a file's content is replaced
    writeFile(path_, bytes);
    const platform::File file = platform::openForReading(platform::nativePath(pathText(path_)));
    if (!file) throw std::runtime_error("cannot open " + path_.string());
    Reading reading;
    reading.style = readStyleFile(kind, nullptr, file.get(), reading.outcome);
    return reading;
  }

 private:
  TemporaryDirectory directory_;
  fs::path path_ = directory_ / "style.kostyle";
};

inline Reading readBytes(std::string_view bytes,
                         Tesk::KoStyle::StyleKind kind = Tesk::KoStyle::StyleKind::user) {
  return StyleFile().read(bytes, kind);
}

}  // namespace test
