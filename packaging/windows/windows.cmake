# Included by the root's CMakeLists.txt in a build for Windows, which packaging/windows/build makes.

# Qt for Windows, with SQL in place of Qt Help (platform/help/reader/); programs that run during the
# build are the host's.
find_package(Qt6 6.4 REQUIRED COMPONENTS Widgets Sql)
find_package(Qt6ToolsTools REQUIRED PATHS ${QT_HOST_PATH_CMAKE_DIR}
  NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH)
add_executable(decode_pictures IMPORTED)
set_target_properties(decode_pictures PROPERTIES IMPORTED_LOCATION ${KORVEL_DECODE_PICTURES})

add_link_options(-static) # so no DLLs but those of Windows

# korvel_windows(NAME): icon, version information and manifest for an executable.
enable_language(RC)
set(CMAKE_RC_FLAGS -c65001) # UTF-8
function(korvel_windows name)
  set(resource ${CMAKE_CURRENT_BINARY_DIR}/${name}.rc)
  configure_file(${PROJECT_SOURCE_DIR}/packaging/windows/program.rc.in ${resource} @ONLY)
  target_sources(${name} PRIVATE ${resource})
  set_property(SOURCE ${resource} PROPERTY OBJECT_DEPENDS
    "${PROJECT_SOURCE_DIR}/assets/pictures/korvel.ico;${PROJECT_SOURCE_DIR}/packaging/windows/program.manifest")
endfunction()
