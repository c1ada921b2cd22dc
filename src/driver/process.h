// SPDX-License-Identifier: MIT
// Indexes files, one by one: language by suffix, recogniser, start rule, report.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "base/options.h"
#include "base/path_resolver.h"
#include "driver/language.h"
#include "driver/source_file.h"
#include "engine/language_reader.h"
#include "output/dumper.h"
#include "thorough/session.h"

namespace vexltags {

/// Finds the highest source line that got a tag, by looking at every complete line of the sink.
struct LastLineObserver {
  std::int32_t* lastLine;  ///< Largest 1-based line so far; not owned.

  /// Raises `*lastLine` to the number between the last tab before the first `;` of `line` and that
  /// `;`, counting nothing as 0. A header line, and one without such a tab or with anything but
  /// digits there, changes nothing.
  void operator()(const std::string& line);
};

/// Indexes the files of one run, one after the other. What one file leaves for the next to use
/// again lives here: the folder last resolved, the buffer, the recognisers of each language.
class Indexer {
 public:
  /// `paths` are all files of the run; only `--thorough` looks at them. `options` must outlive the
  /// object.
  Indexer(const Options& options, const std::vector<std::string>& paths);

  /// Indexes the file at `path` and hands its tag lines to `dumper`. The language follows from the
  /// suffix of `path` as given. Returns 0 when the file could be read and its grammar was run,
  /// however the parse went, and -1 after a message on standard error when it could not, or when
  /// `path` is empty.
  int Process(const std::string& path, Dumper& dumper);

 private:
  /// The reader of `language`, made when its first file comes.
  LanguageReader& ReaderOf(const Language& language);

  const Options& options;
  PathResolver resolver;
  SourceFile source;
  /// By the function that made them. They read the input stream of `source`, so they go first.
  std::vector<std::pair<NewLanguageReader, std::unique_ptr<LanguageReader>>> readers;
  std::optional<thorough::Session> session;  ///< With `--thorough` alone.
};

}  // namespace vexltags
