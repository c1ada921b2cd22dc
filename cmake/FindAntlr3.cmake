# SPDX-License-Identifier: MIT
# Finds the ANTLR 3 C runtime (Debian package libantlr3c-dev) and, with the component Generator, the
# ANTLR 3 generator (antlr3, libstringtemplate-java), which runs on Java. Defines the target
# Antlr3::Runtime and the variables Antlr3_JAVA, Antlr3_JAR, Antlr3_CLASSPATH (the generator and its
# dependencies) and Antlr3_VERSION.
find_program(Antlr3_JAVA java)
set(_jars /usr/share/java /usr/local/share/java)
find_file(Antlr3_JAR antlr3.jar PATHS ${_jars})
find_file(Antlr3_RUNTIME_JAR antlr3-runtime.jar PATHS ${_jars})
find_file(Antlr3_ST3_JAR stringtemplate.jar PATHS ${_jars})
find_file(Antlr3_ST4_JAR stringtemplate4.jar PATHS ${_jars})
find_path(Antlr3_RUNTIME_INCLUDE_DIR antlr3.h)
# Prefers the static library, so that the program also runs where the runtime is not installed.
find_library(Antlr3_RUNTIME_LIBRARY NAMES libantlr3c.a antlr3c)

set(_needs RUNTIME_INCLUDE_DIR RUNTIME_LIBRARY)
if("Generator" IN_LIST Antlr3_FIND_COMPONENTS)
  list(APPEND _needs JAVA JAR RUNTIME_JAR ST3_JAR ST4_JAR)
endif()
foreach(_need IN LISTS _needs)
  if(NOT Antlr3_${_need})
    message(FATAL_ERROR "The ANTLR 3 generator or runtime is missing (Antlr3_${_need}); "
                        "install the packages antlr3, libstringtemplate-java, libantlr3c-dev and "
                        "default-jre-headless.")
  endif()
endforeach()

set(Antlr3_CLASSPATH "${Antlr3_ST3_JAR}:${Antlr3_ST4_JAR}:${Antlr3_JAR}:${Antlr3_RUNTIME_JAR}")
if(Antlr3_JAR)
  file(REAL_PATH ${Antlr3_JAR} _jar)
  string(REGEX MATCH "[0-9]+\\.[0-9.]*[0-9]" Antlr3_VERSION "${_jar}")
endif()

include(FindPackageHandleStandardArgs)
list(TRANSFORM _needs PREPEND Antlr3_)
find_package_handle_standard_args(Antlr3 REQUIRED_VARS ${_needs} VERSION_VAR Antlr3_VERSION)
if(NOT TARGET Antlr3::Runtime)
  add_library(Antlr3::Runtime UNKNOWN IMPORTED)
  set_target_properties(Antlr3::Runtime PROPERTIES
    IMPORTED_LOCATION ${Antlr3_RUNTIME_LIBRARY}
    INTERFACE_INCLUDE_DIRECTORIES ${Antlr3_RUNTIME_INCLUDE_DIR})
endif()
