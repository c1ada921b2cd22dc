// SPDX-License-Identifier: MIT
// Writes a tag as a JSON object.
#pragma once

#include <string>

#include "formats/tag_record.h"

namespace vexltags {

/// Appends `tag` as one line with its newline. The fields have the names and types that Universal
/// Ctags gives them: `_type` ("tag"), name, path, pattern (as `AppendSearchPattern` writes it),
/// language, line, typeref, kind (`KindName`), scope and scopeKind. Fields without a value are left
/// out. The text is ASCII except where the source is not; each byte that is not valid UTF-8 becomes
/// U+FFFD.
void AppendJson(std::string& out, const TagRecord& tag);

}  // namespace vexltags
