// SPDX-License-Identifier: MIT
// A tag as the writers of all formats take it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace vexltags {

/// A tag and its place in a source file. The views refer to memory of the caller.
struct TagRecord {
  std::string_view name;       ///< As in the tag line: no tab and no newline.
  std::string path;            ///< As it is to be written, without escapes.
  std::int32_t line = 0;       ///< 1-based; less than 1 if it is not known.
  char kind = ' ';             ///< A letter of output/kinds.h.
  std::string_view scopeKind;  ///< Such as "class"; empty without a scope, or if it is not known.
  std::string_view scope;      ///< The names of the scopes; empty without one.
  std::string_view typeref;    ///< Such as "struct:geo::Point"; empty if there is none.
  std::string_view language;   ///< From `LanguageName`.
  std::string_view text;       ///< The source line, without its line end.
  std::size_t offset = 0;      ///< The byte offset of `text` in the file.
};

/// Parses `line`, a tag line as `vexltags` writes it, without its newline. Sets name, line, kind,
/// scope and typeref of `tag` as views into `line`, and leaves the rest unchanged. A Swift scope
/// has no kind in such a line: see `AddSwiftScopeKinds`. Returns false, with `tag` unchanged, if
/// the line is not a tag with a line number and a kind.
bool ReadRawTag(std::string_view line, TagRecord& tag);

}  // namespace vexltags
