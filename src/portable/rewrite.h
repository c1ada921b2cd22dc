// SPDX-License-Identifier: MIT
// Rewrites a tags file for readers that are strict about the format.
#pragma once

#include <cstdio>
#include <string>

#include "output/file_writer.h"

namespace vexltags {

/// Parameters of a rewrite.
struct RewriteOptions {
  std::string home;       ///< Replaces `~`, without a trailing slash; empty to keep `~/`.
  std::string inputName;  ///< The name of the input in messages.
};

/// Reads the tags file `input` and writes it to `output`, which stays open, with these changes:
///   - header lines have three fields, separated by tabs;
///   - tags are in the order that readers expect for the sort mark of the file;
///   - paths are plain; tags whose path contains a tab or newline are skipped, with one message per
///     path;
///   - each Swift scope has a key.
/// Everything else is unchanged, and rewriting the result again changes nothing. An unsorted file
/// is written while it is read; other files are held in memory. Returns 0, or -1 if `input` is not
/// a tags file or if reading or writing fails; part of the output may have been written by then.
/// Reports errors other than failed writes to standard error.
int RewriteTags(std::FILE* input, const RewriteOptions& options, FileWriter& output);

}  // namespace vexltags
