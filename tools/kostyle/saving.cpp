#include "saving.h"

#include <fmt/format.h>

#include <cmath>

#include "code_texts.h"
#include "failure.h"
#include "style_file.h"
#include "text.h"

namespace tool {
namespace {

std::size_t countEffects(KoStyleStyle* style) {
  return Style_numAudioEffect(style) + Style_numMidiEffect(style);
}

std::size_t countEmptyEffects(KoStyleStyle* style) {
  std::size_t count = 0;
  for (const Chain& chain : chains())
    for (std::size_t i = 0; i < chain.count(style); ++i)
      if (Effect_numParameter(chain.editable(style, i)) == 0) ++count;
  return count;
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

// The library ends the file in front of what JSON cannot hold, without an error.
void requireWritable(KoStyleStyle* style) {
  requireUnicode(Style_name(style));
  for (const TextList& list : textLists())
    for (std::size_t i = 0; i < list.count(style); ++i) requireUnicode(list.at(style, i));
  for (const Chain& chain : chains())
    for (std::size_t i = 0; i < chain.count(style); ++i) {
      KoStyleEffect* effect = chain.editable(style, i);
      requireUnicode(Effect_id(effect));
      for (std::size_t j = 0; j < Effect_numParameter(effect); ++j)
        requireWritable(MutableEffect_parameter(effect, j));
    }
  const std::size_t effects = countEffects(style);
  if (effects > 0 && countEmptyEffects(style) == effects)
    throw Refused("no effect has a parameter: the file could not be read again");
}

// A full disk is no error to the library either.
void requireReadable(KoStyleStyle* style) { StyleFile(pathOf(TextView(Style_path(style)))); }

}  // namespace

KoStyleStyle* saveNew(const Workspace& workspace, bool pretty) {
  requireWritable(workspace.handle());
  int error = KOSTYLE_OK;
  KoStyleStyle* style = MutableStyle_save(workspace.handle(), pretty, &error);
  if (!style) throw Refused(codeText(error));
  try {
    requireReadable(style);
  } catch (...) {
    UserStyle_remove(style);
    throw;
  }
  return style;
}

void saveOver(const Workspace& workspace, KoStyleStyle* target, bool pretty) {
  requireWritable(workspace.handle());
  const TemporaryDirectory directory;
  const fs::path path = pathOf(TextView(Style_path(target)));
  const fs::path before = directory.path() / "before";
  fs::copy_file(path, before);
  int error = KOSTYLE_OK;
  if (!MutableStyle_overwrite(workspace.handle(), Style_id(target), pretty, &error))
    throw Refused(codeText(error));
  try {
    requireReadable(target);
  } catch (...) {
    fs::copy_file(before, path, fs::copy_options::overwrite_existing);
    throw;
  }
}

bool losesEffects(const Workspace& workspace) { return countEmptyEffects(workspace.handle()) > 0; }

void printWritten(KoStyleStyle* style) {
  fmt::print("{}\t{}\n", printable(toUtf8(Style_id(style))), printable(pathToUtf8(Style_path(style))));
}

}  // namespace tool
