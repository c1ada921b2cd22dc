// SPDX-License-Identifier: MIT
// Joins pieces of source text.
#include "parserstate/append.h"

namespace vexltags {

const std::string& AppendWithSpace(std::string& text, std::string_view piece) {
  if (piece.empty()) return text;
  if (!text.empty() && text.back() != ' ') text += ' ';
  text += piece;
  return text;
}

}  // namespace vexltags
