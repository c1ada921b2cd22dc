# SPDX-License-Identifier: MIT
# Optimisation by a profile and across source files, for packages: `script/build package` builds with
# `generate`, runs the program on samples (script/train) and builds again with `use`.
set(VEXLTAGS_PROFILE "none" CACHE STRING
    "none; generate: count what runs; use: optimise by these counts")

if(VEXLTAGS_PROFILE STREQUAL "generate")
  add_compile_options(-fprofile-generate)
  add_link_options(-fprofile-generate)
elseif(VEXLTAGS_PROFILE STREQUAL "use")
  # The samples do not run everything. Code without counts is optimised as in any other build.
  add_compile_options(-fprofile-use -fprofile-partial-training -Wno-missing-profile -flto=auto)
  add_link_options(-flto=auto)
elseif(NOT VEXLTAGS_PROFILE STREQUAL "none")
  message(FATAL_ERROR "VEXLTAGS_PROFILE must be none, generate or use, not ${VEXLTAGS_PROFILE}")
endif()
if(NOT VEXLTAGS_PROFILE STREQUAL "none" AND NOT CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  message(FATAL_ERROR "VEXLTAGS_PROFILE needs g++")
endif()
