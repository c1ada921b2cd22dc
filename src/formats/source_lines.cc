// SPDX-License-Identifier: MIT
// Keeps the offset of every line.
#include "formats/source_lines.h"

namespace vexltags {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

}  // namespace

SourceLines::SourceLines(std::string_view source) : text(source) {
  std::size_t start = text.starts_with(kByteOrderMark) ? kByteOrderMark.size() : 0;
  while (start < text.size()) {
    starts.push_back(start);
    const std::size_t end = text.find('\n', start);
    if (end == text.npos) break;
    endsInCrLf = endsInCrLf && end > start && text[end - 1] == '\r';
    start = end + 1;
  }
}

SourceLine SourceLines::Line(long number) const {
  if (number < 1 || static_cast<std::size_t>(number) > starts.size()) return {};
  const std::size_t start = starts[static_cast<std::size_t>(number) - 1];
  std::string_view line = text.substr(start);
  line = line.substr(0, line.find('\n'));
  if (endsInCrLf && line.ends_with('\r')) line.remove_suffix(1);
  return {line, start};
}

}  // namespace vexltags
