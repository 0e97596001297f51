// The parts that a style has several of, each with the functions that reach it.
#pragma once

#include <kostyle/kostyle.h>

#include <array>
#include <string>
#include <vector>

namespace tool {

/// A list of texts that describes a style.
struct TextList {
  const char* option;  // --genre, --add-genre, --delete-genre
  const char* title;
  const char* key;      // in JSON
  const char* mistake;  // why a text may be refused
  std::size_t (*count)(KoStyleStyle*);
  const KoStyleChar* (*at)(KoStyleStyle*, std::size_t);
  bool (*add)(KoStyleStyle*, const KoStyleChar*);
  bool (*remove)(KoStyleStyle*, const KoStyleChar*);
};

/// A chain of effects.
struct Chain {
  const char* name;
  const char* option;
  const char* title;
  const char* key;  // in JSON
  std::size_t (*count)(KoStyleStyle*);
  KoStyleEffect* (*stored)(KoStyleStyle*, std::size_t);
  KoStyleEffect* (*mutableEffect)(KoStyleStyle*, std::size_t);
  KoStyleEffect* (*insert)(KoStyleStyle*, std::size_t, const KoStyleChar*);
};

using TextLists = std::array<TextList, 5>;
using Chains = std::array<Chain, 2>;

const TextLists& textLists();
const Chains& chains();

/// As UTF-8.
std::vector<std::string> values(const TextList& list, KoStyleStyle* style);
std::vector<int> languages(KoStyleStyle* style);

}  // namespace tool
