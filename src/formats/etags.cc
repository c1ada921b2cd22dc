// SPDX-License-Identifier: MIT
// A section is `FF NL PATH,SIZE NL` and a line `TEXT DEL NAME SOH LINE,OFFSET` for each tag, where
// TEXT is the start of the source line.
#include "formats/etags.h"

#include "formats/readable_text.h"
#include "formats/tags_line.h"

namespace vexltags {
namespace {

/// The maximum length of the text of a tag. Emacs has no limit of its own.
constexpr std::size_t kTextLimit = 500;

/// Returns the start of a source line that Emacs is to search for. It takes the text literally.
std::string_view SearchText(std::string_view line) {
  std::string_view text = ReadableText(line);
  text = text.substr(0, text.find_first_of("\f\x7f\x01"));
  if (text.size() <= kTextLimit) return text;
  std::size_t length = kTextLimit;
  while (length > 0 && (static_cast<unsigned char>(text[length]) & 0xC0) == 0x80) --length;
  return text.substr(0, length);
}

}  // namespace

bool AppendEtagsSection(std::string& out, std::string_view path, std::span<const TagRecord> tags) {
  if (path.find('\n') != path.npos) return false;
  std::string section;
  for (const TagRecord& tag : tags) {
    if (tag.line < 1) continue;
    section += SearchText(tag.text);
    section += '\x7f';
    section += tag.name;
    section += '\x01';
    section += std::to_string(tag.line);
    section += ',';
    section += std::to_string(tag.offset);
    section += '\n';
  }
  if (section.empty()) return true;
  out += "\f\n";
  out += path;
  out += ',';
  out += std::to_string(section.size());
  out += '\n';
  out += section;
  return true;
}

}  // namespace vexltags
