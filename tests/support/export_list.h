// The list of exported names that the export tables are made from.
#pragma once

#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <stdexcept>
#include <string>

namespace test {

/// Each exported name with the entry point that it is bound to; its own name when it shares none.
inline std::map<std::string, std::string> readExportList() {
  std::ifstream file(std::filesystem::u8path(KOSTYLE_EXPORT_LIST));
  if (!file) throw std::runtime_error("cannot read the list of exports");
  std::map<std::string, std::string> entries;
  for (std::string line; std::getline(file, line);) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (line.empty() || line.front() == '#') continue;
    const std::size_t binding = line.find(" = ");
    const std::string name = line.substr(0, binding);
    const std::string entry = binding == std::string::npos ? name : line.substr(binding + 3);
    if (!entries.emplace(name, entry).second) throw std::runtime_error("listed twice: " + name);
  }
  return entries;
}

inline std::set<std::string> exportedNames() {
  std::set<std::string> names;
  for (const auto& [name, entry] : readExportList()) names.insert(name);
  return names;
}

}  // namespace test
