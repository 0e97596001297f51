# What `cmake --install` puts where. The tree may be moved afterwards. The components are the packages that
# cmake/Packages.cmake makes.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(packageFolder ${CMAKE_INSTALL_LIBDIR}/cmake/KoStyle)
install(TARGETS KoStyle EXPORT KoStyleTargets
        RUNTIME COMPONENT library
        LIBRARY COMPONENT library NAMELINK_COMPONENT development
        ARCHIVE COMPONENT development
        FILE_SET HEADERS COMPONENT development)
get_target_property(importFiles KoStyle KOSTYLE_IMPORT_FILES)
if(importFiles)
  install(FILES ${importFiles} DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development)
endif()
install(EXPORT KoStyleTargets NAMESPACE KoStyle:: DESTINATION ${packageFolder} COMPONENT development)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/KoStyleConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES cmake/KoStyleConfig.cmake ${PROJECT_BINARY_DIR}/KoStyleConfigVersion.cmake
        DESTINATION ${packageFolder} COMPONENT development)

# All relative to each other, so that the tree may be moved.
set(pkgConfigFolder ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
file(RELATIVE_PATH prefixFromPkgConfig ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
file(RELATIVE_PATH libraryFromPrefix ${CMAKE_INSTALL_PREFIX} ${CMAKE_INSTALL_FULL_LIBDIR})
file(RELATIVE_PATH includeFromPrefix ${CMAKE_INSTALL_PREFIX} ${CMAKE_INSTALL_FULL_INCLUDEDIR})
file(RELATIVE_PATH libraryFromTool ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR})
configure_file(${PROJECT_SOURCE_DIR}/cmake/kostyle.pc.in kostyle.pc @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/kostyle.pc DESTINATION ${pkgConfigFolder} COMPONENT development)

if(KOSTYLE_BUILD_TOOLS)
  set_target_properties(kostyle PROPERTIES INSTALL_RPATH "$ORIGIN/${libraryFromTool}")
  install(TARGETS kostyle COMPONENT tool)
  if(NOT WIN32)
    set(told ${PROJECT_BINARY_DIR}/tools/kostyle/told)
    install(FILES ${told}/kostyle.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT tool)
    # Where Debian's shells look.
    foreach(place bash-completion/completions/kostyle zsh/vendor-completions/_kostyle
            fish/vendor_completions.d/kostyle.fish)
      get_filename_component(folder ${place} DIRECTORY)
      get_filename_component(name ${place} NAME)
      install(FILES ${told}/${name} DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/${folder} COMPONENT tool)
    endforeach()
  endif()
endif()
install(FILES schema/kostyle.schema.json DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/kostyle COMPONENT tool)

# In the order of the sources, so that the documents name each other's places rightly.
install(FILES README.md NEWS.md DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT development)
install(FILES LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT license)
install(DIRECTORY docs DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT development
        FILES_MATCHING PATTERN "*.md" PATTERN "*.svg" PATTERN "*.png" PATTERN site EXCLUDE)
install(DIRECTORY examples DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT development
        PATTERN __pycache__ EXCLUDE PATTERN .gitattributes EXCLUDE)
