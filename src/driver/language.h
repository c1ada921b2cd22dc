// SPDX-License-Identifier: MIT
// The languages that are built in, and which file is of which.
#pragma once

#include <antlr3.h>

#include <string>

#include "base/options.h"
#include "engine/recognizer.h"
#include "output/dumper.h"

namespace vexltags {

/// One row of the language table.
struct Language {
  const char* suffix;  ///< Exact end of the path; empty for the row that takes everything else.
  const char* name;
  RecognizerCounts (*run)(pANTLR3_INPUT_STREAM input, const Options& options, Dumper& dumper,
                          const std::string& stored);
};

/// The language of a file, by the end of its path as it was given, exact and case-sensitive. What
/// is neither Python nor Swift is of the C family.
const Language& LanguageOf(const std::string& path);

}  // namespace vexltags
