#include "writing/saving.h"

#include <fmt/core.h>
#include <kostyle/helpers.h>

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
StyleFile writtenFile(const fs::path& path, const TemporaryDirectory& directory) {
  try {
    return StyleFile(path, directory);
  } catch (const Refused&) {
    if (const std::error_code error = writingError(path))
      throw Refused(
          fmt::format("{}: the file cannot be written: {}", shownPath(path), error.message()));
    throw;
  }
}

Losses readAgain(KoStyleStyle* style, const ChainCounts& written, const TemporaryDirectory& directory) {
  const StyleFile file = writtenFile(pathOf(TextView(Style_path(style))), directory);
  const ChainCounts read = chainCountsOf(file.style(), &Chain::stored);
  const bool sameNames =
      read.effects < written.effects - written.emptyEffects || read.parameters < written.parameters;
  return {written.emptyEffects > 0, sameNames};
}

void check(int error, const fs::path& path) {
  if (error != KOSTYLE_OK)
    throw Refused(fmt::format("{}: {}", shownPath(path), KoStyle_codeText(error)));
}

}  // namespace

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
  const ChainCounts counts = chainCountsOf(style, &Chain::mutableEffect);
  if (counts.effects > 0 && counts.emptyEffects == counts.effects)
    throw Refused("no effect has a parameter: the file could not be read again");
}

void printWritten(TextView id, const fs::path& path) {
  print(fmt::format("{}\t{}\n", printable(toUtf8(id)), printable(shownPath(path))));
  flushOutput();
}

Losses saveNew(const MutableStyle& mutableStyle, const fs::path& directory, bool pretty) {
  requireWritable(mutableStyle.handle());
  const ChainCounts counts = chainCountsOf(mutableStyle.handle(), &Chain::mutableEffect);
  const TemporaryDirectory temporary;
  int error = KOSTYLE_OK;
  KoStyleStyle* style = MutableStyle_save(mutableStyle.handle(), pretty, &error);
  check(error, directory);
  try {
    const Losses losses = readAgain(style, counts, temporary);
    printWritten(Style_id(style), pathOf(TextView(Style_path(style))));
    return losses;
  } catch (...) {
    UserStyle_remove(style);
    throw;
  }
}

}  // namespace tool
