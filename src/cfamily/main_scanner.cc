// SPDX-License-Identifier: MIT
// Reads the same tokens of C, C++ and Objective-C as the generated lexer.
#include "cfamily/main_scanner.h"

#include <cstring>
#include <string_view>

#include "base/byte_search.h"
#include "base/character_class.h"
#include "cfamily/directives.h"
#include "cfamily/main_words.h"
#include "engine/scanner_base.h"
#include "vocabulary/main_tokens.h"

namespace vexltags {
namespace {

enum class First : std::uint8_t { Unknown, Blank, LineEnd, Letter, Digit, Mark, Other };

constexpr ByteTable<First> MakeFirstTable() {
  ByteTable<First> table{};
  for (unsigned c = 0; c < table.size(); ++c) {
    if (kLetters[c]) table[c] = First::Letter;
  }
  for (unsigned c = '0'; c <= '9'; ++c) table[c] = First::Digit;
  table[' '] = table['\t'] = First::Blank;
  table['\r'] = table['\n'] = First::LineEnd;
  for (const char c : {'(', ')', '{', '}', ']', ',', ';', '~', '?'}) {
    table[static_cast<unsigned char>(c)] = First::Mark;
  }
  for (const char c : {'/', '"', '\'', '#', '@', '[', '.', '<', '>', '-', '+', '*', '%', '^', '&',
                       '|', '!', '=', ':'}) {
    table[static_cast<unsigned char>(c)] = First::Other;
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

template <bool kStopsAtBraces>
class MainScanner : public ScannerBase {
 public:
  using ScannerBase::ScannerBase;

  bool ScanToken() {
    switch (kFirst[*at]) {
      case First::Blank:
        do {
          ++at;
        } while (at < end && kFirst[*at] == First::Blank);
        return true;
      case First::LineEnd:
        return SkipLineEnd();
      case First::Letter:
        return ScanWord();
      case First::Digit:
        return ScanNumber();
      case First::Mark:
        if (kStopsAtBraces && *at == '{') return false;
        return Take(kMarks[*at], at + 1);
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

 private:
  // Each of the following reads one token or comment and returns true, or changes nothing and
  // returns false.

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
        return Ahead(1) != '[' && Take(kMainLSquare, at + 1);
      case '.':
        if (Ahead(1) == '*') return Take(kMainDotMember, at + 2);
        if (Ahead(1) != '.') return Take(kMainDot, at + 1);
        return Ahead(2) == '.' && Take(kMainEllipsis, at + 3);
      case '<':
        if (Ahead(1) == '=') {
          return Ahead(2) == '>' ? Take(kMainSpaceship, at + 3) : Take(kMainLessOrEqual, at + 2);
        }
        if (Ahead(1) != '<') return Take(kMainLess, at + 1);
        return Ahead(2) == '=' ? Take(kMainShiftLeftEqual, at + 3) : Take(kMainShiftLeft, at + 2);
      case '>':
        return TakeAssigning(kMainGreater, kMainGreaterOrEqual);
      case '-':
        if (Ahead(1) == '>') {
          return Ahead(2) == '*' ? Take(kMainPointerToMember, at + 3)
                                 : Take(kMainPointerTo, at + 2);
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
        return Ahead(1) == ':' ? Take(kMainScope, at + 2) : Take(kMainColon, at + 1);
      default:
        return false;
    }
  }

  bool TakeAssigning(MainToken alone, MainToken assigning) {
    return Ahead(1) == '=' ? Take(assigning, at + 2) : Take(alone, at + 1);
  }
  bool TakeDoubling(Byte c, MainToken alone, MainToken doubled, MainToken assigning) {
    return Ahead(1) == c ? Take(doubled, at + 2) : TakeAssigning(alone, assigning);
  }

  bool ScanWord() {
    const Byte* next = EndOfWord(at, end);
    const auto length = static_cast<std::size_t>(next - at);
    const unsigned type = ClassifyMainWord(at, length);
    if (type == kMainMaybeMacro) return SkipLibCppMacro(next);
    // The keywords `getter=` and `setter=`.
    if (length == 6 && next < end && *next == '=' && std::memcmp(at + 1, "etter", 5) == 0 &&
        (*at == 'g' || *at == 's')) {
      return false;
    }
    // Directly before a parenthesis these keywords are macros to eat.
    if ((type == kMainBeginNamespaceStd || type == kMainEndNamespaceStd) && Is(next, '(')) {
      return false;
    }
    return Take(type, next);
  }

  // A hidden macro of libc++ that ends at `next`, with the arguments that follow it directly.
  bool SkipLibCppMacro(const Byte* next) {
    constexpr std::string_view kPrefix = "_LIBCPP_";
    if (!StartsWith(at, kPrefix) || static_cast<std::size_t>(next - at) == kPrefix.size()) {
      return false;
    }
    // Those may have a meaning to whoever reads what the scanner leaves.
    if (IsLibraryScope(Text(at, next))) return false;
    const Byte* past = next;
    if (Is(next, '(')) {
      // Looking for the end of each of many that stay open would take quadratic time.
      constexpr std::ptrdiff_t kLongestArguments = 512;
      const Byte* const last = end - next > kLongestArguments ? next + kLongestArguments : end;
      int open = 0;
      do {
        if (past == last) return false;
        if (*past == '(') ++open;
        if (*past == ')') --open;
        ++past;
      } while (open > 0);
    } else if (next < end && IsBlank(*next)) {
      // Whether parentheses after blanks belong to it depends on who asks.
      while (next < end && IsBlank(*next)) ++next;
      if (Is(next, '(')) return false;
    }
    return SkipLines(past);
  }

  bool ScanNumber() {
    const Byte* next = at + 1;
    if (*at == '0' && next < end && (*next == 'x' || *next == 'X')) {
      if (++next == end || !IsHexDigit(*next)) return false;
      while (next < end && (IsHexDigit(*next) || *next == '\'')) ++next;
      return Take(kMainNumber, SkipIntegerSuffix(next));
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
    if (!hasPoint && !hasExponent) return Take(kMainNumber, SkipIntegerSuffix(next));
    if (next < end && (*next == 'f' || *next == 'F' || *next == 'l' || *next == 'L')) ++next;
    return Take(kMainNumber, next);
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

  // The line end belongs to the comment, so a comment without one is no token.
  bool SkipLineComment() {
    const Byte* stop = FindLineEnd(at + 2);
    if (stop == end) return false;
    at = stop;
    return SkipLineEnd();
  }

  bool SkipComment() {
    const Byte* next = FindCommentClose(at + 2);
    return next != nullptr && SkipLines(next);
  }

  bool ScanString() {
    const Byte* next = at + 1;
    while (next < end && *next != '"') {
      if (IsLineEnd(*next)) return false;
      if (*next == '\\') {
        next = SkipEscape(next, true);
        if (next == nullptr) return false;
      } else {
        ++next;
      }
    }
    if (next == end) return false;
    return TakeLines(kMainStringLiteral, next + 1);
  }

  bool ScanCharacter() {
    const Byte* next = at + 1;
    while (next < end && *next != '\'') {
      if (IsLineEnd(*next)) return false;
      next = *next == '\\' ? SkipEscape(next, false) : next + 1;
      if (next == nullptr) return false;
    }
    if (next == end || next == at + 1) return false;
    return Take(kMainCharLiteral, next + 1);
  }

  // Past the escape at `backslash`; null for one that the language does not have.
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
      case '\r':
        return isString ? PastLineEnd(next, end) : nullptr;
      default:
        return nullptr;
    }
  }

  // Reads a line that begins with `#`. The words are prefixes: `#include_next` is an `#include`.
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
    const std::string_view ahead = Text(at, end);
    if (IfZeroMatch(ahead) || IfDefinedWellKnownNegative(ahead)) return false;
    return SkipDirective(word);
  }

  bool SkipDirective(const Byte* from) {
    const Byte* next = from;
    for (;;) {
      next = FindLineEnd(next);
      if (next == end || next[-1] != '\\') break;
      next = PastLineEnd(next, end);
    }
    SkipLines(next);
    return at == end || SkipLineEnd();
  }

  // The text of the token is the name of the macro. The body ends with the first line that no
  // backslash continues; a backslash directly after the name continues nothing. A closed comment
  // belongs to the body with its line ends.
  bool ScanDefine(const Byte* wordEnd) {
    const Byte* name = wordEnd;
    while (name < end && IsBlank(*name)) ++name;
    if (name == wordEnd || name == end || !kLetters[*name]) return false;
    const Byte* nameEnd = EndOfWord(name, end);
    const Byte* next = nameEnd;
    if (next < end && !IsLineEnd(*next)) {
      ++next;
      while (next < end && !IsLineEnd(*next)) {
        if (*next == '/' && end - next >= 2 && next[1] == '*') {
          // An unclosed comment is text like any other.
          const Byte* close = FindCommentClose(next + 2);
          next = close == nullptr ? next + 1 : close;
        } else if (*next == '\\') {
          next = PastLineEnd(next + 1, end);
        } else {
          ++next;
        }
      }
    }
    table.Add(kMainDefine, at, next, cursor.line, Text(name, nameEnd));
    return SkipLines(next);
  }

  // Past the first `*/` from `from` on; null when there is none.
  const Byte* FindCommentClose(const Byte* from) const {
    if (cursor.unclosedFrom != nullptr && from >= cursor.unclosedFrom) return nullptr;
    const Byte* close = PastCommentClose(from, end);
    if (close == nullptr) cursor.unclosedFrom = from;
    return close;
  }
};

}  // namespace

void ScanMain(ScanCursor& cursor, TokenTable& table) {
  RunScanner<MainScanner<false>>(cursor, table);
}

void ScanMainToBrace(ScanCursor& cursor, TokenTable& table) {
  RunScanner<MainScanner<true>>(cursor, table);
}

}  // namespace vexltags
