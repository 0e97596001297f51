// The encodings that a style file may have, as the parser reads them from a UnitStream.
//
// Decoding is RapidJSON's, but runs of units that stand for themselves are copied at once. They are
// types of their own, because RapidJSON copies text without a look at it where source and target have
// the same encoding.
#pragma once

#include "format/json.h"

namespace Tesk::KoStyle {

struct Utf8Source : rapidjson::UTF8<char> {};
struct Utf16Source : rapidjson::UTF16<char16_t> {};
struct Utf32Source : rapidjson::UTF32<char32_t> {};

template <class Source>
struct TranscodeRuns {
  template <class Input, class Output>
  static bool Transcode(Input& input, Output& output) {
    if (input.copyPlain(output)) return true;
    unsigned codePoint = 0;
    if (!Source::Decode(input, &codePoint)) return false;
    json::Encoding::Encode(output, codePoint);
    return true;
  }
  template <class Input, class Output>
  static bool Validate(Input& input, Output& output) {
    return Transcode(input, output);
  }
};

}  // namespace Tesk::KoStyle

namespace rapidjson {

template <>
struct Transcoder<Tesk::KoStyle::Utf8Source, Tesk::KoStyle::json::Encoding>
    : Tesk::KoStyle::TranscodeRuns<Tesk::KoStyle::Utf8Source> {};
template <>
struct Transcoder<Tesk::KoStyle::Utf16Source, Tesk::KoStyle::json::Encoding>
    : Tesk::KoStyle::TranscodeRuns<Tesk::KoStyle::Utf16Source> {};
template <>
struct Transcoder<Tesk::KoStyle::Utf32Source, Tesk::KoStyle::json::Encoding>
    : Tesk::KoStyle::TranscodeRuns<Tesk::KoStyle::Utf32Source> {};

}  // namespace rapidjson
