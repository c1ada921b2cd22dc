// SPDX-License-Identifier: MIT
// What `--thorough` knows of a whole run, and the reading that it has for each file.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory_resource>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "base/options.h"
#include "thorough/macro_table.h"
#include "thorough/main_reading.h"
#include "thorough/python_reading.h"
#include "thorough/swift_reading.h"

namespace vexltags::thorough {

/// How a session reads the file system. The functions replace what it does by itself.
struct SessionSources {
  /// Returns the content of the file at the path. The view is good until the next call. Nothing if
  /// the file cannot be read, or if it is only included and has been read under another path.
  std::function<std::optional<std::string_view>(const std::string& path, bool isIncluded)> text;
  /// Returns whether there is a regular file at the path.
  std::function<bool(const std::string& path)> isFile;
  /// Returns the facts of the file at the path, see `MacroTable::Facts`. Takes the place of `text`
  /// if it is there.
  std::function<std::optional<std::string_view>(const std::string& path)> facts = nullptr;
};

/// Gives each file of a run its reading. A reading is good until the next one is asked for and
/// belongs to the session.
class Session {
 public:
  /// Learns the macros of the run: those of the C-family files among `paths`, which are all inputs
  /// as given, of the headers that they include by `#include "…"` or `#import "…"` where these can
  /// be found, and of
  /// the files and folders of `--macros`. What cannot be read is passed over.
  Session(const Options& options, const std::vector<std::string>& paths,
          SessionSources sources = {});
  /// Learns from `files` alone, in their order, and looks for includes only among them. With
  /// `Files` of another session it learns the same, as long as the texts are the same.
  Session(const std::vector<std::string>& files, SessionSources sources);

  /// The files from which it learned, in this order.
  std::span<const std::string> Files() const { return std::span(files).subspan(1); }
  /// The path of the file of this number in a `MacroDefinition`; empty for the compiler.
  const std::string& FileAt(std::uint32_t number) const { return files[number]; }
  MacroTable& Macros() { return macros; }
  /// What the last reading of a C-family file skipped.
  const SkippedTokens& Skipped() const { return cfamily.Skipped(); }

  /// The readings for the file at `path`, language by language.
  Reading* CFamily(const std::string& path);
  Reading* Python(const std::string& path);
  Reading* Swift(const std::string& path);

 private:
  void LearnPath(const std::string& path);
  void LearnFile(std::uint32_t number, bool isIncluded);
  /// Looks for `#include "name"` in the folder `includer` and in those that contain it, puts what
  /// it finds into the queue, and notes the include.
  void FindInclude(std::string_view includer, std::string_view name);
  /// Returns the number of the file that is found so; 0 for none.
  std::uint32_t NumberOfInclude(std::string_view includer, std::string_view name);
  /// The number of the file at `path`, which is put into the queue if it is new.
  std::uint32_t NumberOf(const std::string& path);
  std::uint32_t NumberOfNormal(const std::string& normal, const std::string& path);

  /// A place where an include was looked for, and how many folders were left to be tried there.
  struct Search {
    int left;
    std::uint32_t found;  ///< The number of the file found there or above; 0 for none.
  };

  MacroTable macros;
  std::vector<std::string> files = {""};  ///< By number; 0 is the compiler.
  std::unordered_map<std::string, std::uint32_t> numbers;
  // While macros are learned. What is small is freed all at once.
  SessionSources sources;
  std::pmr::monotonic_buffer_resource memory;
  std::pmr::unordered_map<std::size_t, Search> searched{&memory};  ///< By the hash of the place.
  std::string place;

  MainReading cfamily;
  PythonReading python;
  SwiftReading swift;
};

}  // namespace vexltags::thorough
