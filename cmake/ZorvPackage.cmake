# Where the programs find the installation's data, what is installed where, and the Debian package
# (cpack -G DEB in the build folder; tools/check-package builds it and tries it out).
if(NOT TARGET zorvctl)
  return()
endif()

# In the build tree the data lie beside the programs as they do in an installation.
foreach(folder cli desktop)
  file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/${folder})
  file(CREATE_LINK ${CMAKE_SOURCE_DIR}/Sablony ${CMAKE_BINARY_DIR}/${folder}/Sablony SYMBOLIC)
endforeach()
file(CREATE_LINK ${CMAKE_SOURCE_DIR}/packaging/RestartZorv.exe ${CMAKE_BINARY_DIR}/desktop/RestartZorv.exe SYMBOLIC)

# The folder of the programs and their data; /usr/bin holds links into it.
set(folder lib/zorv)
set(programs zorvctl zorv-ukazka)
install(TARGETS zorvctl DESTINATION ${folder})
install(PROGRAMS tools/sample-company DESTINATION ${folder} RENAME zorv-ukazka)
install(DIRECTORY Sablony DESTINATION ${folder})
install(DIRECTORY examples/ukazka22 DESTINATION ${folder}/examples)
install(FILES packaging/copyright DESTINATION share/doc/zorv)
if(TARGET zorv)
  list(APPEND programs zorv)
  install(TARGETS zorv DESTINATION ${folder})
  install(PROGRAMS packaging/RestartZorv.exe DESTINATION ${folder})
  install(FILES packaging/zorv.desktop DESTINATION share/applications)
  install(FILES packaging/zorv.svg DESTINATION share/icons/hicolor/scalable/apps)
  install(FILES packaging/cz.zorv.zorv.metainfo.xml DESTINATION share/metainfo)
endif()
foreach(program ${programs})
  file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/links)
  file(CREATE_LINK ../${folder}/${program} ${CMAKE_BINARY_DIR}/links/${program} SYMBOLIC)
  install(FILES ${CMAKE_BINARY_DIR}/links/${program} DESTINATION bin)
endforeach()

set(manual ${CMAKE_BINARY_DIR}/zorvctl.1.gz)
add_custom_command(OUTPUT ${manual}
  COMMAND gzip -9nc ${CMAKE_SOURCE_DIR}/packaging/zorvctl.1 > ${manual}
  DEPENDS ${CMAKE_SOURCE_DIR}/packaging/zorvctl.1 VERBATIM)
add_custom_target(manual ALL DEPENDS ${manual})
install(FILES ${manual} DESTINATION share/man/man1)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME zorv)
set(CPACK_PACKAGE_VENDOR "The zorv authors")
set(CPACK_PACKAGE_CONTACT "The zorv authors <zorv@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "payroll of Czech employers")
set(CPACK_PACKAGE_DESCRIPTION
  "Keeps workers' cards and gross wages, runs the pay with social and
health insurance and income tax, and makes a pay sheet of which every
amount can explain itself. Contains the desktop program zorv, the
command-line tool zorvctl and a sample company. The programs speak Czech.")
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The desktop loads them as plugins or data, which no library dependency shows.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "libqt6svg6, fonts-dejavu-core")
include(CPack)
