# SPDX-License-Identifier: MIT
# Warnings for hand-written code; generated recognisers are built without warnings.
option(VEXLTAGS_WERROR "Treat warnings as errors" OFF)

function(vexltags_warnings target)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wnon-virtual-dtor)
  if(VEXLTAGS_WERROR)
    target_compile_options(${target} PRIVATE -Werror)
  endif()
endfunction()
