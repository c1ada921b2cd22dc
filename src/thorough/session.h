// SPDX-License-Identifier: MIT
// What `--thorough` knows of a whole run, and the reading that it has for each file.
#pragma once

#include <cstdint>
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
  void LearnFile(std::uint32_t number);
  void FindInclude(std::uint32_t includer, std::string_view name);
  /// The number of the file at `path`, which is put into the queue if it is new.
  std::uint32_t NumberOf(const std::string& path);

  MacroTable macros;
  std::vector<std::string> files = {""};  ///< By number; 0 is the compiler.
  std::unordered_map<std::string, std::uint32_t> numbers;
  std::unordered_map<std::string, bool> searched;  ///< Folder and name of an include: found or not.
  std::string text;
  MainReading cfamily;
  PythonReading python;
  SwiftReading swift;
};

}  // namespace vexltags::thorough
