# What is installed in a system, with what Debian wants to know of a package.

install(TARGETS Korvel RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(TARGETS klang LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}/korvel)
install(FILES ${book} ${names} DESTINATION ${CMAKE_INSTALL_DATADIR}/korvel)

set(share ${CMAKE_INSTALL_DATAROOTDIR})
install(FILES ${entry} DESTINATION ${share}/applications)
install(FILES ${metainfo} DESTINATION ${share}/metainfo)
foreach(icon ${icons})
  string(REGEX REPLACE ".*-([0-9]+)\\.png$" "\\1" size ${icon})
  install(FILES ${icon} DESTINATION ${share}/icons/hicolor/${size}x${size}/apps RENAME korvel.png)
endforeach()
install(FILES ${PROJECT_SOURCE_DIR}/assets/pictures/korvel.svg
  DESTINATION ${share}/icons/hicolor/scalable/apps)

# compressed(FILE NAME DESTINATION): to be installed as NAME.gz
function(compressed file name destination)
  execute_process(COMMAND gzip -9nc INPUT_FILE ${file} OUTPUT_FILE ${file}.gz
    COMMAND_ERROR_IS_FATAL ANY)
  install(FILES ${file}.gz DESTINATION ${destination} RENAME ${name}.gz)
endfunction()
foreach(page korvel.6 korvel.de.6)
  configure_file(${page}.in ${page} @ONLY)
endforeach()
compressed(${CMAKE_CURRENT_BINARY_DIR}/korvel.6 korvel.6 ${CMAKE_INSTALL_MANDIR}/man6)
compressed(${CMAKE_CURRENT_BINARY_DIR}/korvel.de.6 korvel.6 ${CMAKE_INSTALL_MANDIR}/de/man6)
set(changelog ${CMAKE_CURRENT_BINARY_DIR}/changelog)
file(CONFIGURE OUTPUT ${changelog} CONTENT "@debian_changelog@" @ONLY)
compressed(${changelog} changelog ${share}/doc/korvel)
install(FILES debian/copyright DESTINATION ${share}/doc/korvel)
install(FILES debian/lintian-overrides DESTINATION ${share}/lintian/overrides RENAME korvel)

set(CPACK_GENERATOR DEB)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_NAME korvel)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER ${maintainer})
set(CPACK_DEBIAN_PACKAGE_SECTION games)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "libqt6sql6-sqlite, fonts-liberation") # help; layout
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS qt6-wayland)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "board game of two fleets of boats that may bend")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"A board game for one player against the computer. Both hide a fleet of boats
that may bend, one to six cells long, and take turns dropping depth charges
until one fleet is sunk.

It has three sizes, a top ten for each, sounds, a help book, and an opponent
that does not cheat. Its window speaks German.")
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
