# SPDX-License-Identifier: MIT
# One library per source folder, with its unit tests gathered for the one test program.
#
#   vexltags_module(NAME SOURCES a.cc b.cc LINK vexltags_base TESTS a_test.cc)
#
# makes the static library vexltags_NAME and remembers the tests; tests/CMakeLists.txt builds them.
function(vexltags_module name)
  cmake_parse_arguments(arg "" "" "SOURCES;LINK;TESTS" ${ARGN})
  list(TRANSFORM arg_SOURCES PREPEND ${CMAKE_CURRENT_LIST_DIR}/)
  add_library(vexltags_${name} STATIC ${arg_SOURCES})
  target_include_directories(vexltags_${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_link_libraries(vexltags_${name} PUBLIC ${arg_LINK})
  vexltags_warnings(vexltags_${name})
  list(TRANSFORM arg_TESTS PREPEND ${CMAKE_CURRENT_LIST_DIR}/)
  set_property(GLOBAL APPEND PROPERTY VEXLTAGS_TEST_SOURCES ${arg_TESTS})
  set_property(GLOBAL APPEND PROPERTY VEXLTAGS_TEST_LIBRARIES vexltags_${name})
endfunction()
