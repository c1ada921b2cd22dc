// SPDX-License-Identifier: MIT
// Writes the tags format in the form that Vim, Neovim and readtags read.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "formats/tag_record.h"

namespace vexltags {

/// The forms of an address.
enum class Address : std::uint8_t {
  kCombined,  ///< `11;/^int f() {$/` for line 12: a search that starts after line 11.
  kLine,      ///< `12`
  kPattern,   ///< `/^int f() {$/`
};

/// Appends the header lines. `sortMark` is '0', '1' (by bytes) or '2' (by names folded to upper
/// case) and has to be true of the lines that follow: see `SortForReaders`. `isUtf8` is whether
/// these are valid UTF-8; readers that use another encoding then convert them.
void AppendTagsHeader(std::string& out, char sortMark, bool isUtf8);

/// Appends the line of `tag` with its newline: name, path, address, kind, `line:` unless the
/// address is a line number, scope and `typeref:`. The address is the line number if the source
/// line has no text to search for, and 1 if the line is not known. Returns false and appends
/// nothing if the path contains a tab or newline, which the format cannot express.
bool AppendTagsLine(std::string& out, const TagRecord& tag, Address address);

/// Appends `/^…$/`, an Ex search for the source line `text` (without its line end). It is valid
/// with and without 'magic' as far as Vim's tag commands and readers of tags files go: `\`, `/` and
/// a `$` at the end have a backslash before them. Ends without `$` where the line is longer than
/// `kPatternLimit` or contains bytes that an editor may show in another form.
void AppendSearchPattern(std::string& out, std::string_view text);

/// The number of bytes after which a search pattern is cut, plus the rest of a character.
inline constexpr std::size_t kPatternLimit = 96;

}  // namespace vexltags
