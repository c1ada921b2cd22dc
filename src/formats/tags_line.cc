// SPDX-License-Identifier: MIT
// Combines the line number and the search of an address so that editors take it.
//
// An address `N;/PATTERN/` is a range of two Ex addresses. Ex goes to line N first and searches
// from the line after it, so N is one less than the line of the tag; before the first line it is 0.
// If lines were added above, the search still finds the right one of several equal lines; if lines
// were removed, it continues at the start of the file. Vim 9.0 and Neovim 0.7 do so in Normal mode.
// (In Ex mode, `vim -e`, Vim rejects a range whose second line is before the first.) readtags takes
// everything up to `;"` for the address, and reads the line from the field `line:`.
#include "formats/tags_line.h"

#include "base/version.h"
#include "formats/readable_text.h"
#include "portable/portable_path.h"

namespace vexltags {
namespace {

bool ContinuesCharacter(char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; }

void AppendField(std::string& out, std::string_view key, std::string_view value) {
  out += '\t';
  out += key;
  if (!key.empty()) out += ':';
  out += value;
}

}  // namespace

void AppendTagsHeader(std::string& out, char sortMark, bool isUtf8) {
  if (isUtf8) out += "!_TAG_FILE_ENCODING\tutf-8\t//\n";
  out += "!_TAG_FILE_FORMAT\t2\t/extended format/\n!_TAG_FILE_SORTED\t";
  out += sortMark;
  out += "\t/0=unsorted, 1=sorted, 2=foldcase/\n!_TAG_PROGRAM_NAME\tvexltags\t//\n";
  out += "!_TAG_PROGRAM_VERSION\t";
  out += kVersion;
  out += "\t//\n";
}

void AppendSearchPattern(std::string& out, std::string_view text) {
  const std::string_view readable = ReadableText(text);
  bool isWhole = readable.size() == text.size();
  out += "/^";
  const std::size_t start = out.size();
  for (std::size_t i = 0; i < readable.size(); ++i) {
    const char c = readable[i];
    if (out.size() - start >= kPatternLimit && !ContinuesCharacter(c)) {
      isWhole = false;
      break;
    }
    const bool isLast = i + 1 == text.size();
    if (c == '\\' || c == '/' || (c == '$' && isLast)) out += '\\';
    out += c;
  }
  out += isWhole ? "$/" : "/";
}

bool AppendTagsLine(std::string& out, const TagRecord& tag, Address address) {
  if (!FitsInLine(tag.path)) return false;
  out += tag.name;
  out += '\t';
  out += tag.path;
  out += '\t';
  const std::string line = std::to_string(tag.line < 1 ? 1 : tag.line);
  const bool hasPattern =
      address != Address::kLine && tag.line >= 1 && !ReadableText(tag.text).empty();
  if (hasPattern) {
    if (address == Address::kCombined) {
      out += std::to_string(tag.line - 1);
      out += ';';
    }
    AppendSearchPattern(out, tag.text);
  } else {
    out += line;
  }
  out += ";\"";
  AppendField(out, "", std::string_view(&tag.kind, 1));
  if (hasPattern) AppendField(out, "line", line);
  if (!tag.scope.empty()) {
    AppendField(out, tag.scopeKind.empty() ? "scope" : tag.scopeKind, tag.scope);
  }
  if (!tag.typeref.empty()) AppendField(out, "typeref", tag.typeref);
  out += '\n';
  return true;
}

}  // namespace vexltags
