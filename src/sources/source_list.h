// SPDX-License-Identifier: MIT
// Finds the source files of a project.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "sources/ignore_patterns.h"
#include "sources/source_suffixes.h"

namespace vexltags {

/// What identifies the content of a file without reading it.
struct FileStamp {
  std::uint64_t device = 0;
  std::uint64_t inode = 0;
  std::int64_t size = 0;        ///< Bytes.
  std::int64_t modifiedAt = 0;  ///< Nanoseconds since 1970.

  bool operator==(const FileStamp&) const = default;
};

/// A source file.
struct Source {
  std::string path;  ///< The argument that led to it, with the rest of the path appended.
  FileStamp stamp;   ///< Of the file that a symbolic link refers to.
};

/// What to list.
struct SourceOptions {
  /// Patterns of paths to leave out, negated ones of paths to take, in the order of the command
  /// line. They are relative to each directory argument.
  IgnorePatterns patterns;
  LanguageSet languages = kAllLanguages;
  bool useGit = true;  ///< False to walk through work trees as through other directories.
};

/// The result of a search.
struct SourceList {
  std::vector<Source> sources;        ///< Sorted by the bytes of their paths, each file once.
  std::vector<std::string> problems;  ///< Messages on what could not be read; the rest is listed.
  std::vector<std::string> missing;   ///< Arguments that do not exist, each with the reason.
};

/// Lists the sources of `arguments`, files and directories; an empty list is the working directory.
///
/// In a git work tree these are files that git tracks or would track, in submodules and nested
/// repositories too. Any other directory is walked: directories of version control, hidden ones,
/// installed packages and caches are left out, and symbolic links to directories are not followed.
/// A file is a source by its suffix, or without one by its first lines. A file that is an argument,
/// or that a negated pattern matches by name, may have any suffix. Only regular files are listed; a
/// symbolic link to a file counts unless that file is listed, too.
SourceList ListSources(const std::vector<std::string>& arguments, const SourceOptions& options);

/// Patterns of what a walk leaves out.
const std::vector<std::string>& DefaultExcludes();

}  // namespace vexltags
