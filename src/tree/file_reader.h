// SPDX-License-Identifier: MIT
// Reads one file after the other, in a worker.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/options.h"
#include "driver/process.h"
#include "tree/file_result.h"
#include "tree/line_finder.h"
#include "tree/lookups.h"

namespace vexltags::tree {

/// What a file is to be read for.
struct FileJob {
  std::string path;
  /// The number after which made-up names are numbered; -1 to number from 1, if that can be changed
  /// later.
  std::int32_t anonStart = -1;
  bool wantsLookups = true;  ///< Also the words that are looked up are wanted.
};

/// Reads files for their tags.
class FileReader {
 public:
  /// `session` must outlive the object; null to read by the grammars alone.
  explicit FileReader(thorough::Session* session);
  ~FileReader();

  /// `known` replaces what would be asked of the file system; null for nothing.
  FileResult Read(const FileJob& job, const KnownFile* known = nullptr);

 private:
  std::string UnknownWords(const Dumper& dumper) const;

  Options options;
  thorough::Session* session;
  std::optional<Indexer> indexer;
  Lookups lookups;
  LineFinder lines;
  std::string text;
};

/// Returns the content of a regular file or of the null device, which is empty; nothing if it
/// cannot be read. It is at the start of `buffer`, which grows as needed.
std::optional<std::string_view> ReadSource(const std::string& path, std::string& buffer);

}  // namespace vexltags::tree
