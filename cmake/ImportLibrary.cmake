# Gives a DLL that MinGW links the import library for linkers of MSVC's kind too, and the module definition file
# that it is made of, from a list of names: src/api/exports.txt. Both are named after the target.
function(kostyle_import_library target list)
  if(NOT MINGW)
    return()
  endif()
  find_program(KOSTYLE_LLVM_DLLTOOL llvm-dlltool DOC "Makes import libraries for linkers of MSVC's kind")
  if(NOT KOSTYLE_LLVM_DLLTOOL)
    message(STATUS "No llvm-dlltool: ${target}.lib for linkers of MSVC's kind is not made")
    return()
  endif()
  # Where a name leads inside the DLL is no matter of a host's.
  file(STRINGS ${list} names REGEX "^[A-Za-z]")
  list(TRANSFORM names REPLACE " *=.*" "")
  list(JOIN names "\n  " names)
  set(definition ${CMAKE_CURRENT_BINARY_DIR}/import/${target}.def)
  set(library ${CMAKE_CURRENT_BINARY_DIR}/import/${target}.lib)
  file(CONFIGURE OUTPUT ${definition} CONTENT "LIBRARY ${target}.dll\nEXPORTS\n  ${names}\n" @ONLY)
  add_custom_command(OUTPUT ${library} DEPENDS ${definition} VERBATIM
                     COMMAND ${KOSTYLE_LLVM_DLLTOOL} -m i386:x86-64 -d ${definition} -l ${library})
  add_custom_target(${target}-import-library DEPENDS ${library})
  add_dependencies(${target} ${target}-import-library)
  set_property(TARGET ${target} PROPERTY KOSTYLE_IMPORT_FILES ${definition} ${library})
endfunction()
