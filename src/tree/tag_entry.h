// SPDX-License-Identifier: MIT
// The tags of one file in a compact form, from which every output format can be written.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace vexltags::tree {

/// One tag of a file. The views refer to the text that it was read from.
struct TagEntry {
  std::string_view name;
  std::string_view rest;  ///< What follows the tab after the file field: `12;"<Tab>f`.
  /// The source line that the tag is on, without its line end; at most `kMostText` bytes.
  std::string_view text;
  std::uint64_t offset = 0;    ///< The byte offset of `text` in the source.
  std::string_view scopeKind;  ///< For Swift, whose raw lines do not have it; otherwise empty.
  /// The raw line has no file field of the usual form: `rest` is all that follows its first tab.
  bool isWhole = false;
  bool hasTab = true;  ///< False if the raw line has no tab at all.
  /// `rest` is that of a `PlainTag`, there is no `scopeKind`, and `text` is readable.
  bool isPlain = false;
};

/// More than the longest search pattern, so that a longer line is still seen to be longer.
inline constexpr std::size_t kMostText = 160;

/// Appends `entry` to the entries of a file.
void AppendEntry(std::string& entries, const TagEntry& entry);

/// Reads the entry at offset `at` and sets `at` to that of the next one. False if there is none.
bool ReadEntry(std::string_view entries, std::size_t& at, TagEntry& entry);

/// Does the same without reading the entry.
bool SkipEntry(std::string_view entries, std::size_t& at);

/// Appends the raw line of `entry` with its newline. `stored` is the file field.
void AppendRawLine(std::string& out, const TagEntry& entry, std::string_view stored);

/// Splits `line`, a raw line without its newline, into `entry`, whose other members it leaves
/// alone.
void SplitRawLine(std::string_view line, std::string_view stored, TagEntry& entry);

/// The name of the entry at offset `at`, which `SkipEntry` has found to be one, with a tab after
/// it.
std::string_view NameWithTab(std::string_view entries, std::size_t at);

/// The 1-based line of a tag from `rest`, what follows its file field; 0 if there is none.
std::int32_t LineOf(std::string_view rest);

/// Adds `base` to the number of each made-up name `__anonN`.
std::string RenumberAnon(std::string_view entries, std::int32_t base);

}  // namespace vexltags::tree
