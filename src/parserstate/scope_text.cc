// SPDX-License-Identifier: MIT
// Extends and cuts the text as scopes open and close.
#include "parserstate/scope_text.h"

namespace vexltags {

void ScopeText::Open(const std::string& name) {
  levels.push_back({joined.size(), collapsed.size(), afterBlank});
  if (levels.size() > 1) Append(separator);
  Append(name);
}

void ScopeText::Close() {
  joined.resize(levels.back().joined);
  collapsed.resize(levels.back().collapsed);
  afterBlank = levels.back().afterBlank;
  levels.pop_back();
}

void ScopeText::Append(const std::string& text) {
  joined += text;
  for (const char c : text) {
    if (c == '\t' || c == '\n' || c == '\r' || c == ' ') {
      afterBlank = true;
      continue;
    }
    if (afterBlank) collapsed += ' ';
    afterBlank = false;
    collapsed += c;
  }
}

}  // namespace vexltags
