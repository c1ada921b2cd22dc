// SPDX-License-Identifier: MIT
// Reads the tokens of C, C++ and Objective-C by hand: the same ones that the generated lexer gives.
#include "cfamily/main_scanner.h"

#include <cstring>
#include <string_view>

#include "base/character_class.h"
#include "cfamily/directives.h"
#include "cfamily/main_words.h"
#include "vocabulary/main_tokens.h"

namespace vexltags {
namespace {

using Byte = unsigned char;

enum class First : std::uint8_t { Unknown, Blank, LineEnd, Letter, Digit, Mark, Other };

constexpr ByteTable<First> MakeFirstTable() {
  ByteTable<First> table{};
  for (unsigned c = 0; c < table.size(); ++c) {
    if (kLetters[c]) table[c] = First::Letter;
    if (c >= '0' && c <= '9') table[c] = First::Digit;
  }
  table[' '] = table['\t'] = First::Blank;
  table['\r'] = table['\n'] = First::LineEnd;
  for (const char c : {'(', ')', '{', '}', ']', ',', ';', '~', '?'}) {
    table[static_cast<Byte>(c)] = First::Mark;
  }
  for (const char c : {'/', '"', '\'', '#', '@', '[', '.', '<', '>', '-', '+', '*', '%', '^', '&',
                       '|', '!', '=', ':'}) {
    table[static_cast<Byte>(c)] = First::Other;
  }
  return table;
}
constexpr ByteTable<First> kFirst = MakeFirstTable();

constexpr ByteTable<std::uint8_t> MakeMarkTable() {
  ByteTable<std::uint8_t> table{};
  table['('] = kMainLParen;
  table[')'] = kMainRParen;
  table['{'] = kMainLCurly;
  table['}'] = kMainRCurly;
  table[']'] = kMainRSquare;
  table[','] = kMainComma;
  table[';'] = kMainSemicolon;
  table['~'] = kMainTilde;
  table['?'] = kMainQuestionMark;
  return table;
}
constexpr ByteTable<std::uint8_t> kMarks = MakeMarkTable();

bool IsDigit(Byte c) { return c >= '0' && c <= '9'; }
bool IsHexDigit(Byte c) { return IsDigit(c) || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F'); }
bool IsBlank(Byte c) { return c == ' ' || c == '\t'; }

class MainScanner {
 public:
  MainScanner(ScanCursor& cursor, TokenTable& table)
      : cursor(cursor), table(table), at(cursor.at), end(cursor.end) {}

  void Run() {
    while (at < end && ScanToken()) {
    }
    cursor.at = at;
  }

 private:
  // Each of the following reads one token, or blanks, and returns true, or leaves everything as it
  // is and returns false.

  bool ScanToken() {
    switch (kFirst[*at]) {
      case First::Blank:
        do {
          ++at;
        } while (at < end && kFirst[*at] == First::Blank);
        return true;
      case First::LineEnd:
        SkipLineEnd();
        return true;
      case First::Letter:
        return ScanWord();
      case First::Digit:
        return ScanNumber();
      case First::Mark:
        return Take(kMarks[*at], 1);
      case First::Other:
        return ScanOther();
      case First::Unknown:
        break;
    }
    table.AddDropped(at, at + 1);
    ++at;
    ++cursor.errors;
    return true;
  }

  bool ScanOther() {
    switch (*at) {
      case '/':
        return ScanSlash();
      case '"':
        return ScanString();
      case '\'':
        return ScanCharacter();
      case '#':
        return ScanDirective();
      case '[':
        return Ahead(1) != '[' && Take(kMainLSquare, 1);
      case '.':
        if (Ahead(1) == '*') return Take(kMainDotMember, 2);
        if (Ahead(1) != '.') return Take(kMainDot, 1);
        return Ahead(2) == '.' && Take(kMainEllipsis, 3);
      case '<':
        if (Ahead(1) == '=') {
          return Ahead(2) == '>' ? Take(kMainSpaceship, 3) : Take(kMainLessOrEqual, 2);
        }
        if (Ahead(1) != '<') return Take(kMainLess, 1);
        return Ahead(2) == '=' ? Take(kMainShiftLeftEqual, 3) : Take(kMainShiftLeft, 2);
      case '>':
        return TakeAssigning(kMainGreater, kMainGreaterOrEqual);
      case '-':
        if (Ahead(1) == '>') {
          return Ahead(2) == '*' ? Take(kMainPointerToMember, 3) : Take(kMainPointerTo, 2);
        }
        return TakeDoubling('-', kMainMinus, kMainMinusMinus, kMainMinusEqual);
      case '+':
        return TakeDoubling('+', kMainPlus, kMainPlusPlus, kMainPlusEqual);
      case '&':
        return TakeDoubling('&', kMainAmpersand, kMainAnd, kMainAndEqual);
      case '|':
        return TakeDoubling('|', kMainBitwiseOr, kMainOr, kMainOrEqual);
      case '*':
        return TakeAssigning(kMainStar, kMainTimesEqual);
      case '%':
        return TakeAssigning(kMainMod, kMainModEqual);
      case '^':
        return TakeAssigning(kMainBitwiseXor, kMainXorEqual);
      case '!':
        return TakeAssigning(kMainNot, kMainNotEqual);
      case '=':
        return TakeAssigning(kMainAssign, kMainEqual);
      case ':':
        return Ahead(1) == ':' ? Take(kMainScope, 2) : Take(kMainColon, 1);
      default:
        return false;
    }
  }

  bool TakeAssigning(MainToken alone, MainToken assigning) {
    return Ahead(1) == '=' ? Take(assigning, 2) : Take(alone, 1);
  }
  bool TakeDoubling(Byte c, MainToken alone, MainToken doubled, MainToken assigning) {
    return Ahead(1) == c ? Take(doubled, 2) : TakeAssigning(alone, assigning);
  }

  bool ScanWord() {
    const Byte* next = EndOfWord(at, end);
    const auto length = static_cast<std::size_t>(next - at);
    const unsigned type = ClassifyMainWord(at, length);
    if (type == kMainMaybeMacro) return false;
    // The keywords `getter=` and `setter=`.
    if (length == 6 && next < end && *next == '=' && std::memcmp(at + 1, "etter", 5) == 0 &&
        (*at == 'g' || *at == 's')) {
      return false;
    }
    // Directly before a parenthesis, these keywords are the name of a macro to be eaten.
    if ((type == kMainBeginNamespaceStd || type == kMainEndNamespaceStd) && next < end &&
        *next == '(') {
      return false;
    }
    return TakeTo(type, next);
  }

  bool ScanNumber() {
    const Byte* next = at + 1;
    if (*at == '0' && next < end && (*next == 'x' || *next == 'X')) {
      if (++next == end || !IsHexDigit(*next)) return false;
      while (next < end && (IsHexDigit(*next) || *next == '\'')) ++next;
      return TakeTo(kMainNumber, SkipIntegerSuffix(next));
    }
    while (next < end && (IsDigit(*next) || *next == '\'')) ++next;
    const bool hasPoint = next < end && *next == '.';
    if (hasPoint) {
      ++next;
      while (next < end && IsDigit(*next)) ++next;
    }
    const bool hasExponent = next < end && (*next == 'e' || *next == 'E');
    if (hasExponent) {
      ++next;
      if (next < end && (*next == '+' || *next == '-')) ++next;
      if (next == end || !IsDigit(*next)) return false;
      while (next < end && IsDigit(*next)) ++next;
    }
    if (!hasPoint && !hasExponent) return TakeTo(kMainNumber, SkipIntegerSuffix(next));
    if (next < end && (*next == 'f' || *next == 'F' || *next == 'l' || *next == 'L')) ++next;
    return TakeTo(kMainNumber, next);
  }

  const Byte* SkipIntegerSuffix(const Byte* next) const {
    while (next < end && (*next == 'l' || *next == 'L' || *next == 'u' || *next == 'U')) ++next;
    return next;
  }

  bool ScanSlash() {
    const Byte second = Ahead(1);
    if (second == '/') return SkipLineComment();
    if (second == '*') return SkipComment();
    return TakeAssigning(kMainDivide, kMainDivideEqual);
  }

  // The line end belongs to the comment; one without is no token.
  bool SkipLineComment() {
    const Byte* stop = FindLineEnd(at + 2);
    if (stop == end) return false;
    at = stop;
    SkipLineEnd();
    return true;
  }

  bool SkipComment() {
    const Byte* close = FindCommentClose(at + 2);
    if (close == nullptr) return false;
    CountLines(at, close);
    at = close;
    return true;
  }

  bool ScanString() {
    const Byte* next = at + 1;
    while (next < end && *next != '"') {
      if (*next == '\n' || *next == '\r') return false;
      if (*next == '\\') {
        next = SkipEscape(next, true);
        if (next == nullptr) return false;
      } else {
        ++next;
      }
    }
    if (next == end) return false;
    const unsigned line = cursor.line;
    CountLines(at, next);
    table.Add(kMainStringLiteral, at, next + 1, line);
    at = next + 1;
    return true;
  }

  bool ScanCharacter() {
    const Byte* next = at + 1;
    while (next < end && *next != '\'') {
      if (*next == '\n' || *next == '\r') return false;
      next = *next == '\\' ? SkipEscape(next, false) : next + 1;
      if (next == nullptr) return false;
    }
    if (next == end || next == at + 1) return false;
    return TakeTo(kMainCharLiteral, next + 1);
  }

  // Behind the escape at `backslash`; null for one that the language here does not have.
  const Byte* SkipEscape(const Byte* backslash, bool isString) const {
    const Byte* next = backslash + 1;
    if (next == end) return nullptr;
    switch (*next) {
      case '"':
      case '\'':
      case '?':
      case '\\':
      case 'a':
      case 'b':
      case 'f':
      case 'n':
      case 'r':
      case 't':
      case 'v':
      case '0':
      case '1':
      case '2':
      case '3':
      case '4':
      case '5':
      case '6':
      case '7':
      case '8':
      case '9':
        return next + 1;
      case 'x':
        return end - next >= 2 && IsHexDigit(next[1]) ? next + 2 : nullptr;
      case '\n':
        return isString ? next + 1 : nullptr;
      case '\r':
        if (!isString) return nullptr;
        return end - next >= 2 && next[1] == '\n' ? next + 2 : next + 1;
      default:
        return nullptr;
    }
  }

  // A line that begins with `#`. The words are prefixes: `#include_next` is an `#include`.
  bool ScanDirective() {
    const Byte* word = at + 1;
    while (word < end && IsBlank(*word)) ++word;
    if (word == end) return false;
    switch (*word) {
      case 'd':
        return StartsWith(word, "define") && ScanDefine(word + 6);
      case 'e':
        return (StartsWith(word, "endif") || StartsWith(word, "error")) && SkipDirective(word);
      case 'i':
        if (StartsWith(word, "if")) return ScanIf(word);
        return (StartsWith(word, "include") || StartsWith(word, "import")) && SkipDirective(word);
      case 'u':
        return StartsWith(word, "undef") && SkipDirective(word);
      case 'p':
        return StartsWith(word, "pragma") && SkipDirective(word);
      case 'w':
        return StartsWith(word, "warning") && SkipDirective(word);
      default:
        return false;
    }
  }

  bool ScanIf(const Byte* word) {
    const std::string_view ahead(reinterpret_cast<const char*>(at),
                                 static_cast<std::size_t>(end - at));
    if (IfZeroMatch(ahead) || IfDefinedWellKnownNegative(ahead)) return false;
    return SkipDirective(word);
  }

  bool SkipDirective(const Byte* from) {
    const Byte* next = from;
    for (;;) {
      next = FindLineEnd(next);
      if (next == end || next[-1] != '\\') break;
      next += *next == '\r' && end - next >= 2 && next[1] == '\n' ? 2 : 1;
    }
    // One character of the line end belongs to the directive; the second of two is blank space.
    CountLines(at, next);
    at = next;
    if (at < end) SkipLineEnd();
    return true;
  }

  // The name of a macro. Its body goes on to the first line end that no backslash continues, but
  // the character right behind the name continues nothing. A comment in the body is taken whole.
  bool ScanDefine(const Byte* behindWord) {
    const Byte* name = behindWord;
    while (name < end && IsBlank(*name)) ++name;
    if (name == behindWord || name == end || !kLetters[*name]) return false;
    const Byte* behindName = EndOfWord(name, end);
    const Byte* next = behindName;
    if (next < end && *next != '\n' && *next != '\r') {
      ++next;
      while (next < end && *next != '\n' && *next != '\r') {
        if (*next == '/' && end - next >= 2 && next[1] == '*') {
          // One that is never closed is text like any other.
          const Byte* close = FindCommentClose(next + 2);
          next = close == nullptr ? next + 1 : close;
        } else if (*next == '\\' && end - next >= 2 && next[1] == '\r') {
          next += end - next >= 3 && next[2] == '\n' ? 3 : 2;
        } else if (*next == '\\' && end - next >= 2 && next[1] == '\n') {
          next += 2;
        } else {
          ++next;
        }
      }
    }
    const unsigned line = cursor.line;
    CountLines(at, next);
    table.Add(kMainDefine, at, next, line,
              std::string_view(reinterpret_cast<const char*>(name),
                               static_cast<std::size_t>(behindName - name)));
    at = next;
    return true;
  }

  // Steps.

  Byte Ahead(std::ptrdiff_t offset) const { return end - at > offset ? at[offset] : Byte{0}; }

  bool Take(unsigned type, std::ptrdiff_t length) { return TakeTo(type, at + length); }

  bool TakeTo(unsigned type, const Byte* next) {
    table.Add(type, at, next, cursor.line);
    at = next;
    return true;
  }

  void SkipLineEnd() {
    if (*at == '\r') {
      ++at;
      if (at == end || *at != '\n') return;
    }
    ++cursor.line;
    cursor.columnZero = ++at;
  }

  bool StartsWith(const Byte* place, std::string_view word) const {
    return static_cast<std::size_t>(end - place) >= word.size() &&
           std::memcmp(place, word.data(), word.size()) == 0;
  }

  // The next `\r` or `\n` at or behind `from`, or the end.
  const Byte* FindLineEnd(const Byte* from) {
    // The newline is remembered: where lines end in `\r` alone it may be far.
    if (from < newlineFrom || from > newline) {
      newlineFrom = from;
      newline = Find('\n', from, end);
    }
    return Find('\r', from, newline);
  }

  // The first `c` from `from` on, or `limit`.
  static const Byte* Find(char c, const Byte* from, const Byte* limit) {
    const void* found = std::memchr(from, c, static_cast<std::size_t>(limit - from));
    return found == nullptr ? limit : static_cast<const Byte*>(found);
  }

  // Behind the first `*/` at or behind `from`; null when there is none.
  const Byte* FindCommentClose(const Byte* from) const {
    if (cursor.unclosedFrom != nullptr && from >= cursor.unclosedFrom) return nullptr;
    const Byte* const first = from;
    while (from < end) {
      const auto* star =
          static_cast<const Byte*>(std::memchr(from, '*', static_cast<std::size_t>(end - from)));
      if (star == nullptr || end - star < 2) break;
      if (star[1] == '/') return star + 2;
      from = star + 1;
    }
    cursor.unclosedFrom = first;
    return nullptr;
  }

  // Counts the lines that end from `from` up to `to`.
  void CountLines(const Byte* from, const Byte* to) {
    while (from < to) {
      const auto* newline =
          static_cast<const Byte*>(std::memchr(from, '\n', static_cast<std::size_t>(to - from)));
      if (newline == nullptr) return;
      ++cursor.line;
      cursor.columnZero = newline + 1;
      from = newline + 1;
    }
  }

  ScanCursor& cursor;
  TokenTable& table;
  const Byte* at;
  const Byte* const end;
  const Byte* newlineFrom = end;  ///< The last search for a newline began here ...
  const Byte* newline = nullptr;  ///< ... and found this, or the end.
};

}  // namespace

void ScanMain(ScanCursor& cursor, TokenTable& table) { MainScanner(cursor, table).Run(); }

}  // namespace vexltags
