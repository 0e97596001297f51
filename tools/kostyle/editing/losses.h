// What a document has that another does not, which the library wrote for the same style.
#pragma once

#include <string>
#include <vector>

namespace tool {

/// Each part of the first document that the second lacks or has in another way, in words. Layout,
/// encoding, the order of members and values, and forms of one number are none.
std::vector<std::string> losses(const std::string& whole, const std::string& written);

/// What a document loses that becomes UTF-8 without a byte-order mark.
std::vector<std::string> encodingLosses(const std::string& whole);

}  // namespace tool
