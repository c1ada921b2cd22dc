# SPDX-License-Identifier: MIT
# Sanitizers for the whole build, generated code included.
set(VEXLTAGS_SANITIZE "none" CACHE STRING "none, or a list for -fsanitize= such as address,undefined")

if(NOT VEXLTAGS_SANITIZE STREQUAL "none")
  add_compile_options(-fsanitize=${VEXLTAGS_SANITIZE} -fno-omit-frame-pointer
                      -fno-sanitize-recover=all)
  add_link_options(-fsanitize=${VEXLTAGS_SANITIZE})
  # The runtime calls generated lexers through function pointers of a different type.
  if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    add_compile_options($<$<COMPILE_LANGUAGE:CXX>:-fno-sanitize=function>)
  endif()
endif()
