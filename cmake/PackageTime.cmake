# The one time that all files of a package carry, so that the same sources give the same package: as the
# environment says, or that of the last commit, or what a release's archive has kept of it.
if(NOT DEFINED ENV{SOURCE_DATE_EPOCH})
  execute_process(COMMAND git -C ${CPACK_KOSTYLE_SOURCE_DIR} log -1 --format=%ct
                  OUTPUT_VARIABLE time OUTPUT_STRIP_TRAILING_WHITESPACE RESULT_VARIABLE failure ERROR_QUIET)
  if(failure)
    file(TIMESTAMP ${CPACK_KOSTYLE_SOURCE_DIR}/include/kostyle/version.h time %s UTC)
  endif()
  set(ENV{SOURCE_DATE_EPOCH} ${time})
endif()
