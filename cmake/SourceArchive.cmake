# SPDX-License-Identifier: MIT
# Packs the files in SOURCE that git does not ignore into BUILD/vexltags-VERSION-source.tar.xz, and the
# generated recognisers of GRAMMARS, which are in the folder GENERATED, as the folder ARCHIVED. The
# archive builds without Java or the generator.
set(_name vexltags-${VERSION})
set(_stage ${BUILD}/source-archive)
set(_tree ${_stage}/${_name})
set(_archive ${BUILD}/${_name}-source.tar.xz)
file(REMOVE_RECURSE ${_stage})
file(REMOVE ${_archive})
file(MAKE_DIRECTORY ${_tree})

function(run)
  execute_process(${ARGN} RESULT_VARIABLE _result ERROR_VARIABLE _text)
  if(NOT _result EQUAL 0)
    message(FATAL_ERROR "The source archive cannot be made: ${_text}")
  endif()
endfunction()

# NUL-terminated, so that any file name works.
run(COMMAND git ls-files -z --cached --others --exclude-standard
    WORKING_DIRECTORY ${SOURCE} OUTPUT_FILE ${_stage}/files)
run(COMMAND tar --create --file=${_stage}/files.tar --ignore-failed-read --no-recursion --null
            --verbatim-files-from --files-from=${_stage}/files
    WORKING_DIRECTORY ${SOURCE})
run(COMMAND tar --extract --file=${_stage}/files.tar WORKING_DIRECTORY ${_tree})

foreach(_grammar IN LISTS GRAMMARS)
  foreach(_part IN ITEMS Lexer.c Lexer.h Parser.c Parser.h)
    set(_file ${_tree}/${ARCHIVED}/${_grammar}/${_grammar}${_part})
    configure_file(${GENERATED}/${_grammar}/${_grammar}${_part} ${_file} COPYONLY)
    # Removes paths and time of this build, so that archives of the same commit are identical.
    run(COMMAND sed -i -e "s|${SOURCE}/||g" -e "s|${BUILD}/||g" -e "/^ \\* *- *On : /d" ${_file})
  endforeach()
endforeach()

execute_process(COMMAND git log -1 --format=%ct WORKING_DIRECTORY ${SOURCE}
                OUTPUT_VARIABLE _time OUTPUT_STRIP_TRAILING_WHITESPACE)
run(COMMAND tar --create --xz --file=${_archive} --sort=name --owner=0 --group=0 --numeric-owner
            --mtime=@${_time} ${_name}
    WORKING_DIRECTORY ${_stage})
file(REMOVE_RECURSE ${_stage})
