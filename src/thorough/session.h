// SPDX-License-Identifier: MIT
// What `--thorough` knows of a whole run, and the reading that it has for each file.
#pragma once

#include <sys/types.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "base/options.h"
#include "thorough/macro_table.h"
#include "thorough/main_reading.h"
#include "thorough/python_reading.h"
#include "thorough/swift_reading.h"

namespace vexltags::thorough {

/// Gives each file of a run its reading. A reading is good until the next one is asked for and
/// belongs to the session.
class Session {
 public:
  /// Learns the macros of the run: those of the C-family files among `paths`, which are all inputs
  /// as given, of the headers that they include by `#include "…"` where these can be found, and of
  /// the files and folders of `--macros`. What cannot be read is passed over.
  Session(const Options& options, const std::vector<std::string>& paths);

  /// The readings for the file at `path`, language by language.
  Reading* CFamily(const std::string& path);
  Reading* Python(const std::string& path);
  Reading* Swift(const std::string& path);

 private:
  void LearnPath(const std::string& path);
  /// Learns the macros of a file. One that is only included is passed over where it was learned
  /// under another path.
  void LearnFile(std::uint32_t number, bool isIncluded);
  /// Reads an open file, of which `expected` bytes at most. The text is good until the next call.
  std::string_view ReadText(int file, std::size_t expected);
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
  // While macros are learned.
  std::unordered_map<std::size_t, Search> searched;  ///< By the hash of the place.
  std::set<std::pair<dev_t, ino_t>> identities;      ///< Of the files that were read.
  std::string place;
  std::unique_ptr<char[]> buffer;
  std::size_t room = 0;  ///< In `buffer`.

  MainReading cfamily;
  PythonReading python;
  SwiftReading swift;
};

}  // namespace vexltags::thorough
