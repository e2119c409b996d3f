# korvel_room(NAME SOURCES... USES rooms and libraries...)
#
# A static library from the sources of this folder, with the folder on the include path of those
# who use it. Warnings are errors.
function(korvel_room name)
  cmake_parse_arguments(ROOM "" "" "SOURCES;USES" ${ARGN})
  add_library(${name} STATIC ${ROOM_SOURCES})
  target_include_directories(${name} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
  target_link_libraries(${name} PUBLIC ${ROOM_USES})
  korvel_warnings(${name})
endfunction()

# korvel_module(NAME SOURCES... USES rooms...)
#
# A shared library beside the game, which loads it when it is first needed.
function(korvel_module name)
  cmake_parse_arguments(MODULE "" "" "SOURCES;USES" ${ARGN})
  add_library(${name} MODULE ${MODULE_SOURCES})
  target_link_libraries(${name} PRIVATE ${MODULE_USES})
  korvel_warnings(${name})
  set_target_properties(${name} PROPERTIES
    LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/Korvel CXX_VISIBILITY_PRESET hidden)
endfunction()

function(korvel_warnings name)
  if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
    target_compile_options(${name} PRIVATE -Wall -Wextra -Wconversion -Wshadow -Werror)
  endif()
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    target_compile_options(${name} PRIVATE -Wno-restrict) # false alarms on std::string in GCC 12
  endif()
endfunction()
