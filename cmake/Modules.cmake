# SPDX-License-Identifier: MIT
# One library per source folder.

# Lets TARGET include the headers of the source folder NAME as "NAME/file.h", but no other folder's. A
# library can thus include only the headers of libraries that it links.
#
#   vexltags_headers(TARGET PUBLIC NAME)
function(vexltags_headers target visibility name)
  set(root ${PROJECT_BINARY_DIR}/include/${name})
  file(MAKE_DIRECTORY ${root})
  file(CREATE_LINK ${PROJECT_SOURCE_DIR}/src/${name} ${root}/${name} SYMBOLIC)
  target_include_directories(${target} ${visibility} ${root})
endfunction()

# Adds the static library of a source folder and registers its unit tests for the test program:
#
#   vexltags_module(NAME SOURCES a.cc b.cc LINK vexltags_base TESTS a_test.cc)
#
# defines vexltags_NAME and records the tests, which tests/CMakeLists.txt builds, and the folder, whose
# includes a test checks against LINK.
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
  set_property(GLOBAL APPEND PROPERTY VEXLTAGS_MODULES ${name})
endfunction()
