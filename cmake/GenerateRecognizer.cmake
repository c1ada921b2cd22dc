# SPDX-License-Identifier: MIT
# Runs the recogniser generator for the grammar NAME into the folder OUT.
#
# The generator exits with 0 also after an error and may leave stale files, so old output goes first
# and a line with "error(" fails the build. Its warnings about labels it does not know are noise.
file(REMOVE_RECURSE ${OUT})
file(MAKE_DIRECTORY ${OUT})
file(COPY_FILE ${VOCABULARY} ${OUT}/${NAME}Vocabulary.tokens)
execute_process(
  COMMAND ${JAVA} -Xss64m -cp ${CLASSPATH} org.antlr.Tool -fo ${OUT} -lib ${OUT} ${GRAMMAR}
  OUTPUT_VARIABLE _text ERROR_VARIABLE _text RESULT_VARIABLE _result)
if(NOT _result EQUAL 0 OR _text MATCHES "error\\(" OR NOT EXISTS ${OUT}/${NAME}Parser.c)
  file(REMOVE ${OUT}/${NAME}Lexer.c ${OUT}/${NAME}Parser.c)
  message(FATAL_ERROR "The generator failed on ${GRAMMAR}:\n${_text}")
endif()
