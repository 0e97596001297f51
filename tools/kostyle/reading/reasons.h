// Why files were refused, and what kinds are, in words.
#pragma once

#include <kostyle/kostyle.h>

#include <optional>
#include <string>
#include <vector>

#include "basics/paths.h"
#include "document/source_text.h"

namespace tool {

/// Where the syntax error of a refused file is. None when there is no such error, or it is gone.
std::optional<Position> syntaxErrorPlace(KoStyleCreationResult* result);

/// The file that keeps a refused one from having its identifier; empty when there is none.
std::string ownerOfIdentifier(KoStyleCreationResult* result, const std::vector<KoStyleStyle*>& styles);

/// "FILE:LINE:COLUMN: why it was refused", with what is known of the place. `shown` is the file,
/// `styles` are those that were read with it.
std::string refusal(const std::string& shown, KoStyleCreationResult* result,
                    const std::vector<KoStyleStyle*>& styles);

/// A value of enum KoStyleKind.
const char* kindText(int kind);

/// The files that were refused because they repeat an identifier.
std::vector<fs::path> filesThatRepeat(TextView id, const std::vector<KoStyleCreationResult*>& results);

}  // namespace tool
