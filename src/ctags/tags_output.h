// SPDX-License-Identifier: MIT
// Collects the output of a run and writes it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "ctags/settings.h"
#include "portable/portable_order.h"

namespace vexltags::ctags {

/// The output of a run. A file is replaced as a whole when the run has succeeded; until then, and
/// after a failure, it is as it was.
class TagsOutput {
 public:
  explicit TagsOutput(const Settings& settings);

  /// Checks that the output can be written: an existing file has to be empty or look like a tags
  /// file. Keeps what is in it for `--append`. Returns false after a message.
  bool Prepare();

  /// Adds a line, with its newline. `nameLength` is the length of the name at its start.
  void Add(std::string line, std::size_t nameLength);

  /// Writes everything, sorted as the settings say. Returns false after a message.
  bool Write();

  /// The path of the tags file; empty for standard output.
  const std::string& Path() const { return path; }

 private:
  bool KeepOldLines(std::string_view text);

  const Settings& settings;
  std::string path;
  std::string oldText;  ///< Of a file that is not in the tags format.
  std::vector<NamedLine> lines;
};

/// Returns the path of the tags file that the settings name; empty for standard output.
std::string OutputPathOf(const Settings& settings);

}  // namespace vexltags::ctags
