# Gives a DLL or a program for Windows the resource that tells its version.
function(kostyle_windows_version target fileName fileType fileDescription)
  if(NOT WIN32)
    return()
  endif()
  configure_file(${PROJECT_SOURCE_DIR}/cmake/version.rc.in ${target}.rc @ONLY)
  target_sources(${target} PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/${target}.rc)
endfunction()
