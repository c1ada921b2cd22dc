// SPDX-License-Identifier: MIT
// Rewrites a tags file so that readers find in it what they are strict about.
#pragma once

#include <cstdio>
#include <string>

#include "output/file_writer.h"

namespace vexltags {

/// What a rewriting needs to know beside the file.
struct RewriteOptions {
  std::string home;       ///< What `~/` stands for, without the slash; empty to leave it.
  std::string inputName;  ///< The file's name in messages.
};

/// Reads the tags file `input` and writes it to `output`, which stays open:
///   - a header whose fields have tabs between them, and of which each line has three;
///   - the tags in the order that readers expect for the file's sort mark;
///   - plain paths; a tag whose path cannot stand in a line is left out with a message, one a path;
///   - a key for each Swift scope.
/// All else stays as it is; rewriting the result again changes nothing. An unsorted file is written
/// as it is read, others are held in memory. Returns 0, or -1 after a message on standard error
/// when this is no tags file, or when reading or writing fails; some of it may be written by then.
int RewriteTags(std::FILE* input, const RewriteOptions& options, FileWriter& output);

}  // namespace vexltags
