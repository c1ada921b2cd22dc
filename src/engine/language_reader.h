// SPDX-License-Identifier: MIT
// What reads the files of one language.
#pragma once

#include <antlr3.h>

#include <memory>
#include <string>

#include "base/options.h"
#include "engine/reading.h"
#include "output/dumper.h"

namespace vexltags {

/// How many errors the two recognisers of a file counted.
struct RecognizerCounts {
  unsigned lexerErrors = 0;
  unsigned parserErrors = 0;
};

/// Reads files of one language, one after the other, from one input stream. What it makes for the
/// first it uses again for the others.
class LanguageReader {
 public:
  virtual ~LanguageReader() = default;

  /// Reads the file that the input stream has now, from its start on. Tags go to `dumper`. `stored`
  /// is the file's path as it goes into tags. A syntax error is no failure: the counts in the
  /// result are its only trace. `reading` changes how the file is read; null for the grammar alone.
  virtual RecognizerCounts Run(const Options& options, Dumper& dumper, const std::string& stored,
                               Reading* reading) = 0;
};

/// Makes the reader of a language for `input`, which must outlive it.
using NewLanguageReader = std::unique_ptr<LanguageReader> (*)(pANTLR3_INPUT_STREAM input);

}  // namespace vexltags
