// SPDX-License-Identifier: MIT
// What `--thorough` knows of a whole run, and the reading that it has for each file.
#pragma once

#include <string>
#include <vector>

#include "base/options.h"
#include "thorough/python_reading.h"
#include "thorough/resuming.h"
#include "thorough/swift_reading.h"

namespace vexltags::thorough {

/// Gives each file of a run its reading. A reading is good until the next one is asked for and
/// belongs to the session.
class Session {
 public:
  /// `paths` are all inputs of the run, as given.
  Session(const Options& options, const std::vector<std::string>& paths);

  /// The readings for the file at `path`, language by language.
  Reading* CFamily(const std::string& path);
  Reading* Python(const std::string& path);
  Reading* Swift(const std::string& path);

 private:
  Resuming cfamily;
  PythonReading python;
  SwiftReading swift;
};

}  // namespace vexltags::thorough
