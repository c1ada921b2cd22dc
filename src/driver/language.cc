// SPDX-License-Identifier: MIT
// The languages that are built in, and which file is of which.
#include "driver/language.h"

#include <antlr3.h>

#include <memory>

#include "base/text.h"

namespace vexltags {

// The readers, each defined beside its grammar.
#define LANGUAGE(suffix, name, newReader, reading) \
  std::unique_ptr<LanguageReader> newReader(pANTLR3_INPUT_STREAM input);
#include "driver/languages.def"
#undef LANGUAGE

namespace {

#define LANGUAGE(suffix, name, newReader, reading) {suffix, name, newReader, reading},
constexpr Language kLanguages[] = {
#include "driver/languages.def"
};
#undef LANGUAGE

}  // namespace

const Language& LanguageOf(const std::string& path) {
  const Language* language = kLanguages;
  while (!EndsWith(path, language->suffix)) ++language;
  return *language;
}

}  // namespace vexltags
