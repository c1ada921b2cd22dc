// SPDX-License-Identifier: MIT
// The reading of C, C++ and Objective-C files.
#include "thorough/main_reading.h"

#include <algorithm>
#include <string_view>

#include "base/character_class.h"
#include "cfamily/main_scanner.h"
#include "cfamily/main_words.h"
#include "thorough/conditionals.h"
#include "thorough/declaration_pass.h"
#include "thorough/skipped_block.h"
#include "thorough/source_text.h"
#include "vocabulary/main_tokens.h"

namespace vexltags::thorough {
namespace {

std::string_view TextOf(pANTLR3_INPUT_STREAM input) {
  return {static_cast<const char*>(input->data), input->sizeBuf};
}

/// True when the text has a directive that can make a choice necessary: a second branch, or a
/// condition that begins with a digit.
bool HasChoice(std::string_view text) {
  for (std::size_t at = text.find('#'); at != std::string_view::npos; at = text.find('#', at + 1)) {
    std::size_t word = at + 1;
    while (word < text.size() && (text[word] == ' ' || text[word] == '\t')) ++word;
    const std::string_view ahead = text.substr(word, 3);
    if (ahead.starts_with("el")) return true;
    if (!ahead.starts_with("if ") && !ahead.starts_with("if\t") && !ahead.starts_with("if(")) {
      continue;
    }
    word += 2;
    while (word < text.size() && (text[word] == ' ' || text[word] == '\t' || text[word] == '(')) {
      ++word;
    }
    if (word < text.size() && text[word] >= '0' && text[word] <= '9') return true;
  }
  return false;
}

void Blank(char* bytes, std::size_t begin, std::size_t end) {
  for (std::size_t i = begin; i < end; ++i) {
    if (bytes[i] != '\n' && bytes[i] != '\r') bytes[i] = ' ';
  }
}

/// True for what follows the `#` of a `#define`.
bool IsDefinition(std::string_view directive) {
  const std::size_t word = directive.find_first_not_of(" \t");
  return word != std::string_view::npos && directive.substr(word).starts_with("define");
}

/// Directives of more characters in a line are taken as they are.
constexpr std::size_t kLongestLine = 512;

/// True if a comment that begins not far before `at` is still open there.
bool IsInComment(std::string_view text, std::size_t at) {
  constexpr std::size_t kLongestComment = 4096;
  const std::size_t from = at - std::min(at, kLongestComment);
  const std::string_view before = text.substr(from, at - from);
  const std::size_t open = before.rfind("/*");
  if (open == std::string_view::npos) return false;
  return before.find("*/", open) == std::string_view::npos;
}

/// Blanks comments in the directive whose `#` is at `hash`, but for those of a definition, and the
/// `*` of each `/*` in a string. `bytes` are those of `text`. Returns false if a comment has no
/// end.
bool HideComments(std::string_view text, std::size_t hash, char* bytes) {
  const std::string_view line = text.substr(hash, kLongestLine);
  const std::size_t end = std::min(line.find('\n'), line.size());
  std::size_t first = hash;
  while (first > 0 && (text[first - 1] == ' ' || text[first - 1] == '\t')) --first;
  if (first > 0 && text[first - 1] != '\n') return true;
  const bool isDefinition = IsDefinition(line.substr(1));
  for (std::size_t at = line.find("/*"); at < end; at = line.find("/*", at + 2)) {
    if (EndsInString(line.substr(0, at))) {
      bytes[hash + at + 1] = ' ';
      continue;
    }
    if (isDefinition) return true;
    if (line.substr(0, end).find("*/", at + 2) != std::string_view::npos) continue;
    if (IsInComment(text, hash)) return true;
    const std::size_t close = text.find("*/", hash + at + 2);
    if (close == std::string_view::npos) return false;
    Blank(bytes, hash + at, close + 2);
  }
  return true;
}

/// Hides what the lexer would read in another way than a compiler: it takes what begins a comment
/// in a string of a directive for one, and only the first line of a comment after a directive that
/// is no definition.
void HideCommentsOfDirectives(std::string_view text, char* bytes) {
  std::size_t comment = 0;
  for (std::size_t at = text.find('#'); at != std::string_view::npos; at = text.find('#', at + 1)) {
    if (comment < at) comment = text.find("/*", at);
    if (comment == std::string_view::npos) return;
    if (comment - at >= kLongestLine) continue;
    if (text.substr(at, comment - at).find('\n') != std::string_view::npos) continue;
    if (!HideComments(text, at, bytes)) return;
  }
}

using Byte = unsigned char;

bool IsLetterAt(const Byte* at, const Byte* end) { return at < end && kLetters[*at]; }

/// A string or character literal with escapes that the lexer does not have. Ends with its line.
bool TakeLiteral(ScanCursor& cursor, TokenTable& table) {
  const Byte quote = *cursor.at;
  const Byte* next = cursor.at + 1;
  while (next < cursor.end && *next != quote && *next != '\n' && *next != '\r') {
    next += *next == '\\' && cursor.end - next > 1 && next[1] != '\n' && next[1] != '\r' ? 2 : 1;
  }
  if (next < cursor.end && *next == quote) ++next;
  table.Add(quote == '"' ? kMainStringLiteral : kMainCharLiteral, cursor.at, next, cursor.line);
  cursor.at = next;
  return true;
}

/// An `@` word of Objective-C that opens or ends nothing: it is left out.
bool SkipAtWord(ScanCursor& cursor) {
  const Byte* const begin = cursor.at + 1;
  if (!IsLetterAt(begin, cursor.end)) return false;
  const Byte* const past = EndOfWord(begin, cursor.end);
  const std::string_view word(reinterpret_cast<const char*>(begin),
                              static_cast<std::size_t>(past - begin));
  for (const std::string_view known :
       {"interface", "implementation", "protocol", "end", "property", "synthesize"}) {
    if (word == known) return false;
  }
  cursor.at = word == "class" ? begin : past;
  return true;
}

/// A word that opens or closes a namespace: a token that either expands to a learned definition or
/// is left out. One with arguments is left to the lexer.
bool TakeLibraryScope(ScanCursor& cursor, TokenTable& table) {
  const Byte* const past = EndOfWord(cursor.at, cursor.end);
  const std::string_view word(reinterpret_cast<const char*>(cursor.at),
                              static_cast<std::size_t>(past - cursor.at));
  if (!IsLibraryScope(word) || (past < cursor.end && *past == '(')) return false;
  table.Add(kMainLibCPPMacroEater, cursor.at, past, cursor.line);
  cursor.at = past;
  return true;
}

/// Reads what the scanner of the C family leaves to the generated lexer, where that would lose more
/// than it has to.
template <bool kSkipsBlocks>
void ScanThoroughly(ScanCursor& cursor, TokenTable& table) {
  for (;;) {
    (kSkipsBlocks ? ScanMainToBrace : ScanMain)(cursor, table);
    if (cursor.at >= cursor.end) return;
    bool goesOn = false;
    if (kSkipsBlocks && *cursor.at == '{') {
      if (!SkipBlock(cursor, table)) {
        table.Add(kMainLCurly, cursor.at, cursor.at + 1, cursor.line);
        ++cursor.at;
      }
      goesOn = true;
    } else if (*cursor.at == '"' || *cursor.at == '\'') {
      goesOn = TakeLiteral(cursor, table);
    } else if (*cursor.at == '@') {
      goesOn = SkipAtWord(cursor);
    } else if (*cursor.at == '_') {
      goesOn = TakeLibraryScope(cursor, table);
    }
    if (!goesOn) return;
  }
}

}  // namespace

void MainReading::SetFile(std::uint32_t newNumber) {
  number = newNumber;
  dialect = DialectOf(paths[number]);
  skipsBlocks = true;
}

void MainReading::PrepareText(pANTLR3_INPUT_STREAM input) {
  text = TextOf(input);
  auto* const bytes = static_cast<char*>(input->data);
  HideCommentsOfDirectives(text, bytes);
  if (!HasChoice(text)) return;
  for (const TextRange& range : DroppedText(text, dialect)) Blank(bytes, range.begin, range.end);
}

Scanner MainReading::ScannerFor(Scanner /*exact*/) {
  return skipsBlocks ? ScanThoroughly<true> : ScanThoroughly<false>;
}

bool MainReading::PrepareTokens(TokenTable& tokens) {
  expander.BeginFile(number, paths);
  expander.SetText(text);
  edits.Clear();
  if (!DeclarationPass(tokens, edits, expander, dialect).Run()) {
    skipsBlocks = false;
    return false;
  }
  tokens.Apply(edits);
  return true;
}

void MainReading::Parse(ItemParser& parser) { skipped = ParseResuming(parser); }

}  // namespace vexltags::thorough
