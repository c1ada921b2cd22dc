# SPDX-License-Identifier: MIT
# One library per source folder.

# Lets TARGET include the headers of the source folder NAME as "NAME/file.h", and of no other folder:
# what a library does not link it cannot include either.
#
#   vexltags_headers(TARGET PUBLIC NAME)
function(vexltags_headers target visibility name)
  set(root ${PROJECT_BINARY_DIR}/include/${name})
  file(MAKE_DIRECTORY ${root})
  file(CREATE_LINK ${PROJECT_SOURCE_DIR}/src/${name} ${root}/${name} SYMBOLIC)
  target_include_directories(${target} ${visibility} ${root})
endfunction()

# Makes the static library of a source folder, with its unit tests gathered for the one test program:
#
#   vexltags_module(NAME SOURCES a.cc b.cc LINK vexltags_base TESTS a_test.cc)
#
# builds vexltags_NAME and records the tests; tests/CMakeLists.txt builds them.
function(vexltags_module name)
  cmake_parse_arguments(arg "" "" "SOURCES;LINK;TESTS" ${ARGN})
  list(TRANSFORM arg_SOURCES PREPEND ${CMAKE_CURRENT_LIST_DIR}/)
  add_library(vexltags_${name} STATIC ${arg_SOURCES})
  vexltags_headers(vexltags_${name} PUBLIC ${name})
  target_link_libraries(vexltags_${name} PUBLIC ${arg_LINK})
  vexltags_warnings(vexltags_${name})
  list(TRANSFORM arg_TESTS PREPEND ${CMAKE_CURRENT_LIST_DIR}/)
  set_property(GLOBAL APPEND PROPERTY VEXLTAGS_TEST_SOURCES ${arg_TESTS})
  set_property(GLOBAL APPEND PROPERTY VEXLTAGS_TEST_LIBRARIES vexltags_${name})
endfunction()
