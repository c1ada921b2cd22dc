// SPDX-License-Identifier: MIT
// Sorts the tags of all files without copying them.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "tree/tag_entry.h"

namespace vexltags::tree {

/// The tags of one file of the output.
struct TaggedFile {
  std::string_view entries;   ///< See tag_entry.h; the caller keeps them.
  std::string field;          ///< The file field, as it is to be written.
  std::string_view language;  ///< From `LanguageName`.
  std::string rest;           ///< The part of a raw line whose end was cut off.
  bool hasOddLines = false;
  std::uint32_t rank = 0;  ///< Set by `RankFiles`.
};

/// Numbers the files by their fields, with the tab that follows, in the order of bytes.
void RankFiles(std::span<TaggedFile> files);

/// A tag: an entry of a file.
struct TagPlace {
  std::uint64_t key = 0;  ///< Used while sorting, with `more`: sixteen bytes of the name.
  std::uint64_t more = 0;
  std::uint32_t file = 0;  ///< The index of the file.
  std::uint32_t at = 0;    ///< The offset of the entry.
};

enum class TagOrder : std::uint8_t {
  kFiles,     ///< In the order of the files.
  kBytes,     ///< Name by bytes, file field, then the rest.
  kFoldDown,  ///< The same with the name folded to lower case first, as `vexltags` sorts.
  kFoldUp,    ///< The same with the name folded to upper case first, as readers expect.
};

/// How two tags with the same name in the same file are ordered.
enum class TieOrder : std::uint8_t { kBytes, kLines };

/// Returns the tags of all `files`, which are ranked, in order. Uses up to `threads` threads.
std::vector<TagPlace> SortTags(std::span<const TaggedFile> files, TagOrder order, TieOrder ties,
                               int threads);

/// Compares texts as they are with `end` after them; less than, equal to or greater than 0.
int CompareEnded(std::string_view a, std::string_view b, char end);

/// Compares a name with that of another tag in one of the orders; less than, equal to or greater
/// than 0.
int CompareNames(std::string_view a, std::string_view b, TagOrder order);

}  // namespace vexltags::tree
