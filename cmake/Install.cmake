# What `cmake --install` puts where. The tree may be moved afterwards.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(packageFolder ${CMAKE_INSTALL_LIBDIR}/cmake/KoStyle)
install(TARGETS KoStyle EXPORT KoStyleTargets FILE_SET HEADERS)
install(EXPORT KoStyleTargets NAMESPACE KoStyle:: FILE KoStyleConfig.cmake DESTINATION ${packageFolder})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/KoStyleConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/KoStyleConfigVersion.cmake DESTINATION ${packageFolder})

# Up from the folder of the .pc file to the prefix.
set(pkgConfigFolder ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
file(RELATIVE_PATH pkgConfigPrefix /${pkgConfigFolder} /)
configure_file(${PROJECT_SOURCE_DIR}/cmake/kostyle.pc.in kostyle.pc @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/kostyle.pc DESTINATION ${pkgConfigFolder})

if(KOSTYLE_BUILD_TOOLS)
  file(RELATIVE_PATH libraryFolder /${CMAKE_INSTALL_BINDIR} /${CMAKE_INSTALL_LIBDIR})
  set_target_properties(kostyle PROPERTIES INSTALL_RPATH "$ORIGIN/${libraryFolder}")
  install(TARGETS kostyle)
  install(FILES docs/kostyle.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
endif()

install(FILES README.md NEWS.md LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(DIRECTORY docs/ DESTINATION ${CMAKE_INSTALL_DOCDIR} FILES_MATCHING PATTERN "*.md" PATTERN "*.svg")
install(DIRECTORY examples DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(FILES schema/kostyle.schema.json DESTINATION ${CMAKE_INSTALL_DATADIR}/kostyle)
