// SPDX-License-Identifier: MIT
// Reads the same tokens of Python as the generated lexer.
#include "python/python_scanner.h"

#include <cstddef>
#include <iterator>

#include "base/character_class.h"
#include "base/word_table.h"
#include "engine/scanner_base.h"
#include "vocabulary/python_tokens.h"

namespace vexltags {
namespace {

enum class First : std::uint8_t { Unknown, Blank, LineEnd, Letter, Quote, Comment, Mark, Minus };

constexpr ByteTable<First> MakeFirstTable() {
  ByteTable<First> table{};
  for (unsigned c = 0; c < table.size(); ++c) {
    if (kLetters[c]) table[c] = First::Letter;
  }
  table[' '] = table['\t'] = First::Blank;
  table['\r'] = table['\n'] = First::LineEnd;
  table['"'] = table['\''] = First::Quote;
  table['#'] = First::Comment;
  table[':'] = table['('] = table[')'] = First::Mark;
  table['-'] = First::Minus;
  return table;
}
constexpr ByteTable<First> kFirst = MakeFirstTable();

constexpr WordTable<std::size(kPythonLiterals)> kKeywords(kPythonLiterals);

class PythonScanner : public ScannerBase {
 public:
  using ScannerBase::ScannerBase;

  bool ScanToken() {
    switch (kFirst[*at]) {
      case First::Blank:
        return ScanBlanks();
      case First::LineEnd:
        return SkipLineEnd();
      case First::Letter:
        return ScanWord();
      case First::Quote:
        return ScanString(at);
      case First::Comment:
        return SkipComment(at);
      case First::Mark:
        return ScanMark();
      case First::Minus:
        return ScanMinus();
      case First::Unknown:
        break;
    }
    Drop(1);
    return true;
  }

 private:
  // Each of the following reads one token or comment and returns true, or changes nothing and
  // returns false.

  bool ScanBlanks() {
    const auto column = at - cursor.columnZero;
    if (column < 0) return false;
    const Byte* next = at + 1;
    while (next < end && IsBlank(*next)) ++next;
    if (next < end && *next == '#') return SkipComment(next);
    if (next < end && IsLineEnd(*next)) {
      // Blanks before a line end commit to the rule for leading blanks. Elsewhere in a line this
      // rule fails after them, and the token loop drops the next character.
      at = next;
      SkipLineEnd();
      if (column > 0) Drop(1);
      return true;
    }
    if (column > 0) {
      at = next;
      return true;
    }
    return Take(kPythonLeadingWhitespace, next);
  }

  // The line end belongs to the comment, so a comment without one is no token.
  bool SkipComment(const Byte* hash) {
    const Byte* stop = FindLineEnd(hash);
    if (stop == end) return false;
    at = stop;
    return SkipLineEnd();
  }

  bool ScanWord() {
    const Byte* next = EndOfWord(at, end);
    const auto length = next - at;
    if (length == 1 && (*at == 'r' || *at == 'R') && next < end &&
        (*next == '"' || *next == '\'')) {
      return ScanString(next);
    }
    return Take(kKeywords.Find(at, static_cast<std::size_t>(length), kPythonName), next);
  }

  bool ScanMark() {
    return Take(*at == ':' ? kPythonColon : *at == '(' ? kPythonLParen : kPythonRParen, at + 1);
  }

  // A minus commits to the arrow. If no `>` follows, the failed comparison drops the minus and the
  // next character, and the token loop one more.
  bool ScanMinus() {
    if (Ahead(1) == '>') return Take(kPythonArrow, at + 2);
    Drop(3);
    return true;
  }

  bool ScanString(const Byte* quote) {
    const bool isLong = end - quote >= 3 && quote[1] == *quote && quote[2] == *quote;
    for (const Byte* next = quote + (isLong ? 3 : 1); next < end; ++next) {
      if (*next == '\\') {
        if (++next == end) return false;
      } else if (*next == *quote) {
        if (!isLong) return SkipLines(next + 1);
        if (end - next >= 3 && next[1] == *quote && next[2] == *quote) return SkipLines(next + 3);
      } else if (*next == '\n' && !isLong) {
        return false;
      }
    }
    return false;
  }

  // Counts an error, which costs so many characters.
  void Drop(std::ptrdiff_t characters) {
    SkipLines(end - at > characters ? at + characters : end);
    ++cursor.errors;
  }
};

}  // namespace

void ScanPython(ScanCursor& cursor, TokenTable& table) { RunScanner<PythonScanner>(cursor, table); }

}  // namespace vexltags
