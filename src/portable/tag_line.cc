// SPDX-License-Identifier: MIT
// Finds the ends of the fields, even if the path contains escaped tabs and newlines.
#include "portable/tag_line.h"

#include <charconv>
#include <cstddef>

namespace vexltags {
namespace {

constexpr std::string_view kAddressEnd = ";\"";
constexpr std::size_t kNone = std::string_view::npos;

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

/// Returns the length of the line number at the start of `text` if it is followed by `;"` and then
/// a tab or the end, else 0.
std::size_t NumberLength(std::string_view text) {
  std::size_t length = !text.empty() && text[0] == '-' ? 1 : 0;
  const std::size_t firstDigit = length;
  while (length < text.size() && IsDigit(text[length])) ++length;
  if (length == firstDigit || text.substr(length, 2) != kAddressEnd) return 0;
  const std::string_view rest = text.substr(length + kAddressEnd.size());
  return rest.empty() || rest[0] == '\t' ? length : 0;
}

bool EndsInEscape(std::string_view text) {
  std::size_t count = 0;
  while (count < text.size() && text[text.size() - 1 - count] == '\\') ++count;
  return count % 2 != 0;
}

LineForm ParseForeign(std::string_view line, std::size_t start, TagLine& tag) {
  const std::size_t tab = line.find('\t', start);
  if (tab == kNone) return EndsInEscape(line) ? LineForm::kOpenPath : LineForm::kNoTag;
  const std::string_view rest = line.substr(tab + 1);
  const bool isAddress = !rest.empty() && (IsDigit(rest[0]) || rest[0] == '/' || rest[0] == '?');
  if (!isAddress) return EndsInEscape(line) ? LineForm::kOpenPath : LineForm::kNoTag;
  tag.file = line.substr(start, tab - start);
  const std::size_t end = rest.find(";\"\t");
  tag.address = rest.substr(0, end);
  tag.fields = end == kNone ? std::string_view() : rest.substr(end + kAddressEnd.size());
  tag.numbered = false;
  return LineForm::kTag;
}

}  // namespace

LineForm ParseTagLine(std::string_view line, TagLine& tag) {
  const std::size_t nameEnd = line.find('\t');
  if (nameEnd == kNone) return LineForm::kNoTag;
  tag.name = line.substr(0, nameEnd);
  const std::size_t start = nameEnd + 1;
  for (std::size_t tab = line.find('\t', start); tab != kNone; tab = line.find('\t', tab + 1)) {
    const std::size_t length = NumberLength(line.substr(tab + 1));
    if (length == 0) continue;
    tag.file = line.substr(start, tab - start);
    tag.address = line.substr(tab + 1, length);
    tag.fields = line.substr(tab + 1 + length + kAddressEnd.size());
    tag.numbered = true;
    return LineForm::kTag;
  }
  return ParseForeign(line, start, tag);
}

long LineNumber(const TagLine& tag) {
  long number = 0;
  std::from_chars(tag.address.data(), tag.address.data() + tag.address.size(), number);
  return number;
}

std::string_view Field(std::string_view fields, int index) {
  for (;; --index) {
    if (fields.empty()) return fields;
    fields.remove_prefix(1);
    const std::size_t tab = fields.find('\t');
    if (index == 0) return fields.substr(0, tab);
    fields = tab == kNone ? std::string_view() : fields.substr(tab);
  }
}

}  // namespace vexltags
