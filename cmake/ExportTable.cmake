# Gives a shared library the export table that a list of names describes: src/api/exports.txt.
#
# Windows: a module definition file. ELF: a version script that hides everything else, and one symbol
# definition for each name that is bound to another entry point.
function(kostyle_export_table target list)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${list})
  file(STRINGS ${list} lines REGEX "^[A-Za-z]")
  set(def "EXPORTS\n")
  set(map "{\n  global:\n")
  set(asked)
  set(bindings)
  foreach(line IN LISTS lines)
    string(REGEX REPLACE " *= *" "=" entry "${line}")
    string(REGEX REPLACE "=.*" "" name "${entry}")
    string(REGEX REPLACE ".*=" "" definition "${entry}")
    # Optimizing at link time would drop what only a module definition file asks for.
    list(APPEND asked "LINKER:--undefined=${definition}")
    string(APPEND def "  ${entry}\n")
    string(APPEND map "    ${name};\n")
    if(entry MATCHES "=")
      list(APPEND bindings "LINKER:--defsym=${entry}")
    endif()
  endforeach()
  string(APPEND map "  local: *;\n};\n")
  list(REMOVE_DUPLICATES asked)

  if(WIN32)
    file(CONFIGURE OUTPUT ${target}.def CONTENT "${def}" @ONLY)
    target_sources(${target} PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/${target}.def)
    if(MINGW)
      target_link_options(${target} PRIVATE ${asked})
    endif()
  else()
    file(CONFIGURE OUTPUT ${target}.map CONTENT "${map}" @ONLY)
    target_link_options(${target} PRIVATE ${bindings}
                        LINKER:--version-script=${CMAKE_CURRENT_BINARY_DIR}/${target}.map)
    set_target_properties(${target} PROPERTIES LINK_DEPENDS ${CMAKE_CURRENT_BINARY_DIR}/${target}.map)
  endif()
endfunction()
