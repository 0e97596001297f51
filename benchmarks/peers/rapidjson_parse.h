// RapidJSON alone, in the way in which style files must be read: a document of UTF-16, 256 bytes at a
// time, of any encoding. Stock classes; each document goes before the next is parsed.
#pragma once

#include "peers/listed_files.h"

namespace bench {

class RapidjsonParse {
 public:
  explicit RapidjsonParse(const std::filesystem::path& directory) : paths_(listedFiles(directory)) {}

  std::size_t read();

 private:
  std::vector<std::string> paths_;
};

}  // namespace bench
