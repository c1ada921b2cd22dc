// SPDX-License-Identifier: MIT
// The reading of C, C++ and Objective-C files.
#include "thorough/main_reading.h"

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

/// Blanks the `*` of each `/*` in a string of a directive, which the lexer takes for the beginning
/// of a comment, and comments after other directives than definitions, of which it takes only the
/// first line. `bytes` are those of `text`.
void HideComments(std::string_view text, char* bytes) {
  constexpr std::size_t kLongestLine = 512;
  std::size_t line = 0;    // Where the line begins.
  std::size_t looked = 0;  // Before this, its beginning has been looked for.
  for (std::size_t at = text.find("/*"); at != std::string_view::npos;) {
    const std::size_t newline = text.substr(looked, at - looked).rfind('\n');
    if (newline != std::string_view::npos) line = looked + newline + 1;
    looked = at;
    // Longer ones are taken as they are.
    const std::string_view before = text.substr(line, at - line < kLongestLine ? at - line : 0);
    const std::size_t first = before.find_first_not_of(" \t");
    const bool isDirective = first != std::string_view::npos && before[first] == '#';
    if (isDirective && EndsInString(before)) {
      bytes[at + 1] = ' ';
      at = text.find("/*", at + 2);
      continue;
    }
    const std::size_t close = text.find("*/", at + 2);
    if (close == std::string_view::npos) return;
    if (isDirective && !IsDefinition(before.substr(first + 1))) Blank(bytes, at, close + 2);
    at = text.find("/*", close + 2);
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
  HideComments(text, bytes);
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
