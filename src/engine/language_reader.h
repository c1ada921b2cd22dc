// SPDX-License-Identifier: MIT
// The interface of the readers of source files, one per language.
#pragma once

#include <antlr3.h>

#include <memory>
#include <string>

#include "base/options.h"
#include "engine/reading.h"
#include "output/dumper.h"

namespace vexltags {

/// The numbers of errors that the lexer and parser of a file counted.
struct RecognizerCounts {
  unsigned lexerErrors = 0;
  unsigned parserErrors = 0;
};

/// Reads the files of one language in turn from one input stream, reusing its recognisers.
class LanguageReader {
 public:
  virtual ~LanguageReader() = default;

  /// Reads the current file of the input stream from its start and adds its tags to `dumper`.
  /// `stored` is the path for the file field. Syntax errors are not failures; they only show in the
  /// returned counts. `reading` changes how the file is read; null for the grammar alone.
  virtual RecognizerCounts Run(const Options& options, Dumper& dumper, const std::string& stored,
                               Reading* reading) = 0;
};

/// Creates the reader of a language for `input`, which must outlive it.
using NewLanguageReader = std::unique_ptr<LanguageReader> (*)(pANTLR3_INPUT_STREAM input);

}  // namespace vexltags
