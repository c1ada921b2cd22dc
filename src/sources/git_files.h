// SPDX-License-Identifier: MIT
// Asks git for the files of a work tree.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "sources/ignore_patterns.h"

namespace vexltags {

/// What git says about a directory, apart from its files. Paths are relative to it.
struct GitListing {
  bool isListed = false;                  ///< False if git does not know the directory's files.
  std::vector<std::string> repositories;  ///< Submodules and other repositories below.
  std::string problem;  ///< What git reported, if anything; it may be listed still.
};

/// Returns the nearest of `directory` and those that contain it that has an entry `.git`, without
/// symbolic links; empty if none has.
std::string GitTop(const std::string& directory);

/// Returns whether git says that it ignores `directory`.
bool IsIgnoredByGit(const std::string& directory);

/// Lists what git tracks, or would track, in and below `directory`. Negated patterns, relative to
/// the directory, add files that git ignores; other patterns are not applied. Not listed are
/// directories that git itself ignores, and all if git is not installed or fails.
///
/// Calls `take` with each file, relative to the directory, in no order; with one that has a merge
/// conflict several times, and also with files that no longer exist and symbolic links. It is
/// called while git still looks for files that it does not track. If the directory turns out not to
/// be listed, the calls do not count.
GitListing ListGitFiles(const std::string& directory, const IgnorePatterns& patterns,
                        const std::function<void(std::string_view path)>& take);

}  // namespace vexltags
