// SPDX-License-Identifier: MIT
// Walks through the text of a C-family file from directive to directive.
#include "thorough/source_text.h"

#include <algorithm>
#include <cstddef>
#include <string>

#include "cfamily/directives.h"

namespace vexltags::thorough {
namespace {

constexpr std::size_t kNone = std::string_view::npos;

bool IsBlank(char c) { return c == ' ' || c == '\t'; }

bool IsWord(char c) { return kLettersAndDigits[static_cast<unsigned char>(c)]; }

}  // namespace

bool EndsInString(std::string_view line) {
  bool isOpen = false;
  for (std::size_t at = line.find('"'); at < line.size(); at = line.find('"', at + 1)) {
    if (!isOpen || line[at - 1] != '\\') isOpen = !isOpen;
  }
  return isOpen;
}

DirectiveKind DirectiveKindOf(std::string_view word) {
  if (word == "if") return DirectiveKind::If;
  if (word == "ifdef") return DirectiveKind::Ifdef;
  if (word == "ifndef") return DirectiveKind::Ifndef;
  if (word == "elif") return DirectiveKind::Elif;
  if (word == "elifdef") return DirectiveKind::Elifdef;
  if (word == "elifndef") return DirectiveKind::Elifndef;
  if (word == "else") return DirectiveKind::Else;
  if (word == "endif") return DirectiveKind::Endif;
  if (word == "define") return DirectiveKind::Define;
  if (word == "undef") return DirectiveKind::Undef;
  if (word == "include" || word == "import" || word == "include_next") {
    return DirectiveKind::Include;
  }
  if (word == "error") return DirectiveKind::Error;
  return DirectiveKind::Other;
}

bool SourceText::IsContinued(std::size_t newline) const {
  const bool hasReturn = newline > 0 && text[newline - 1] == '\r';
  const std::size_t end = newline - (hasReturn ? 1 : 0);
  return end > 0 && text[end - 1] == '\\';
}

std::size_t SourceText::CommentClose(std::size_t from) {
  if (noCommentCloses) return kNone;
  const std::size_t close = text.find("*/", from);
  if (close == kNone) {
    noCommentCloses = true;
    return kNone;
  }
  return close + 2;
}

std::size_t SourceText::EndOfDirective(std::size_t from) {
  std::size_t at = from;
  for (;;) {
    while (at < text.size() && text[at] != '\n' && MarkAt(at) == Mark::None) ++at;
    if (at >= text.size()) break;
    const char c = text[at];
    if (c == '\n') {
      std::size_t last = at;
      if (last > from && text[last - 1] == '\r') --last;
      if (last == from || text[last - 1] != '\\') return at;
      ++at;
    } else if (c == '/' && text.substr(at).starts_with("/*")) {
      const std::size_t past = CommentClose(at + 2);
      // One that is never closed ends with its line, so that the rest of the file can be read.
      if (past == kNone) return std::min(text.find('\n', at), text.size());
      at = past;
    } else if (c == '/' && text.substr(at).starts_with("//")) {
      at = std::min(text.find('\n', at), text.size());
      if (at < text.size() && IsContinued(at)) ++at;
    } else if (c == '"') {
      at = SkipLiteral(at);
    } else if (text.substr(at).starts_with("'\"'")) {
      at += 3;
    } else {
      ++at;
    }
  }
  return at;
}

Directive SourceText::ReadDirective(std::size_t begin) {
  std::size_t at = begin + 1;
  while (at < text.size() && IsBlank(text[at])) ++at;
  const std::size_t word = at;
  while (at < text.size() && IsWord(text[at])) ++at;
  Directive directive;
  directive.kind = DirectiveKindOf(text.substr(word, at - word));
  while (at < text.size() && IsBlank(text[at])) ++at;
  const std::size_t end = EndOfDirective(at);
  directive.begin = static_cast<std::uint32_t>(begin);
  directive.end = static_cast<std::uint32_t>(end);
  directive.argument = text.substr(at, end - at);
  return directive;
}

std::size_t SourceText::SkipComment(std::size_t from) {
  if (text.substr(from).starts_with("//")) {
    std::size_t at = from;
    for (;;) {
      at = text.find('\n', at);
      if (at == kNone) return text.size();
      if (!IsContinued(at)) return at;
      ++at;
    }
  }
  if (!text.substr(from).starts_with("/*")) return from;
  const std::size_t past = CommentClose(from + 2);
  return past == kNone ? text.size() : past;
}

bool SourceText::IsPrefix(std::size_t end) const {
  if (text.substr(0, end).ends_with("u8")) return end == 2 || !IsWord(text[end - 3]);
  return text[end - 1] == 'L' || text[end - 1] == 'u' || text[end - 1] == 'U';
}

std::size_t SourceText::FindBlockEnd(std::size_t open) {
  std::size_t depth = 0;
  for (at = open; at < text.size(); at = NextMark<Parentheses::Pass>(text, at)) {
    switch (MarkAt(at)) {
      case Mark::Slash: {
        const std::size_t past = SkipComment(at);
        at = past == at ? at + 1 : past;
        break;
      }
      case Mark::Quote:
      case Mark::Apostrophe:
        at = SkipLiteral(at);
        break;
      case Mark::Hash: {
        const Directive directive = ReadDirective(at);
        if (!HidesItsLineOnly(directive)) return kNone;
        at = directive.end;
        break;
      }
      default:
        if (text[at] == '{') ++depth;
        if (text[at] == '}' && --depth == 0) return at;
        ++at;
    }
    // Another search, for another block, must not look for the same end in vain.
    if (noCommentCloses || noRawStringCloses) at = text.size();
  }
  return kNone;
}

bool SourceText::HidesItsLineOnly(const Directive& directive) const {
  const std::string_view line = text.substr(directive.begin);
  switch (directive.kind) {
    case DirectiveKind::If:
      return !IfZeroMatch(line);
    case DirectiveKind::Ifdef:
      return !IfDefinedWellKnownNegative(line);
    case DirectiveKind::Ifndef:
    case DirectiveKind::Endif:
    case DirectiveKind::Undef:
    case DirectiveKind::Include:
    case DirectiveKind::Error:
      return true;
    default:
      return line.starts_with("#pragma ");
  }
}

std::size_t SourceText::SkipLiteral(std::size_t from) {
  const char quote = text[from];
  const bool followsWord = from > 0 && IsWord(text[from - 1]);
  if (quote == '\'' && followsWord && !IsPrefix(from)) return from + 1;  // As in 1'000'000.
  if (quote == '"' && followsWord && text[from - 1] == 'R' && !noRawStringCloses) {
    constexpr std::size_t kLongestDelimiter = 16;
    const std::size_t length = text.substr(from + 1, kLongestDelimiter + 1).find('(');
    if (length != kNone) {
      const std::size_t open = from + 1 + length;
      std::string close = ")";
      close += text.substr(from + 1, length);
      close += '"';
      const std::size_t end = text.find(close, open);
      if (end != kNone) return end + close.size();
      noRawStringCloses = true;
    }
  }
  std::size_t at = from + 1;
  while (at < text.size() && text[at] != quote && text[at] != '\n') {
    if (text[at] == '\\' && at + 1 < text.size()) {
      at += text[at + 1] == '\r' && at + 2 < text.size() && text[at + 2] == '\n' ? 3 : 2;
    } else {
      ++at;
    }
  }
  if (at < text.size() && text[at] == quote) ++at;
  return std::min(at, text.size());
}

}  // namespace vexltags::thorough
