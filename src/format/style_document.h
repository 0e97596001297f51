// The names of style files and of what stands in them. Whoever reads or writes takes them from here.
#pragma once

#include "platform/text.h"

namespace Tesk::KoStyle {

inline constexpr TextView styleFileExtension = KOSTYLE_TEXT(".kostyle");

}  // namespace Tesk::KoStyle

// The keys of a style document.
namespace Tesk::KoStyle::key {

inline constexpr TextView id = KOSTYLE_TEXT("id");
inline constexpr TextView name = KOSTYLE_TEXT("name");
inline constexpr TextView vendor = KOSTYLE_TEXT("vendor");
inline constexpr TextView filter = KOSTYLE_TEXT("filter");
inline constexpr TextView audioEffect = KOSTYLE_TEXT("audioEffect");
inline constexpr TextView midiEffect = KOSTYLE_TEXT("midiEffect");

// In an effect object.
inline constexpr TextView parameter = KOSTYLE_TEXT("parameter");

// In the filter object, in this order.
inline constexpr TextView languages = KOSTYLE_TEXT("languages");
inline constexpr TextView singerGroups = KOSTYLE_TEXT("singerGroups");
inline constexpr TextView singerIDs = KOSTYLE_TEXT("singerIDs");
inline constexpr TextView genres = KOSTYLE_TEXT("genres");
inline constexpr TextView subGenres = KOSTYLE_TEXT("subGenres");
inline constexpr TextView colors = KOSTYLE_TEXT("colors");

}  // namespace Tesk::KoStyle::key
