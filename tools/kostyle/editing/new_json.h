// A value that is to be put into a document.
#pragma once

#include <string>
#include <vector>

#include "basics/value.h"
#include "document/json_document.h"

namespace tool {

struct NewJson {
  struct Child;

  JsonKind kind = JsonKind::null;
  std::string text = {};  // of what is neither array nor object, as it stands in the document
  std::vector<Child> children = {};  // elements, or members
};

struct NewJson::Child {
  std::string key;  // as it stands in the document; empty for an element
  NewJson value;
};

/// A string in quotation marks, with the escapes that are needed; with `onlyAscii` for everything else
/// too.
std::string jsonString(TextView text, bool onlyAscii);

/// The value of a parameter; a float in its shortest form.
NewJson jsonOf(const Value& value, bool onlyAscii);

}  // namespace tool
