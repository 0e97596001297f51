// Identifiers that several files have.
#pragma once

#include <vector>

#include "checking/finding.h"
#include "checking/inputs.h"

namespace tool {

/// Adds a finding to the report of each file that an application refuses because another has its
/// identifier, when it reads the files in their order. Each report is that of the input at its place.
void findRepeatedIdentifiers(const std::vector<Input>& inputs, std::vector<FileReport>& reports);

}  // namespace tool
