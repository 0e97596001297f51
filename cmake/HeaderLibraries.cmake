# Header-only libraries from the system. Each is handed over by itself, through a folder of links, so
# that a cross build sees none of the other headers beside them.
function(kostyle_header_library name folder)
  find_path(KOSTYLE_${name}_INCLUDE_DIR NAMES ${folder} PATHS /usr/include NO_CMAKE_FIND_ROOT_PATH REQUIRED
            DOC "Folder that holds ${folder}/")
  set(isolated ${PROJECT_BINARY_DIR}/header-libraries/${name})
  file(MAKE_DIRECTORY ${isolated})
  file(CREATE_LINK ${KOSTYLE_${name}_INCLUDE_DIR}/${folder} ${isolated}/${folder} SYMBOLIC COPY_ON_ERROR)
  add_library(${name} INTERFACE IMPORTED GLOBAL)
  target_include_directories(${name} SYSTEM INTERFACE ${isolated})
endfunction()

kostyle_header_library(rapidjson rapidjson)
if(KOSTYLE_BUILD_TOOLS)
  kostyle_header_library(cli11 CLI)
  kostyle_header_library(fmt fmt)
  target_compile_definitions(fmt INTERFACE FMT_HEADER_ONLY)
endif()
