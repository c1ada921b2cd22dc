// SPDX-License-Identifier: MIT
// Joins pieces of source text with one blank.
#pragma once

#include <string>
#include <string_view>

namespace vexltags {

/// Appends `piece` to `text` with one blank between them. No blank is added to an empty text or
/// behind one that ends in a blank, and an empty piece changes nothing. `piece` must not be part of
/// `text`. Returns `text`.
const std::string& AppendWithSpace(std::string& text, std::string_view piece);

}  // namespace vexltags
