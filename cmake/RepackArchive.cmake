# Packs anew what CPack has packed, which depends on the file system: the order of the files, and their times of access.
find_package(Python3 REQUIRED COMPONENTS Interpreter)
file(REMOVE ${CPACK_PACKAGE_FILES})
execute_process(COMMAND ${Python3_EXECUTABLE} -B ${CPACK_KOSTYLE_SOURCE_DIR}/cmake/pack_zip.py
                        ${CPACK_TEMPORARY_DIRECTORY} ${CPACK_PACKAGE_FILES} COMMAND_ERROR_IS_FATAL ANY)
