// What a check found, in the forms that people and programs read.
#pragma once

#include <string>
#include <vector>

#include "checking/check_run.h"

namespace tool {

/// As compilers print it, with the line and a mark under what is meant.
std::string findingsText(const std::vector<FileReport>& reports, bool colors);

std::string findingsJson(const std::vector<FileReport>& reports);

/// SARIF 2.1.0.
std::string findingsSarif(const std::vector<FileReport>& reports);

/// Workflow commands of GitHub.
std::string findingsGithub(const std::vector<FileReport>& reports);

}  // namespace tool
