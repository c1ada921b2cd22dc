// SPDX-License-Identifier: MIT
// Tests of language selection.
#include "driver/language.h"

#include <gtest/gtest.h>

namespace vexltags {
namespace {

TEST(LanguageOf, ComparesTheExactSuffix) {
  const struct {
    const char* path;
    const char* name;
  } kRows[] = {
      {"a.py", "Python"},
      {"a.c.py", "Python"},
      {"a.pyx", "Python"},
      {".py", "Python"},
      {"dir.swift/a.py", "Python"},
      {"a.swift", "Swift"},
      {".swift", "Swift"},
      {"a.py.swift", "Swift"},
      {"a.c", "C family"},
      {"a.py.c", "C family"},
      {"a.pyc", "C family"},
      {"a.PY", "C family"},
      {"a.Swift", "C family"},
      {"a.pyi", "C family"},
      {"a.py ", "C family"},
      {"Makefile", "C family"},
      {"", "C family"},
      {"py", "C family"},
      {"a.m", "C family"},
      {"a.png", "C family"},
  };
  for (const auto& row : kRows) EXPECT_STREQ(LanguageOf(row.path).name, row.name) << row.path;
}

}  // namespace
}  // namespace vexltags
