// SPDX-License-Identifier: MIT
// What one file gave.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "tree/bytes.h"

namespace vexltags::tree {

enum class FileStatus : std::uint8_t {
  kRead,
  kUnreadable,  ///< It could not be opened or read.
  kDied,        ///< The worker that read it died.
};

/// What reading one file found out about it, apart from its tags.
struct FileInfo {
  FileStatus status = FileStatus::kRead;
  std::uint64_t hash = 0;  ///< Of its content.
  std::int64_t size = 0;   ///< Of its content, in bytes.
  std::string stored;      ///< The file field of raw lines.
  std::uint32_t tagCount = 0;
  std::int32_t anonCount = 0;  ///< How many names `__anonN` it has.
  /// The number after which these names are numbered, if it cannot be changed afterwards; else -1,
  /// and they are numbered from 1.
  std::int32_t anonStart = -1;
  bool isUtf8 = true;        ///< All source lines of its tags are valid UTF-8.
  bool hasOddLines = false;  ///< Some raw lines have no usual form.
  std::string rest;          ///< The part of a raw line whose end was cut off.
  std::uint32_t lexerErrors = 0;
  std::uint32_t parserErrors = 0;
  std::int32_t lines = 0;         ///< Where reading ended.
  std::int32_t lastTag = 0;       ///< The last line with a tag.
  std::uint32_t skipped = 0;      ///< Tokens at which nothing could begin.
  std::int32_t firstSkipped = 0;  ///< The line of the first of them.
  std::string unknownWords;  ///< Words that look like macros and are unknown, each with newline.
};

/// What reading one file found out about it.
struct FileResult {
  FileInfo info;
  Bytes entries;  ///< Its tags, see tag_entry.h.
  Bytes lookups;  ///< The words that were looked up, see lookups.h.
};

/// What is needed of all files in each run.
struct InfoHead {
  std::int32_t anonCount = 0;
  std::int32_t anonStart = -1;
  std::uint32_t tagCount = 0;
  bool isUtf8 = true;
  bool isOdd = false;  ///< It has odd lines, or a rest.
};
InfoHead HeadOf(const FileInfo& info);
/// Reads the head of what `EncodeInfo` returned, without the rest.
InfoHead DecodeHead(std::string_view bytes);

/// The info as bytes, and back; false if `bytes` are not such.
std::string EncodeInfo(const FileInfo& info);
bool DecodeInfo(std::string_view bytes, FileInfo& info);

}  // namespace vexltags::tree
