// SPDX-License-Identifier: MIT
// Writes tags in the forms that callers of ctags read.
#pragma once

#include <string>
#include <string_view>

#include "ctags/file_tags.h"
#include "ctags/settings.h"

namespace vexltags::ctags {

/// Appends the line of `tag`, from the file `path` of `language`, in the tags format. The fields
/// are those of the settings, the kind first. The characters that separate fields and lines have
/// escapes, unless the form is the older one: it then returns false and appends nothing if there
/// are any.
bool AppendTagsFormat(std::string& out, const Tag& tag, const std::string& path,
                      const Language& language, const Settings& settings);

/// Appends `tag` as a JSON object on a line of its own. The kind is a word.
void AppendJsonFormat(std::string& out, const Tag& tag, const std::string& path,
                      const Language& language, const Settings& settings);

/// Appends a line as `Settings::xformat` has it: `%` with an optional width (`-` to the left), and
/// the letter or `{name}` of a field. A field without a value is empty.
void AppendXrefFormat(std::string& out, const Tag& tag, const std::string& path,
                      const Language& language, const Settings& settings);

/// Appends the header lines of a tags file, in the order of their bytes. `folder` is the working
/// directory.
void AppendHeader(std::string& out, const Settings& settings, const std::string& folder);

/// Appends `text` with escapes for what separates fields and lines, for control characters and for
/// backslashes.
void AppendEscaped(std::string& out, std::string_view text);

}  // namespace vexltags::ctags
