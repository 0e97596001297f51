# Header-only libraries from the system. A cross build is handed each by itself, through a folder with one
# link, so that it sees none of the other headers beside them.
function(kostyle_header_library name folder header)
  find_path(KOSTYLE_${name}_INCLUDE_DIR NAMES ${folder}/${header} PATHS /usr/include NO_CMAKE_FIND_ROOT_PATH REQUIRED
            DOC "Folder that holds ${folder}/")
  set(directory ${KOSTYLE_${name}_INCLUDE_DIR})
  if(CMAKE_CROSSCOMPILING)
    set(directory ${PROJECT_BINARY_DIR}/header-libraries/${name})
    file(MAKE_DIRECTORY ${directory})
    file(CREATE_LINK ${KOSTYLE_${name}_INCLUDE_DIR}/${folder} ${directory}/${folder} SYMBOLIC)
  endif()
  add_library(kostyle-${name} INTERFACE IMPORTED GLOBAL)
  target_include_directories(kostyle-${name} SYSTEM INTERFACE ${directory})
endfunction()

kostyle_header_library(rapidjson rapidjson document.h)
if(KOSTYLE_BUILD_TOOLS)
  kostyle_header_library(cli11 CLI CLI.hpp)
  kostyle_header_library(fmt-headers fmt format.h)
endif()
if(KOSTYLE_BUILD_BENCHMARKS)
  kostyle_header_library(nlohmann-json nlohmann json.hpp)
endif()
