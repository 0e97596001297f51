// Prints the names of the styles in a directory: list_names_cpp DIRECTORY
#include <iostream>
#include <kostyle/kostyle.hpp>

int main(int argc, char* argv[]) {
  if (argc != 2) return 2;
  const auto manager = kostyle::Manager::create("list-names", argv[1], argv[1]);
  if (!manager) return std::cerr << manager.sentence() << '\n', 1;
  if (const auto read = manager->readSystemStyles(); !read) std::cerr << read.sentence() << '\n';
  for (const auto style : manager->systemStyles()) std::cout << style.name().utf8() << '\n';
  for (const auto result : manager->systemCreationResults())
    if (!result.taken())
      std::cerr << result.filePathText().utf8() << ": " << result.error().sentence() << '\n';
}
