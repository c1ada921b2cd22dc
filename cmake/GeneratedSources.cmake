# SPDX-License-Identifier: MIT
# Where the generated recognisers are: each grammar has a folder in VEXLTAGS_GENERATED. A source archive
# contains them, in VEXLTAGS_ARCHIVED; anywhere else VEXLTAGS_GENERATES is on, and the build makes them.
set(VEXLTAGS_ARCHIVED src/grammars/generated)
if(EXISTS ${PROJECT_SOURCE_DIR}/${VEXLTAGS_ARCHIVED})
  set(VEXLTAGS_GENERATES OFF)
  set(VEXLTAGS_GENERATED ${PROJECT_SOURCE_DIR}/${VEXLTAGS_ARCHIVED})
else()
  set(VEXLTAGS_GENERATES ON)
  set(VEXLTAGS_GENERATED ${PROJECT_BINARY_DIR}/src/grammars)
endif()
