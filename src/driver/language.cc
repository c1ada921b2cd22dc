// SPDX-License-Identifier: MIT
// The languages that are built in, and which file is of which.
#include "driver/language.h"

#include "base/text.h"
#include "grammars/main_recognizer.h"
#include "grammars/python_recognizer.h"
#include "grammars/swift_recognizer.h"

namespace vexltags {
namespace {

/// In the order of the tests; the last row takes what no other took.
constexpr Language kLanguages[] = {
    {".py", "Python", RunPython},
    {".pyx", "Python", RunPython},
    {".swift", "Swift", RunSwift},
    {"", "C family", RunMain},
};

}  // namespace

const Language& LanguageOf(const std::string& path) {
  const Language* language = kLanguages;
  while (!EndsWith(path, language->suffix)) ++language;
  return *language;
}

}  // namespace vexltags
