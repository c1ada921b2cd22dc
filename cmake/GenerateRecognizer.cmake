# SPDX-License-Identifier: MIT
# Generates the recogniser of the grammar NAME into the folder OUT.
#
# The generator exits with status 0 even after an error and can leave stale files. So old output is
# removed first, and a line that contains "error(" fails the build. Its warnings about unknown labels
# are harmless.
file(REMOVE_RECURSE ${OUT})
file(MAKE_DIRECTORY ${OUT})
include(${CMAKE_CURRENT_LIST_DIR}/Vocabulary.cmake)
vexltags_read_vocabulary(${VOCABULARY} ${NAME})
file(WRITE ${OUT}/${NAME}Vocabulary.tokens "${antlr_tokens}")
# The run is short: without these options most of it is spent on preparing for long ones.
set(_brief -XX:+IgnoreUnrecognizedVMOptions -XX:TieredStopAtLevel=1 -XX:+UseSerialGC)
execute_process(
  COMMAND ${JAVA} ${_brief} -Xss64m -cp ${CLASSPATH} org.antlr.Tool -fo ${OUT} -lib ${OUT} ${GRAMMAR}
  OUTPUT_VARIABLE _text ERROR_VARIABLE _text RESULT_VARIABLE _result)
if(NOT _result EQUAL 0 OR _text MATCHES "error\\(" OR NOT EXISTS ${OUT}/${NAME}Parser.c)
  file(REMOVE ${OUT}/${NAME}Lexer.c ${OUT}/${NAME}Parser.c)
  message(FATAL_ERROR "The generator failed on ${GRAMMAR}:\n${_text}")
endif()
