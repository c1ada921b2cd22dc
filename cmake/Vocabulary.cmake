# SPDX-License-Identifier: MIT
# The tokens of a grammar are listed once, in src/grammars/NAME.vocab. The functions below derive from
# that list what the recogniser generator and hand-written code read. A line of it is empty, a comment,
# or a token with its number:
#
#   ID=14                  a token, by its name in the grammar
#   LESSTHAN=16 // Less    the same, with a different name in C++
#   'class'=20             a token, by its text in the grammar
#   '->'=22 // Arrow       the same, with a name in C++

# Reads VOCABULARY for a language whose name in C++ is LANGUAGE, such as Main. Sets in the caller
#
#   antlr_tokens       the text of the generator's token file
#   cxx_enumerators    the enumerators, a line each: kMainId = 14,
#   cxx_literals       the literals, a line each: {"class", 98},
#   token_type_count   the highest number plus one
#
# The name in C++ is the one in the comment; without a comment the name in the grammar, less a prefix
# such as SW_, or for a literal that is a word Kw_ and the word. Other literals, and words that begin with
# an underscore, have no name.
function(vexltags_read_vocabulary vocabulary language)
  file(READ ${vocabulary} rest)
  set(names "")
  set(literals "")
  set(cxx_enumerators "")
  set(cxx_literals "")
  set(highest 3)
  # Cut line by line: brackets and semicolons would upset a list.
  while(rest MATCHES "^([^\n]*)\n(.*)$")
    set(line "${CMAKE_MATCH_1}")
    set(rest "${CMAKE_MATCH_2}")
    if(line MATCHES "^(//.*)?$")
      continue()
    endif()
    if(NOT line MATCHES "^([A-Za-z_][A-Za-z_0-9]*|'.+')=([0-9]+)( *// ([A-Za-z0-9_]+))?$")
      message(FATAL_ERROR "${vocabulary}: not a token: ${line}")
    endif()
    set(token "${CMAKE_MATCH_1}")
    set(number ${CMAKE_MATCH_2})
    set(cxx_name "${CMAKE_MATCH_4}")
    if(number GREATER highest)
      set(highest ${number})
    endif()
    if(token MATCHES "^'(.*)'$")
      set(text "${CMAKE_MATCH_1}")
      # The generator needs a name for each literal too, in this form.
      string(APPEND names "T__${number}=${number}\n")
      string(APPEND literals "${token}=${number}\n")
      if(cxx_name STREQUAL "" AND text MATCHES "^[A-Za-z0-9][A-Za-z_0-9]*$")
        set(cxx_name "Kw_${text}")
      endif()
      string(REPLACE "\"" "\\\"" text "${text}")
      string(APPEND cxx_literals "    {\"${text}\", ${number}},\n")
    else()
      string(APPEND names "${token}=${number}\n")
      if(cxx_name STREQUAL "")
        string(REGEX REPLACE "^[A-Z][A-Z]_" "" cxx_name "${token}")
      endif()
    endif()
    if(NOT cxx_name STREQUAL "")
      string(APPEND cxx_enumerators "  k${language}${cxx_name} = ${number},\n")
    endif()
  endwhile()
  if(NOT rest STREQUAL "")
    message(FATAL_ERROR "${vocabulary}: no newline at the end")
  endif()
  set(antlr_tokens "${names}${literals}" PARENT_SCOPE)
  set(cxx_enumerators "${cxx_enumerators}" PARENT_SCOPE)
  set(cxx_literals "${cxx_literals}" PARENT_SCOPE)
  math(EXPR count "${highest} + 1")
  set(token_type_count ${count} PARENT_SCOPE)
endfunction()

# Defines the target vexltags_vocabulary_NAME, whose only header is "vocabulary/NAME_tokens.h", with the
# token types of src/grammars/NAME.vocab. CMake writes the header when it configures, and the build
# configures again when the vocabulary changes.
function(vexltags_vocabulary name)
  set(vocabulary ${PROJECT_SOURCE_DIR}/src/grammars/${name}.vocab)
  set(template ${PROJECT_SOURCE_DIR}/cmake/tokens.h.in)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${vocabulary})
  string(SUBSTRING ${name} 0 1 first)
  string(SUBSTRING ${name} 1 -1 others)
  string(TOUPPER ${first} first)
  set(language ${first}${others})
  vexltags_read_vocabulary(${vocabulary} ${language})
  set(root ${PROJECT_BINARY_DIR}/include/vocabulary_${name})
  configure_file(${template} ${root}/vocabulary/${name}_tokens.h @ONLY)
  add_library(vexltags_vocabulary_${name} INTERFACE)
  target_include_directories(vexltags_vocabulary_${name} INTERFACE ${root})
  target_link_libraries(vexltags_vocabulary_${name} INTERFACE vexltags_base)
endfunction()
