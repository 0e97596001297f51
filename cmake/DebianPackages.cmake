# The Debian packages: which component goes into which, and what they say of themselves.
set(CPACK_GENERATOR DEB)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL library development tool)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SOURCE kostyle)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER ${CPACK_PACKAGE_CONTACT})
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)
set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/cmake/debian/complete.cmake)
set(CPACK_POST_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/cmake/debian/control.cmake)
# Each has its own in its description.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")

set(about "A style is a named set of attributes with an audio and a MIDI chain of effects,
stored as one JSON document in a file. KoStyle reads, walks, builds and saves
styles for hosts in C, C++ and Python.
")

set(CPACK_DEBIAN_LIBRARY_PACKAGE_NAME libkostyle${PROJECT_VERSION_MAJOR})
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SECTION libs)
set(CPACK_COMPONENT_LIBRARY_DESCRIPTION "styles for music applications (library)
${about}
This package has the library that programs need to run.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libkostyle-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SUGGESTS "pkg-config, cmake")
set(CPACK_COMPONENT_DEVELOPMENT_DEPENDS library)
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION "styles for music applications (headers and documentation)
${about}
This package has what programs are built with: headers, files for CMake and
pkg-config, documentation and examples.")

set(CPACK_DEBIAN_TOOL_PACKAGE_NAME kostyle)
set(CPACK_DEBIAN_TOOL_PACKAGE_SECTION sound)
set(CPACK_COMPONENT_TOOL_DEPENDS library)
set(CPACK_COMPONENT_TOOL_DESCRIPTION "list, show and change styles for music applications
${about}
This package has the command-line tool, and the format of style files as a
JSON Schema for editors.")

set(pythonSources ${PROJECT_SOURCE_DIR}/bindings/python)
if(EXISTS ${pythonSources})
  list(APPEND CPACK_COMPONENTS_ALL python)
  set(CPACK_DEBIAN_PYTHON_PACKAGE_NAME python3-kostyle)
  set(CPACK_DEBIAN_PYTHON_PACKAGE_SECTION python)
  set(CPACK_DEBIAN_PYTHON_PACKAGE_ARCHITECTURE all)
  set(CPACK_DEBIAN_PYTHON_PACKAGE_SHLIBDEPS OFF)
  set(CPACK_DEBIAN_PYTHON_PACKAGE_DEPENDS
      "python3 (>= 3.9), libkostyle${PROJECT_VERSION_MAJOR} (>= ${PROJECT_VERSION})")
  set(CPACK_DEBIAN_PYTHON_PACKAGE_CONTROL_EXTRA
      "${PROJECT_SOURCE_DIR}/cmake/debian/postinst;${PROJECT_SOURCE_DIR}/cmake/debian/prerm")
  set(CPACK_COMPONENT_PYTHON_DESCRIPTION "styles for music applications (Python 3)
${about}
This package has the module kostyle for Python 3.")

  # Where Debian's Python looks for what packages bring, whatever its version.
  set(pythonFolder lib/python3/dist-packages/kostyle)
  find_package(Python3 REQUIRED COMPONENTS Interpreter)
  file(GLOB headers CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/include/kostyle/*.h
       ${PROJECT_SOURCE_DIR}/include/kostyle/cpp/problem.hpp)
  add_custom_command(OUTPUT package-python/codes.py DEPENDS ${pythonSources}/generate.py ${headers} VERBATIM
                     COMMAND ${Python3_EXECUTABLE} -B ${pythonSources}/generate.py ${PROJECT_SOURCE_DIR}/include
                             ${CMAKE_CURRENT_BINARY_DIR}/package-python/codes.py)
  add_custom_target(package-python DEPENDS package-python/codes.py)
  add_dependencies(package-contents package-python)
  install(DIRECTORY ${pythonSources}/src/kostyle/ DESTINATION ${pythonFolder} COMPONENT python
          FILES_MATCHING PATTERN "*.py" PATTERN py.typed PATTERN __pycache__ EXCLUDE)
  install(FILES ${CMAKE_CURRENT_BINARY_DIR}/package-python/codes.py DESTINATION ${pythonFolder} COMPONENT python)
  install(FILES ${pythonSources}/README.md DESTINATION share/doc/python3-kostyle COMPONENT python)
endif()
