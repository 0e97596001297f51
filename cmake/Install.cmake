# What `cmake --install` puts where. The tree may be moved afterwards.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(packageFolder ${CMAKE_INSTALL_LIBDIR}/cmake/KoStyle)
install(TARGETS KoStyle EXPORT KoStyleTargets FILE_SET HEADERS)
install(EXPORT KoStyleTargets NAMESPACE KoStyle:: FILE KoStyleConfig.cmake DESTINATION ${packageFolder})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/KoStyleConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/KoStyleConfigVersion.cmake DESTINATION ${packageFolder})

# All relative to each other, so that the tree may be moved.
set(pkgConfigFolder ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
file(RELATIVE_PATH prefixFromPkgConfig ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
file(RELATIVE_PATH libraryFromPrefix ${CMAKE_INSTALL_PREFIX} ${CMAKE_INSTALL_FULL_LIBDIR})
file(RELATIVE_PATH includeFromPrefix ${CMAKE_INSTALL_PREFIX} ${CMAKE_INSTALL_FULL_INCLUDEDIR})
file(RELATIVE_PATH libraryFromTool ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR})
configure_file(${PROJECT_SOURCE_DIR}/cmake/kostyle.pc.in kostyle.pc @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/kostyle.pc DESTINATION ${pkgConfigFolder})

if(KOSTYLE_BUILD_TOOLS)
  set_target_properties(kostyle PROPERTIES INSTALL_RPATH "$ORIGIN/${libraryFromTool}")
  install(TARGETS kostyle)
  install(FILES ${PROJECT_SOURCE_DIR}/docs/kostyle.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
endif()

set(docFolder ${CMAKE_INSTALL_DATAROOTDIR}/doc/KoStyle)
install(FILES README.md NEWS.md LICENSE DESTINATION ${docFolder})
install(DIRECTORY docs/ DESTINATION ${docFolder} FILES_MATCHING PATTERN "*.md" PATTERN "*.svg")
install(DIRECTORY examples DESTINATION ${docFolder})
install(FILES schema/kostyle.schema.json DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/kostyle)
