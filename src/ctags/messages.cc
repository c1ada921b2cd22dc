// SPDX-License-Identifier: MIT
// The messages of vexltags-ctags.
#include "ctags/messages.h"

#include <cstdio>

namespace vexltags::ctags {

void Report(const std::string& text) {
  std::string line = "vexltags-ctags: ";
  for (const char c : text) {
    // A line break or control character in a path must not pass for a line of its own.
    line += static_cast<unsigned char>(c) < ' ' || c == '\x7f' ? '?' : c;
  }
  line += '\n';
  std::fputs(line.c_str(), stderr);
}

void Warn(const std::string& text) { Report("Warning: " + text); }

int Fail(const std::string& text) {
  Report(text);
  return kFailure;
}

}  // namespace vexltags::ctags
