// SPDX-License-Identifier: MIT
// Joins pieces of source text with one blank.
#pragma once

#include <string>
#include <string_view>

namespace vexltags {

/// Appends `piece` to `text` with one blank between them. Adds no blank to an empty text or after
/// one that ends in a blank; an empty piece changes nothing. `piece` must not point into `text`.
/// Returns `text`.
const std::string& AppendWithSpace(std::string& text, std::string_view piece);

}  // namespace vexltags
