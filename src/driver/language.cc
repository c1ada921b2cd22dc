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
    {".py", "Python", NewPythonReader, &thorough::Session::Python},
    {".pyx", "Python", NewPythonReader, &thorough::Session::Python},
    {".swift", "Swift", NewSwiftReader, &thorough::Session::Swift},
    {"", "C family", NewMainReader, &thorough::Session::CFamily},
};

}  // namespace

const Language& LanguageOf(const std::string& path) {
  const Language* language = kLanguages;
  while (!EndsWith(path, language->suffix)) ++language;
  return *language;
}

}  // namespace vexltags
