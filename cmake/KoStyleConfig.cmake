include(${CMAKE_CURRENT_LIST_DIR}/KoStyleTargets.cmake)

# The DLL comes with an import library for each kind of linker.
if(MSVC)
  get_target_property(configurations KoStyle::KoStyle IMPORTED_CONFIGURATIONS)
  foreach(configuration IN LISTS configurations)
    get_target_property(library KoStyle::KoStyle IMPORTED_IMPLIB_${configuration})
    string(REPLACE libKoStyle.dll.a KoStyle.lib library "${library}")
    set_target_properties(KoStyle::KoStyle PROPERTIES IMPORTED_IMPLIB_${configuration} "${library}")
  endforeach()
endif()
