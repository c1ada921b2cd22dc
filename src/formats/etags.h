// SPDX-License-Identifier: MIT
// Writes the tags tables of Emacs.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "formats/tag_record.h"

namespace vexltags {

/// Appends the section of the file `path`, which has the tags `tags` in the order in which they are
/// to be written. Each has its name in explicit form, its line, and its byte offset. A tag whose
/// line is not known is left out. Returns false and appends nothing if the path contains a newline,
/// which the format cannot express. Appends nothing, and returns true, if there are no tags.
bool AppendEtagsSection(std::string& out, std::string_view path, std::span<const TagRecord> tags);

}  // namespace vexltags
