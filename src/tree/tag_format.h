// SPDX-License-Identifier: MIT
// Writes the tags of a tree in the format that was asked for.
#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "formats/tags_line.h"
#include "tree/tag_sort.h"

namespace vexltags::tree {

enum class Format : std::uint8_t { kTags, kRaw, kJson, kEtags };

/// What the output looks like.
struct OutputStyle {
  Format format = Format::kTags;
  Address address = Address::kCombined;
  int sort = 1;         ///< 0: in the order of the files, 1: by bytes, 2: with case folded.
  bool isUtf8 = false;  ///< All lines are valid UTF-8.

  bool operator==(const OutputStyle&) const = default;
};

/// The order of the tags in this style.
TagOrder OrderOf(const OutputStyle& style);
TieOrder TiesOf(const OutputStyle& style);

/// The header lines, if the format has them.
std::string HeaderOf(const OutputStyle& style);

/// Appends single tags in a style. Not thread-safe; each thread has its own.
class TagFormatter {
 public:
  explicit TagFormatter(const OutputStyle& style) : style(style) {}
  /// Appends a tag. Appends nothing if the format cannot express it.
  void Append(std::string& out, const TaggedFile& file, const TagEntry& entry);
  /// Appends the section of a file in a format that has such.
  void AppendSection(std::string& out, const TaggedFile& file);

 private:
  bool ReadRecord(const TaggedFile& file, const TagEntry& entry, std::string& text, TagRecord& tag);

  OutputStyle style;
  std::string line;
  TagRecord record;
};

/// Takes bytes of the output in order; false if they cannot be written.
using ByteSink = std::function<bool(std::string_view)>;

/// Writes everything: header and tags, sorted with up to `threads` threads. `files` are in the
/// order of the list. Returns false as soon as `sink` does.
bool WriteAllTags(std::span<TaggedFile> files, const OutputStyle& style, int threads,
                  const ByteSink& sink);

}  // namespace vexltags::tree
