// SPDX-License-Identifier: MIT
// Asks whether files are there, mostly where none is.
#pragma once

#include <string>
#include <string_view>
#include <unordered_map>

namespace vexltags::tree {

/// Looks for files and remembers each folder that it has met, so that it asks once for all files in
/// a folder that is not there. To be used for a moment in which folders do not change.
class FileProbe {
 public:
  /// Returns whether there is a regular file at `path`.
  bool IsFile(const std::string& path);

 private:
  /// Returns whether there may be files in `folder`, which is empty or ends with a slash.
  bool HasFolder(std::string_view folder);

  std::unordered_map<std::string, bool> folders;
};

}  // namespace vexltags::tree
