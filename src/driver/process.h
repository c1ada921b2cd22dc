// SPDX-License-Identifier: MIT
// Indexes one file: language by suffix, recogniser, start rule, report.
#pragma once

#include <cstdint>
#include <string>

#include "base/options.h"
#include "output/dumper.h"

namespace vexltags {

/// Finds the highest source line that got a tag, by looking at every complete line of the sink.
struct LastLineObserver {
  std::int32_t* lastLine;  ///< Largest 1-based line so far; not owned.

  /// Raises `*lastLine` to the number between the last tab before the first `;` of `line` and that
  /// `;`, counting nothing as 0. A header line, and one without such a tab or with anything but
  /// digits there, changes nothing.
  void operator()(const std::string& line);
};

/// Indexes the file at `path` and hands its tag lines to `dumper`. The language follows from the
/// suffix of `path` as given. Returns 0 when the file could be read and its grammar was run,
/// however the parse went, and -1 after a message on standard error when it could not, or when
/// `path` is empty.
int Process(const std::string& path, const Options& options, Dumper& dumper);

}  // namespace vexltags
