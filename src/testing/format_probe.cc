// SPDX-License-Identifier: MIT
// Converts tag lines of `vexltags` to another format: a test aid for what other programs read.
//
//   format_probe combined|line|pattern|json|etags <TAGS
//
// The paths of the tags have to be relative to the working directory, so that the source lines can
// be read. The first three write a tags file sorted by bytes with this form of address. Tags are
// skipped where the format cannot express their path.
#include <fstream>
#include <iostream>
#include <iterator>
#include <map>
#include <string>
#include <vector>

#include "formats/etags.h"
#include "formats/json.h"
#include "formats/language_names.h"
#include "formats/readable_text.h"
#include "formats/source_lines.h"
#include "formats/swift_scope_kinds.h"
#include "formats/tags_line.h"
#include "portable/portable_order.h"
#include "portable/portable_path.h"
#include "portable/tag_line.h"

namespace {

using vexltags::Address;
using vexltags::TagRecord;

std::string Rest(std::istream& stream) {
  return std::string(std::istreambuf_iterator<char>(stream), {});
}

/// The tag lines of each file, by its plain path. A path may contain newlines.
std::map<std::string, std::vector<std::string>> ReadTags() {
  std::map<std::string, std::vector<std::string>> files;
  std::string line;
  for (std::string more; std::getline(std::cin, more);) {
    line += more;
    vexltags::TagLine tag;
    const vexltags::LineForm form = vexltags::ParseTagLine(line, tag);
    if (form == vexltags::LineForm::kOpenPath) {
      line += '\n';
      continue;
    }
    // Header lines look like tags of other programs.
    if (form == vexltags::LineForm::kTag && tag.numbered)
      files[vexltags::PlainPath(tag.file, "")].push_back(line);
    line.clear();
  }
  return files;
}

}  // namespace

int main(int argc, char** argv) {
  const std::string format = argc == 2 ? argv[1] : "";
  const std::map<std::string, Address> addresses = {
      {"combined", Address::kCombined}, {"line", Address::kLine}, {"pattern", Address::kPattern}};
  const auto address = addresses.find(format);
  if (address == addresses.end() && format != "json" && format != "etags") return 2;

  std::string out;
  std::vector<vexltags::NamedLine> lines;
  for (const auto& [path, tagLines] : ReadTags()) {
    std::ifstream file(path, std::ios::binary);
    const std::string text = Rest(file);
    const vexltags::SourceLines sourceLines(text);
    std::vector<TagRecord> tags;
    for (const std::string& line : tagLines) {
      TagRecord tag;
      if (!vexltags::ReadRawTag(line, tag)) return 1;
      const vexltags::SourceLine source = sourceLines.Line(tag.line);
      tag.path = path;
      tag.language = vexltags::LanguageName(path);
      tag.text = source.text;
      tag.offset = source.offset;
      tags.push_back(tag);
    }
    if (path.ends_with(".swift")) vexltags::AddSwiftScopeKinds(tags);
    if (format == "etags") vexltags::AppendEtagsSection(out, path, tags);
    for (const TagRecord& tag : tags) {
      if (format == "json") vexltags::AppendJson(out, tag);
      if (address == addresses.end()) continue;
      std::string line;
      if (AppendTagsLine(line, tag, address->second)) lines.push_back({line, tag.name.size()});
    }
  }
  if (address != addresses.end()) {
    vexltags::SortForReaders(lines, '1');
    std::string body;
    for (const vexltags::NamedLine& line : lines) body += line.text;
    vexltags::AppendTagsHeader(out, '1', vexltags::Utf8Length(body) == body.size());
    out += body;
  }
  std::cout << out;
  return 0;
}
