# SPDX-License-Identifier: MIT
# Finds the languages. Each has a grammar, src/grammars/NAME.g, and a folder of the same name in src;
# that of the grammar main is cfamily.
file(GLOB VEXLTAGS_LANGUAGES CONFIGURE_DEPENDS RELATIVE ${PROJECT_SOURCE_DIR}/src/grammars
     ${PROJECT_SOURCE_DIR}/src/grammars/*.g)
list(TRANSFORM VEXLTAGS_LANGUAGES REPLACE "\\.g$" "")

# Sets VARIABLE to the name of the folder of a language.
function(vexltags_language_folder language variable)
  string(REGEX REPLACE "^main$" "cfamily" folder ${language})
  set(${variable} ${folder} PARENT_SCOPE)
endfunction()
