// SPDX-License-Identifier: MIT
// Indexes the files of a run.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
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

/// Determines the highest source line with a tag from the lines that are added to the sink.
struct LastLineObserver {
  std::int32_t* lastLine;  ///< Largest 1-based line so far; not owned.

  /// Raises `*lastLine` to the number between the first `;` of `line` and the last tab before it;
  /// an empty number is 0. Ignores header lines and lines with no such tab or with other characters
  /// there.
  void operator()(const std::string& line);
};

/// What became of one file, apart from its tag lines.
struct FileOutcome {
  bool isRead = false;   ///< The file could be opened and read.
  std::string resolved;  ///< Its absolute path, or the path as given if there is no such file.
  std::string stored;    ///< The path for the file field.
  RecognizerCounts counts;
  std::int32_t lines = 0;  ///< The line at which reading ended, 1-based.
  std::int64_t microseconds = 0;
  thorough::SkippedTokens skipped;  ///< With `--thorough`, for the C family.
};

/// What a caller already knows of a file.
struct KnownFile {
  std::string stored;                    ///< The path for the file field.
  std::optional<std::string_view> text;  ///< Its content, if that is not to be read.
};

/// Indexes the files of one run, one after the other. Owns everything that is reused for later
/// files: the last resolved folder, the buffer, the recognisers of each language.
class Indexer {
 public:
  /// `paths` are all files of the run; only `--thorough` uses them. `options` must outlive the
  /// object.
  Indexer(const Options& options, const std::vector<std::string>& paths);
  /// Reads thoroughly, with a session that must outlive the object.
  Indexer(const Options& options, thorough::Session& session);

  /// Indexes the file at `path` and adds its tag lines to `dumper`. The suffix of `path` as given
  /// selects the language. Returns 0 if the file could be read, whatever the result of the parse.
  /// Otherwise, or if `path` is empty, prints a message to standard error and returns -1.
  int Process(const std::string& path, Dumper& dumper);

  /// Does the same without messages. Calls `onText` with the bytes of the file, good until it
  /// returns, before they are read as source. `known` replaces what would be asked of the file
  /// system.
  FileOutcome Index(const std::string& path, Dumper& dumper,
                    const std::function<void(std::string_view text)>& onText = nullptr,
                    const KnownFile* known = nullptr);

  /// Indexes `text` in the language that `languagePath` selects, as if it were the contents of the
  /// file at `path`, and adds its tag lines to `dumper`, with `-` in the file field. Accesses no
  /// file. Returns false if `text` has 4 GiB or more.
  bool IndexText(const std::string& path, const std::string& languagePath, std::string_view text,
                 Dumper& dumper);

 private:
  /// Returns the reader of `language`, which is created for its first file.
  LanguageReader& ReaderOf(const Language& language);
  /// Returns the reading of the file at `path`, or null without `--thorough`.
  Reading* ReadingOf(const Language& language, const std::string& path);

  const Options& options;
  PathResolver resolver;
  SourceFile source;
  /// Keyed by constructor. Declared after `source`, since they read its input stream.
  std::vector<std::pair<NewLanguageReader, std::unique_ptr<LanguageReader>>> readers;
  std::optional<thorough::Session> ownSession;
  thorough::Session* session = nullptr;  ///< Only with `--thorough`.
};

}  // namespace vexltags
