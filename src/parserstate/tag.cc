// SPDX-License-Identifier: MIT
// From a tag's record to the pieces of its line.
#include "parserstate/tag.h"

#include <charconv>
#include <cstddef>
#include <string>

#include "base/text.h"

namespace vexltags {

namespace {

void PrintUnlessEmpty(Dumper& dumper, std::string_view text) {
  if (!text.empty()) dumper.Print(text);
}

/// As much of `text` as a formatted piece can hold: scopes nested by the thousand have long names.
std::string_view ForPiece(std::string_view text) { return text.substr(0, Dumper::kLongestPiece); }

void PrintField(Dumper& dumper, const TagField& field) {
  if (field.opening.empty()) return;
  if (!field.isPlain) {
    dumper.PrintPiece({field.opening, field.word, field.colon, ForPiece(field.text)});
    return;
  }
  dumper.Print(field.opening);
  PrintUnlessEmpty(dumper, field.word);
  PrintUnlessEmpty(dumper, field.colon);
  PrintUnlessEmpty(dumper, field.text);
}

/// What a line has between the file and the fields.
class LineAndKind {
 public:
  explicit LineAndKind(const Tag& tag) {
    *end++ = '\t';
    end = std::to_chars(end, end + kLongestNumber, tag.line).ptr;
    for (const char c : {';', '"', '\t', tag.kind}) *end++ = c;
  }
  std::string_view Text() const { return {text, static_cast<std::size_t>(end - text)}; }

 private:
  static constexpr std::size_t kLongestNumber = 20;
  char text[kLongestNumber + 5];
  char* end = text;
};

}  // namespace

TagField ScopeField(std::string_view word, std::string_view scope) {
  return {.opening = "\t", .word = word, .colon = ":", .text = scope};
}

TagField BareScopeField(std::string_view scope) { return {.opening = "\t", .text = scope}; }

TagField EnumField(std::string_view scope) { return {.opening = "\tenum:", .text = scope}; }

TagField TyperefField(std::string_view type) { return {.opening = "\ttyperef:", .text = type}; }

TagField TyperefField(std::string_view word, std::string_view type) {
  return {.opening = "\ttyperef:", .word = word, .colon = ":", .text = type};
}

TagField Plain(TagField field) {
  field.isPlain = true;
  return field;
}

void WriteTag(Dumper& dumper, const Tag& tag) {
  PrintUnlessEmpty(dumper, tag.prefix);
  if (HasWhitespace(tag.name)) {
    dumper.Print(CollapseWhitespace(tag.name, " "));
  } else {
    dumper.Print(tag.name);
  }
  PrintUnlessEmpty(dumper, tag.suffix);

  const LineAndKind afterFile(tag);
  if (tag.pieces == Tag::Pieces::kOne) {
    const TagField& field = tag.fields[0];
    if (field.opening.empty()) {
      dumper.PrintPiece({"\t", tag.file, afterFile.Text(), "\n"});
    } else {
      dumper.PrintPiece({"\t", tag.file, afterFile.Text(), field.opening, field.word, field.colon,
                         ForPiece(field.text), "\n"});
    }
    return;
  }
  if (tag.pieces == Tag::Pieces::kPlainFile) {
    dumper.Print("\t");
    dumper.Print(tag.file);
    dumper.Print(afterFile.Text());
  } else {
    dumper.PrintPiece({"\t", tag.file, afterFile.Text()});
  }
  for (const TagField& field : tag.fields) PrintField(dumper, field);
  dumper.Print("\n");
}

}  // namespace vexltags
