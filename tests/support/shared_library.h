// The built shared library as the system's loader and its file see it.
#pragma once

#include <cstring>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

#include "support/loaded_library.h"
#if !defined(_WIN32)
#include <elf.h>
#include <link.h>

#include "support/temporary_directory.h"
#endif

namespace test {

/// The library that the program runs with, by the file name that the loader knows it by.
class SharedLibrary {
 public:
  explicit SharedLibrary(const std::string& name) : library_(name.c_str()) {
    if (!library_.handle()) throw std::runtime_error("cannot load " + name);
  }
  SharedLibrary(const SharedLibrary&) = delete;
  SharedLibrary& operator=(const SharedLibrary&) = delete;
  ~SharedLibrary() { library_.unload(); }

  /// The address of an exported name; null when there is none.
  const void* address(const std::string& name) const { return library_.address(name.c_str()); }

#if defined(_WIN32)
  /// All names that the library exports.
  std::set<std::string> names() const {
    const auto* const base = reinterpret_cast<const unsigned char*>(library_.handle());
    const auto& dos = at<IMAGE_DOS_HEADER>(base, 0);
    const auto& headers = at<IMAGE_NT_HEADERS>(base, static_cast<std::size_t>(dos.e_lfanew));
    const auto& entry = headers.OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_EXPORT];
    const auto& table = at<IMAGE_EXPORT_DIRECTORY>(base, entry.VirtualAddress);
    const auto* const offsets = &at<DWORD>(base, table.AddressOfNames);
    std::set<std::string> result;
    for (DWORD i = 0; i < table.NumberOfNames; ++i) result.insert(&at<char>(base, offsets[i]));
    return result;
  }
#else
  /// All names that the library exports.
  std::set<std::string> names() const {
    const link_map* map = nullptr;
    if (dlinfo(library_.handle(), RTLD_DI_LINKMAP, &map) != 0) throw std::runtime_error("no link map");
    const std::string file = readFile(map->l_name);
    const auto* const base = reinterpret_cast<const unsigned char*>(file.data());
    const auto& header = at<ElfW(Ehdr)>(base, 0);
    std::set<std::string> result;
    for (std::size_t i = 0; i < header.e_shnum; ++i) {
      const auto& section = at<ElfW(Shdr)>(base, header.e_shoff + i * sizeof(ElfW(Shdr)));
      if (section.sh_type != SHT_DYNSYM) continue;
      const auto& texts = at<ElfW(Shdr)>(base, header.e_shoff + section.sh_link * sizeof(ElfW(Shdr)));
      for (std::size_t offset = 0; offset < section.sh_size; offset += sizeof(ElfW(Sym))) {
        const auto& symbol = at<ElfW(Sym)>(base, section.sh_offset + offset);
        if (symbol.st_shndx != SHN_UNDEF)
          result.insert(&at<char>(base, texts.sh_offset + symbol.st_name));
      }
    }
    return result;
  }
#endif

 private:
  template <class Part>
  static const Part& at(const unsigned char* base, std::size_t offset) {
    return *reinterpret_cast<const Part*>(base + offset);
  }

  LoadedLibrary library_;
};

}  // namespace test
