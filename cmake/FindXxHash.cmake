# SPDX-License-Identifier: MIT
# Finds xxHash, which is used from its header alone. Defines XxHash::XxHash.
find_path(XxHash_INCLUDE_DIR xxhash.h)
mark_as_advanced(XxHash_INCLUDE_DIR)
include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(XxHash REQUIRED_VARS XxHash_INCLUDE_DIR
  REASON_FAILURE_MESSAGE "install libxxhash-dev")
if(XxHash_FOUND AND NOT TARGET XxHash::XxHash)
  add_library(XxHash::XxHash INTERFACE IMPORTED)
  target_include_directories(XxHash::XxHash SYSTEM INTERFACE ${XxHash_INCLUDE_DIR})
endif()
