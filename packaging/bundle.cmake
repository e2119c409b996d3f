# The portable bundle.

if(WIN32)
  include(windows/texts.cmake)
  install(TARGETS Korvel RUNTIME DESTINATION .)
  install(FILES ${KORVEL_LICENCES} DESTINATION .)
else()
  include(texts.cmake)
  install(TARGETS Korvel klang RUNTIME DESTINATION . LIBRARY DESTINATION .)
endif()
configure_file(LIESMICH.txt.in LIESMICH.txt @ONLY)
install(FILES ${book} ${names}
  ${PROJECT_SOURCE_DIR}/LICENSE
  ${PROJECT_SOURCE_DIR}/CHANGELOG.md
  ${CMAKE_CURRENT_BINARY_DIR}/LIESMICH.txt
  DESTINATION .)

if(UNIX AND NOT APPLE) # what a freedesktop menu wants
  install(FILES ${entry} ${metainfo} DESTINATION .)
  install(FILES ${icons} DESTINATION icons)
  install(PROGRAMS menue DESTINATION .)
endif()

set(CPACK_GENERATOR TGZ)
set(CPACK_PACKAGE_FILE_NAME
  Korvel-${PROJECT_VERSION}-${CMAKE_SYSTEM_NAME}-${CMAKE_SYSTEM_PROCESSOR})
if(WIN32)
  set(CPACK_PACKAGE_FILE_NAME Korvel-${PROJECT_VERSION}-Windows)
endif()
