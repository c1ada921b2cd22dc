# SPDX-License-Identifier: MIT
# The leaf files of the driver, on which every other folder may stand.
vexltags_module(base
  SOURCES clock.cc options.cc path_resolver.cc paths.cc text.cc
  TESTS clock_test.cc options_test.cc path_resolver_test.cc paths_test.cc text_test.cc)
