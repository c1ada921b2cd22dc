// SPDX-License-Identifier: MIT
// Makes a new tags file from an existing one where few files have changed.
#pragma once

#include <cstddef>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "tree/tag_format.h"

namespace vexltags::tree {

/// A complete line of a sorted tags file, with its newline.
struct PatchLine {
  std::string text;
  std::size_t nameLength = 0;
  std::size_t fieldLength = 0;  ///< Of the file field.
};

/// Appends the lines of the tags of `file` in `style` to `lines`. False if one of them cannot be
/// part of a patch.
bool AppendPatchLines(const TaggedFile& file, const OutputStyle& style,
                      std::vector<PatchLine>& lines);

/// Takes a patched file in order. Its functions return false if they cannot write.
struct PatchSink {
  ByteSink write;
  /// Copies `size` bytes of the old file from the offset `begin`.
  std::function<bool(std::size_t begin, std::size_t size)> copy;
};

/// Passes the content of `old`, a tags file of this style, to `sink`, without the lines `removed`
/// and with the lines `added` in their places. `added` may have several lines with the same name
/// and file field, which then stay in this order. Returns false, possibly with part of the output
/// written, if a line to be removed is not there or `sink` fails.
bool PatchTags(std::string_view old, std::vector<PatchLine> removed, std::vector<PatchLine> added,
               const OutputStyle& style, const PatchSink& sink);

}  // namespace vexltags::tree
