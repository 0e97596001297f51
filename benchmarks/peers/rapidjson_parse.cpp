#include "peers/rapidjson_parse.h"

#include <kostyle/types.h>
#include <rapidjson/document.h>
#include <rapidjson/encodedstream.h>
#include <rapidjson/filereadstream.h>

#include <cstdio>

namespace bench {
namespace {

bool parse(const std::string& path) {
  std::FILE* const file = std::fopen(path.c_str(), "rb");
  if (!file) return false;
  char buffer[256];
  rapidjson::FileReadStream bytes(file, buffer, sizeof buffer);
  rapidjson::AutoUTFInputStream<unsigned, rapidjson::FileReadStream> characters(bytes);
  rapidjson::GenericDocument<rapidjson::UTF16<KoStyleChar>> document;
  document.ParseStream<rapidjson::kParseDefaultFlags, rapidjson::AutoUTF<unsigned>>(characters);
  std::fclose(file);
  return !document.HasParseError();
}

}  // namespace

std::size_t RapidjsonParse::read() {
  std::size_t parsed = 0;
  for (const std::string& path : paths_) parsed += parse(path);
  return parsed;
}

}  // namespace bench
