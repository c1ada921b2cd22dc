// SPDX-License-Identifier: MIT
// Reads Python's tokens by hand: the same ones that the generated lexer would give.
#include "python/python_scanner.h"

#include <cstring>
#include <iterator>

#include "base/character_class.h"
#include "vocabulary/python_tokens.h"

namespace vexltags {
namespace {

using Byte = unsigned char;

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

class PythonScanner {
 public:
  PythonScanner(ScanCursor& cursor, TokenTable& table)
      : cursor(cursor), table(table), at(cursor.at), end(cursor.end) {}

  void Run() {
    while (at < end && ScanToken()) {
    }
    cursor.at = at;
  }

 private:
  // Each reads one token and returns true, or leaves everything as it is and returns false.

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

  bool ScanBlanks() {
    const auto column = at - cursor.columnZero;
    if (column < 0) return false;
    const Byte* next = at + 1;
    while (next < end && (*next == ' ' || *next == '\t')) ++next;
    if (next < end && *next == '#') return SkipComment(next);
    if (next < end && (*next == '\r' || *next == '\n')) {
      // Blanks with a line end commit to the rule for leading ones. Anywhere else in a line that
      // one fails when it has read them, and the token loop drops the next character.
      at = next;
      SkipLineEnd();
      if (column > 0) Drop(1);
      return true;
    }
    if (column > 0) {
      at = next;
      return true;
    }
    table.Add(kPythonLeadingWhitespace, at, next, cursor.line);
    at = next;
    return true;
  }

  bool SkipLineEnd() {
    if (*at == '\r') {
      ++at;
      if (at == end || *at != '\n') return true;
    }
    NextLine(at);
    ++at;
    return true;
  }

  // The line end belongs to the comment, so a comment without one is no token.
  bool SkipComment(const Byte* hash) {
    // The newline is remembered: where lines end in `\r` alone it may be far.
    if (hash < newlineFrom || hash > newline) {
      newlineFrom = hash;
      newline = Find('\n', hash, end);
    }
    const Byte* stop = Find('\r', hash, newline);
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
    const unsigned type = kKeywords.Find(at, static_cast<std::size_t>(length), kPythonName);
    table.Add(type, at, next, cursor.line);
    at = next;
    return true;
  }

  bool ScanMark() {
    const unsigned type = *at == ':' ? kPythonColon : *at == '(' ? kPythonLParen : kPythonRParen;
    table.Add(type, at, at + 1, cursor.line);
    ++at;
    return true;
  }

  // A minus commits to the arrow. Where no `>` follows, the comparison drops that character and the
  // token loop one more.
  bool ScanMinus() {
    if (end - at >= 2 && at[1] == '>') {
      table.Add(kPythonArrow, at, at + 2, cursor.line);
      at += 2;
      return true;
    }
    Drop(3);
    return true;
  }

  bool ScanString(const Byte* quote) {
    const bool isLong = end - quote >= 3 && quote[1] == *quote && quote[2] == *quote;
    unsigned newlines = 0;
    const Byte* lastNewline = nullptr;
    for (const Byte* next = quote + (isLong ? 3 : 1); next < end; ++next) {
      const Byte* character = next;
      if (*next == '\\') {
        if (++next == end) return false;
      } else if (*next == *quote) {
        if (!isLong) return EndString(next + 1, newlines, lastNewline);
        if (end - next >= 3 && next[1] == *quote && next[2] == *quote) {
          return EndString(next + 3, newlines, lastNewline);
        }
      } else if (*next == '\n' && !isLong) {
        return false;
      }
      for (; character <= next; ++character) {
        if (*character != '\n') continue;
        ++newlines;
        lastNewline = character;
      }
    }
    return false;
  }

  bool EndString(const Byte* next, unsigned newlines, const Byte* lastNewline) {
    cursor.line += newlines;
    if (lastNewline != nullptr) cursor.columnZero = lastNewline + 1;
    at = next;
    return true;
  }

  // Counts an error that costs so many characters.
  void Drop(int characters) {
    for (; characters > 0 && at < end; --characters, ++at) {
      if (*at == '\n') NextLine(at);
    }
    ++cursor.errors;
  }

  // The first `c` from `from` on, or `limit`.
  static const Byte* Find(char c, const Byte* from, const Byte* limit) {
    const void* found = std::memchr(from, c, static_cast<std::size_t>(limit - from));
    return found == nullptr ? limit : static_cast<const Byte*>(found);
  }

  void NextLine(const Byte* lineEnd) {
    ++cursor.line;
    cursor.columnZero = lineEnd + 1;
  }

  ScanCursor& cursor;
  TokenTable& table;
  const Byte* at;
  const Byte* const end;
  const Byte* newlineFrom = end;  ///< The last search for a newline began here ...
  const Byte* newline = nullptr;  ///< ... and found this, or the end.
};

}  // namespace

void ScanPython(ScanCursor& cursor, TokenTable& table) { PythonScanner(cursor, table).Run(); }

}  // namespace vexltags
