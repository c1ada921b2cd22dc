# SPDX-License-Identifier: MIT
# Runs in cpack on the staged files: compresses the manuals and the list of changes, and adds a change
# log in Debian's format to a Debian package.
file(GLOB _manuals ${CPACK_TEMPORARY_DIRECTORY}/usr/share/man/man1/*.1
     ${CPACK_TEMPORARY_DIRECTORY}/share/man/man1/*.1)
file(GLOB _changes ${CPACK_TEMPORARY_DIRECTORY}/usr/share/doc/vexltags/CHANGELOG.md
     ${CPACK_TEMPORARY_DIRECTORY}/share/doc/vexltags/CHANGELOG.md)

function(compress)
  # Omits file name and time, so that packages of the same sources are identical.
  execute_process(COMMAND gzip -9 -n -f ${ARGN} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

compress(${_manuals})
get_filename_component(_folder ${_changes} DIRECTORY)
file(RENAME ${_changes} ${_folder}/changelog)
if(CPACK_GENERATOR STREQUAL "DEB")
  string(TIMESTAMP _time "%a, %d %b %Y %H:%M:%S +0000" UTC)
  file(WRITE ${_folder}/changelog.Debian
       "vexltags (${CPACK_PACKAGE_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE}) unstable; urgency=medium\n\n"
       "  * Version ${CPACK_PACKAGE_VERSION}; its changes are in changelog.gz.\n\n"
       " -- ${CPACK_PACKAGE_CONTACT}  ${_time}\n")
  compress(${_folder}/changelog.Debian)
endif()
compress(${_folder}/changelog)
