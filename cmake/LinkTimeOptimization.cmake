# Optimizes a shared library over all its object libraries when it is linked, in release builds without
# instrumentation.
#
# The objects hold machine code beside it, so that test programs are made of them without optimizing once more.
function(kostyle_optimize_at_link_time library)
  if(NOT CMAKE_BUILD_TYPE STREQUAL Release OR KOSTYLE_SANITIZE OR KOSTYLE_COVERAGE)
    return()
  endif()
  include(CheckIPOSupported)
  check_ipo_supported(RESULT supported LANGUAGES CXX)
  if(NOT supported)
    return()
  endif()
  set_target_properties(${library} ${ARGN} PROPERTIES INTERPROCEDURAL_OPTIMIZATION ON)
  if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
    foreach(objects IN LISTS ARGN)
      target_compile_options(${objects} PRIVATE -ffat-lto-objects)
    endforeach()
  endif()
endfunction()
