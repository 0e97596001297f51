# What every target of the project is compiled with.
set(KOSTYLE_SANITIZE "" CACHE STRING "Sanitizers to build with, as -fsanitize= takes them")
option(KOSTYLE_COVERAGE "Count the lines that tests reach" OFF)

if(MSVC)
  # Standard C++, and a preprocessor that takes raw strings in arguments of macros. Interfaces are implemented by
  # inheriting from both sides, which is what C4250 is about; C4996 advises functions of Microsoft's own.
  add_compile_options(/W4 /wd4250 /utf-8 /permissive- /Zc:preprocessor $<$<COMPILE_LANGUAGE:CXX>:/Zc:__cplusplus>)
  add_compile_definitions(_CRT_SECURE_NO_WARNINGS)
  # Exported functions are extern "C" and may throw.
  string(REPLACE "/EHsc" "/EHs" CMAKE_CXX_FLAGS "${CMAKE_CXX_FLAGS}")
else()
  add_compile_options(-Wall -Wextra -Wpedantic -Wconversion -Wshadow -fvisibility=hidden)
  add_compile_options($<$<COMPILE_LANGUAGE:CXX>:-fvisibility-inlines-hidden>)
endif()

if(KOSTYLE_SANITIZE)
  add_compile_options(-fsanitize=${KOSTYLE_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${KOSTYLE_SANITIZE})
endif()
if(KOSTYLE_COVERAGE)
  add_compile_options(--coverage)
  add_link_options(--coverage)
endif()

# The same sources give the same binaries, wherever and whenever they are built.
if(CMAKE_BUILD_TYPE STREQUAL Release AND NOT MSVC)
  add_compile_options(-ffile-prefix-map=${PROJECT_BINARY_DIR}=. -ffile-prefix-map=${PROJECT_SOURCE_DIR}=.)
  if(MINGW)
    add_link_options(LINKER:--no-insert-timestamp)
  endif()
endif()
