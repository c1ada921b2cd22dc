# SPDX-License-Identifier: MIT
# Unpacks the generator's C templates into TEMPLATES and installs OVERRIDES as C.stg, which imports the
# generator's own file under the name Stock.stg.
set(_folder ${TEMPLATES}/org/antlr/codegen/templates/C)
file(REMOVE_RECURSE ${TEMPLATES})
file(MAKE_DIRECTORY ${TEMPLATES})
execute_process(COMMAND ${CMAKE_COMMAND} -E tar xf ${ANTLR_JAR} org/antlr/codegen/templates/C/
                WORKING_DIRECTORY ${TEMPLATES} RESULT_VARIABLE _result)
if(NOT _result EQUAL 0 OR NOT EXISTS ${_folder}/C.stg)
  message(FATAL_ERROR "No C templates in ${ANTLR_JAR}")
endif()
file(RENAME ${_folder}/C.stg ${_folder}/Stock.stg)
file(COPY_FILE ${OVERRIDES} ${_folder}/C.stg)
file(TOUCH ${_folder}/C.stg)
