// SPDX-License-Identifier: MIT
// Resolves the paths of input files.
#pragma once

#include <string>

namespace vexltags {

/// Resolves paths as realpath(3) does. Inputs are usually grouped by folder, so the last resolved
/// folder is cached, which saves a system call per path component. A folder link that changes
/// during the run can therefore go unnoticed.
class PathResolver {
 public:
  /// Returns the absolute path of the file at `path` without links, "." and "..", or `path` itself
  /// if the file does not exist.
  std::string Resolve(const std::string& path);

 private:
  bool ResolveFolder(const std::string& path);

  bool known = false;
  std::string folder;    ///< As given, with its trailing slash; empty for the working directory.
  std::string resolved;  ///< `folder` resolved, with a trailing slash.
};

}  // namespace vexltags
