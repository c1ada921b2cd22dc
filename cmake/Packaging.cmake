# SPDX-License-Identifier: MIT
# Installation, packages (cpack: .deb and .tar.xz), and the target source_archive: the sources together
# with the generated recognisers, which build without Java.
include(GNUInstallDirs)

# The header is the only place that defines the version.
file(STRINGS ${PROJECT_SOURCE_DIR}/src/base/version.h _line REGEX "kVersion\\[\\] = ")
string(REGEX REPLACE ".*\"(.*)\".*" "\\1" VEXLTAGS_VERSION "${_line}")

install(TARGETS vexltags vexltags-portable RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(FILES doc/vexltags.1 doc/vexltags-portable.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)

# Shells find completions by the name of the command.
foreach(_command IN ITEMS vexltags vexltags-portable)
  install(FILES completions/vexltags.bash RENAME ${_command}
          DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions)
  install(FILES completions/vexltags.fish RENAME ${_command}.fish
          DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d)
endforeach()
set(_zsh _vexltags)
foreach(_command IN ITEMS vexltags-ctags vexltags-tree)
  if(TARGET ${_command})
    install(TARGETS ${_command} RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
    install(FILES doc/${_command}.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
    install(FILES completions/${_command}.bash RENAME ${_command}
            DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions)
    install(FILES completions/${_command}.fish
            DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d)
    list(APPEND _zsh _${_command})
  endif()
endforeach()
list(TRANSFORM _zsh PREPEND ${PROJECT_SOURCE_DIR}/completions/)
# Debian's zsh reads one folder for packages and another one below /usr/local.
install(CODE "
  if(CMAKE_INSTALL_PREFIX MATCHES [[/usr$]])
    set(_folder vendor-completions)
  else()
    set(_folder site-functions)
  endif()
  file(INSTALL ${_zsh}
       DESTINATION \${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_DATADIR}/zsh/\${_folder})")

install(FILES CHANGELOG.md doc/copyright DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(FILES doc/tags-format.md doc/why-is-my-tag-missing.md
        DESTINATION ${CMAKE_INSTALL_DOCDIR}/doc)
install(DIRECTORY editors DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(DIRECTORY hooks DESTINATION ${CMAKE_INSTALL_DOCDIR} USE_SOURCE_PERMISSIONS)

# The maintainer of the package, from the variables that Debian's own tools read; see RELEASING.md.
set(_maintainer "vexltags developers <vexltags@localhost>")
if(DEFINED ENV{DEBEMAIL} AND DEFINED ENV{DEBFULLNAME})
  set(_maintainer "$ENV{DEBFULLNAME} <$ENV{DEBEMAIL}>")
endif()
set(VEXLTAGS_MAINTAINER ${_maintainer} CACHE STRING "Name and address in the Debian package")

set(CPACK_GENERATOR DEB TXZ)
set(CPACK_PACKAGE_NAME vexltags)
set(CPACK_PACKAGE_VENDOR "The vexltags developers")
set(CPACK_PACKAGE_CONTACT ${VEXLTAGS_MAINTAINER})
set(CPACK_PACKAGE_VERSION ${VEXLTAGS_VERSION})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "tags files of C, C++, Objective-C, Swift and Python")
set(CPACK_PACKAGE_DESCRIPTION
    "Indexes source files for editors: one line for each function, method,
class, enum, macro and member, in the extended tags format.

The command vexltags-tree finds the sources of a project and keeps its
tags file fresh. The filter vexltags-portable rewrites tags files for readers that are
strict about the format. The command vexltags-ctags takes the place of
ctags in editors and their plug-ins.")
set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/cmake/PackagedDocs.cmake)
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)
set(CPACK_PACKAGE_DIRECTORY ${CMAKE_BINARY_DIR})
set(CPACK_STRIP_FILES ON)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SECTION devel)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "vim | neovim | emacs | universal-ctags, git, parallel")
find_program(VEXLTAGS_SHLIBDEPS dpkg-shlibdeps)
mark_as_advanced(VEXLTAGS_SHLIBDEPS)
if(VEXLTAGS_SHLIBDEPS)
  set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
else()
  set(CPACK_DEBIAN_PACKAGE_DEPENDS "libc6, libgcc-s1, libstdc++6")
  if(VEXLTAGS_TREE)
    string(APPEND CPACK_DEBIAN_PACKAGE_DEPENDS ", libsqlite3-0")
  endif()
endif()
include(CPack)

# A build from a source archive cannot make another archive.
if(VEXLTAGS_GENERATES)
  get_property(_grammars GLOBAL PROPERTY VEXLTAGS_GRAMMARS)
  list(TRANSFORM _grammars PREPEND vexltags_generate_ OUTPUT_VARIABLE _generate_targets)
  add_custom_target(source_archive
    COMMAND ${CMAKE_COMMAND} -D SOURCE=${PROJECT_SOURCE_DIR} -D BUILD=${CMAKE_BINARY_DIR}
            -D VERSION=${VEXLTAGS_VERSION} -D "GRAMMARS=${_grammars}"
            -D GENERATED=${VEXLTAGS_GENERATED} -D ARCHIVED=${VEXLTAGS_ARCHIVED}
            -P ${PROJECT_SOURCE_DIR}/cmake/SourceArchive.cmake
    DEPENDS ${_generate_targets}
    COMMENT "Packing vexltags-${VEXLTAGS_VERSION}-source.tar.xz"
    VERBATIM)
endif()
