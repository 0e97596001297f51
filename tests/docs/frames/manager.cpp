#include <algorithm>
#include <fstream>
#include <iostream>
#include <iterator>
#include <kostyle/kostyle.hpp>
#include <limits>
#include <string>
#include <thread>
#include <variant>
#include <vector>

int main(int argc, char* argv[]) {
  if (argc != 3) return 2;
  const auto created = kostyle::Manager::create("guide", argv[1], argv[2]);
  if (!created || !created->readSystemStyles() || !created->readUserStyles()) return 1;
  const kostyle::Manager& manager = *created;
  /* fragment */
}
