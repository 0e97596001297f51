# The packages that CPack makes: Debian's, or an archive of a build for Windows.
if(NOT KOSTYLE_BUILD_TOOLS OR NOT (WIN32 OR KOSTYLE_DEBIAN_PACKAGES))
  return()
endif()
set(CPACK_PACKAGE_NAME KoStyle)
set(CPACK_PACKAGE_VENDOR "The KoStyle authors")
set(CPACK_PACKAGE_CONTACT "The KoStyle authors <kostyle@kostyle.invalid>")
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PROJECT_CONFIG_FILE ${PROJECT_SOURCE_DIR}/cmake/PackageTime.cmake)
set(CPACK_KOSTYLE_SOURCE_DIR ${PROJECT_SOURCE_DIR})

add_custom_target(package-contents DEPENDS KoStyle kostyle)
if(WIN32)
  set(CPACK_GENERATOR ZIP)
  set(CPACK_PACKAGE_FILE_NAME KoStyle-${PROJECT_VERSION}-windows-x86_64)
  set(CPACK_POST_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/cmake/RepackArchive.cmake)
  # What is compiled or linked into DLL and tool, with its licence.
  foreach(part rapidjson-dev libcli11-dev libfmt-dev g++-mingw-w64-x86-64-posix mingw-w64-x86-64-dev)
    install(FILES /usr/share/doc/${part}/copyright DESTINATION ${CMAKE_INSTALL_DOCDIR}/third-party
            RENAME ${part}.txt COMPONENT license OPTIONAL)
  endforeach()
else()
  include(${PROJECT_SOURCE_DIR}/cmake/DebianPackages.cmake)
endif()
include(CPack)
