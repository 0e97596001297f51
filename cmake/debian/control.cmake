# Mends what CPack cannot say of a shared library: Debian wants a trigger where CPack calls ldconfig itself, and
# packages of one version for several architectures beside each other.
foreach(package IN LISTS CPACK_PACKAGE_FILES)
  set(folder ${CPACK_TEMPORARY_DIRECTORY}/unpacked)
  file(REMOVE_RECURSE ${folder})
  execute_process(COMMAND dpkg-deb --raw-extract ${package} ${folder} COMMAND_ERROR_IS_FATAL ANY)
  if(package MATCHES "/libkostyle")
    file(READ ${folder}/DEBIAN/control control)
    string(STRIP "${control}" control)
    file(WRITE ${folder}/DEBIAN/control "${control}\nMulti-Arch: same\n")
  endif()
  if(EXISTS ${folder}/DEBIAN/shlibs)
    file(REMOVE ${folder}/DEBIAN/postinst ${folder}/DEBIAN/postrm)
    file(WRITE ${folder}/DEBIAN/triggers "activate-noawait ldconfig\n")
  endif()
  file(REMOVE ${package})
  execute_process(COMMAND dpkg-deb --root-owner-group -Zxz --build ${folder} ${package}
                  OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
endforeach()
