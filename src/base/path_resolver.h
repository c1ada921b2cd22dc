// SPDX-License-Identifier: MIT
// Absolute paths of input files without symbolic links.
#pragma once

#include <string>

namespace vexltags {

/// Resolves paths as realpath(3) does. Input files mostly come folder by folder, so the folder of
/// the last one is remembered: resolving it anew would cost a system call for each component. A
/// link among the folders that changes in mid-run may therefore go unnoticed.
class PathResolver {
 public:
  /// The absolute path of the file at `path` without links, "." and ".."; `path` itself where
  /// there is no such file.
  std::string Resolve(const std::string& path);

 private:
  bool ResolveFolder(const std::string& path);

  bool known = false;
  std::string folder;    ///< As given, with its slash; empty for the working directory.
  std::string resolved;  ///< The same, resolved, with its slash.
};

}  // namespace vexltags
