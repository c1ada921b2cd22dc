// SPDX-License-Identifier: MIT
// The names of languages as other indexers spell them.
#pragma once

#include <string_view>

namespace vexltags {

/// Returns the language of a file by its suffix: "Swift", "Python", "C" for `.c`, "ObjectiveC" for
/// `.m` and `.mm`, else "C++", which includes all headers. Case-sensitive, as the choice of the
/// language is when a file is read.
std::string_view LanguageName(std::string_view path);

}  // namespace vexltags
