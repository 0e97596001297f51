#include "writing/saving.h"

#include <fmt/core.h>
#include <kostyle/helpers.h>

#include <algorithm>
#include <cmath>
#include <exception>
#include <system_error>

#include "basics/failure.h"
#include "basics/files.h"
#include "basics/output.h"
#include "basics/text.h"
#include "reading/attributes.h"
#include "reading/style_file.h"

namespace tool {
namespace {

// A mutable style is walked through `mutableEffect`, one that was read through `stored`.
using EffectAt = KoStyleEffect* (*Chain::*)(KoStyleStyle*, std::size_t);

struct ChainCounts {
  std::size_t effects = 0;
  std::size_t emptyEffects = 0;
  std::size_t parameters = 0;
};

ChainCounts chainCountsOf(KoStyleStyle* style, EffectAt effectAt) {
  ChainCounts counts;
  for (const Chain& chain : chains())
    for (std::size_t i = 0; i < chain.count(style); ++i) {
      const std::size_t parameters = Effect_numParameter((chain.*effectAt)(style, i));
      ++counts.effects;
      if (parameters == 0) ++counts.emptyEffects;
      counts.parameters += parameters;
    }
  return counts;
}

void requireUnicode(const KoStyleChar* text) {
  if (!isUnicode(text))
    throw Refused(fmt::format("{}: a lone surrogate cannot be written", inQuotes(toUtf8(text))));
}

void requireWritable(KoStyleParameter* parameter) {
  requireUnicode(Parameter_name(parameter));
  requireUnicode(Parameter_valueString(parameter));
  if (!std::isfinite(Parameter_valueFloat(parameter)))
    throw Refused(fmt::format("parameter {}: an infinite value cannot be written",
                              inQuotes(toUtf8(Parameter_name(parameter)))));
}

// A full disk is no error to the library either: the file ends too early, and the system is asked why.
StyleFile writtenFile(const fs::path& path, const std::string& bytes) {
  try {
    return StyleFile(path, bytes);
  } catch (const Refused&) {
    if (const std::error_code error = writingError(path))
      throw Refused(
          fmt::format("{}: the file cannot be written: {}", shownPath(path), error.message()));
    throw;
  }
}

Losses readAgain(const fs::path& path, const std::string& bytes, const ChainCounts& written) {
  const StyleFile file = writtenFile(path, bytes);
  const ChainCounts read = chainCountsOf(file.style(), &Chain::stored);
  const bool sameNames =
      read.effects < written.effects - written.emptyEffects || read.parameters < written.parameters;
  return {written.emptyEffects > 0, sameNames};
}

}  // namespace

void requireParameter(const StyleContent& content) {
  const auto isBare = [](const EffectContent& effect) { return effect.parameters.empty(); };
  const auto isUseless = [&](const ChainContent& chain) {
    return std::all_of(chain.begin(), chain.end(), isBare);
  };
  const auto isEmpty = [](const ChainContent& chain) { return chain.empty(); };
  const auto& chains = content.chains;
  if (std::all_of(chains.begin(), chains.end(), isUseless) &&
      !std::all_of(chains.begin(), chains.end(), isEmpty))
    throw Refused("no effect has a parameter: the file could not be read again");
}

// The library ends the file in front of what JSON cannot hold, without an error.
void requireWritable(KoStyleStyle* style) {
  requireUnicode(Style_name(style));
  for (const TextList& list : textLists())
    for (std::size_t i = 0; i < list.count(style); ++i) requireUnicode(list.at(style, i));
  for (const Chain& chain : chains())
    for (std::size_t i = 0; i < chain.count(style); ++i) {
      KoStyleEffect* effect = chain.mutableEffect(style, i);
      requireUnicode(Effect_id(effect));
      for (std::size_t j = 0; j < Effect_numParameter(effect); ++j)
        requireWritable(MutableEffect_parameter(effect, j));
    }
}

void printWritten(TextView id, const fs::path& path) {
  print(fmt::format("{}\t{}\n", printable(toUtf8(id)), printable(shownPath(path))));
  flushOutput();
}

SavedStyle savedStyle(const StyleContent& content, bool pretty) {
  const TemporaryDirectory directory;
  StyleDirectories directories;
  directories.user = directory.path();
  const Manager manager(directories);
  MutableStyle mutableStyle(manager);
  mutableStyle.setName(content.name);
  mutableStyle.fill(content);
  requireParameter(content);
  requireWritable(mutableStyle.handle());
  const ChainCounts counts = chainCountsOf(mutableStyle.handle(), &Chain::mutableEffect);
  int error = KOSTYLE_OK;
  KoStyleStyle* style = MutableStyle_save(mutableStyle.handle(), pretty, &error);
  if (error != KOSTYLE_OK) throw Refused(KoStyle_codeText(error));
  const fs::path file = pathOf(TextView(Style_path(style)));
  const std::string bytes = readBytes(file);
  return {Style_id(style), bytes, readAgain(file, bytes, counts)};
}

}  // namespace tool
