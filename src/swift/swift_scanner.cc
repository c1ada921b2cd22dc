// SPDX-License-Identifier: MIT
// Reads the same tokens of Swift as the generated lexer.
#include "swift/swift_scanner.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include "base/byte_search.h"
#include "base/character_class.h"
#include "engine/scanner_base.h"
#include "swift/regex_head.h"
#include "swift/swift_words.h"
#include "vocabulary/swift_tokens.h"

namespace vexltags {
namespace {

enum class First : std::uint8_t {
  Unknown,
  Blank,
  LineEnd,
  Letter,
  Digit,
  Mark,
  Minus,
  Dot,
  Slash,
  Quote,
  Backtick,
  Dollar,
  At,
  Hash,
};

constexpr ByteTable<First> MakeFirstTable() {
  ByteTable<First> table{};
  for (unsigned c = 0; c < table.size(); ++c) {
    if (kLetters[c]) table[c] = First::Letter;
  }
  for (unsigned c = '0'; c <= '9'; ++c) table[c] = First::Digit;
  for (const char c : std::string_view(";{}()<>,:=&?![]\\+*%|^~")) {
    table[static_cast<unsigned char>(c)] = First::Mark;
  }
  table[' '] = table['\t'] = First::Blank;
  table['\r'] = table['\n'] = First::LineEnd;
  table['-'] = First::Minus;
  table['.'] = First::Dot;
  table['/'] = First::Slash;
  table['"'] = First::Quote;
  table['`'] = First::Backtick;
  table['$'] = First::Dollar;
  table['@'] = First::At;
  table['#'] = First::Hash;
  return table;
}
constexpr ByteTable<First> kFirst = MakeFirstTable();

constexpr ByteTable<std::uint8_t> MakeMarkTable() {
  ByteTable<std::uint8_t> table{};
  table[';'] = kSwiftSemi;
  table['{'] = kSwiftLCurly;
  table['}'] = kSwiftRCurly;
  table['('] = kSwiftLParen;
  table[')'] = kSwiftRParen;
  table['<'] = kSwiftLess;
  table['>'] = kSwiftGreater;
  table[','] = kSwiftComma;
  table[':'] = kSwiftColon;
  table['='] = kSwiftAssign;
  table['&'] = kSwiftAmpersand;
  table['?'] = kSwiftQuestionMark;
  table['!'] = kSwiftNot;
  table['['] = kSwiftLSquare;
  table[']'] = kSwiftRSquare;
  table['\\'] = kSwiftBackslash;
  table['+'] = kSwiftPlus;
  table['*'] = kSwiftStar;
  table['%'] = kSwiftMod;
  table['|'] = kSwiftBitwiseOr;
  table['^'] = kSwiftBitwiseXor;
  table['~'] = kSwiftTilde;
  return table;
}
constexpr ByteTable<std::uint8_t> kMarks = MakeMarkTable();

class SwiftScanner : public ScannerBase {
 public:
  using ScannerBase::ScannerBase;

  bool ScanToken() {
    switch (kFirst[*at]) {
      case First::Blank:
        return ScanBlanks();
      case First::LineEnd:
        return *at == '\n' ? ScanBlanks() : Hide(kSwiftWhitespace, PastLineEnd(at, end));
      case First::Letter:
        return ScanWord();
      case First::Digit:
        return ScanNumber();
      case First::Mark:
        return Take(kMarks[*at], at + 1);
      case First::Minus:
        return Is(at + 1, '>') ? Take(kSwiftArrow, at + 2) : Take(kSwiftMinus, at + 1);
      case First::Dot:
        return ScanDot();
      case First::Slash:
        return ScanSlash();
      case First::Quote:
        return TakeString(kSwiftStringLiteral, EndOfString());
      case First::Backtick:
        return ScanBacktick();
      case First::Dollar:
        return ScanDollar();
      case First::At:
        return ScanAttribute();
      case First::Hash:
        return ScanHash();
      case First::Unknown:
        break;
    }
    return false;
  }

 private:
  // What follows reads one token and returns true, or changes nothing and returns false; or finds
  // the end of a token, and returns null for what the generated lexer has to read.

  /// Hides a token, of which only the type matters.
  bool Hide(unsigned type, const Byte* next) {
    if (next == nullptr) return false;
    table.AddHidden(type);
    return SkipLines(next);
  }

  // Each blank or line end is a token, but one is recorded for all of them: they have no effect of
  // their own.
  bool ScanBlanks() {
    for (; at < end; ++at) {
      if (*at == '\n') {
        StartLine(at + 1);
      } else if (!IsBlank(*at)) {
        break;
      }
    }
    table.AddHidden(kSwiftWhitespace);
    return true;
  }

  bool TakeString(unsigned type, const Byte* next) {
    return next != nullptr && TakeLines(type, next);
  }

  bool ScanWord() {
    const Byte* next = EndOfWord(at, end);
    return Take(ClassifySwiftWord(Text(at, next)), next);
  }

  bool ScanNumber() {
    if (*at == '0' && at + 1 < end) {
      switch (at[1]) {
        case 'b':
          return ScanPrefixed(kSwiftBinary, kSwiftBinaryPrefix,
                              [](Byte c) { return c == '0' || c == '1'; });
        case 'o':
          return ScanPrefixed(kSwiftOctal, kSwiftOctalPrefix,
                              [](Byte c) { return c >= '0' && c <= '7'; });
        case 'x':
          return ScanPrefixed(kSwiftHexadecimal, kSwiftHexadecimalPrefix, IsHexDigit);
        default:
          break;
      }
    }
    return Take(kSwiftDecimal, EndOfDigits(at + 1, IsDigit));
  }

  template <class Digit>
  const Byte* EndOfDigits(const Byte* next, Digit isDigit) const {
    while (next < end && (isDigit(*next) || *next == '_')) ++next;
    return next;
  }

  template <class Digit>
  bool ScanPrefixed(unsigned type, unsigned prefixType, Digit isDigit) {
    if (at + 2 == end || !isDigit(at[2])) return Take(prefixType, at + 2);
    return Take(type, EndOfDigits(at + 3, isDigit));
  }

  bool ScanDot() {
    if (!Is(at + 1, '.')) return Take(kSwiftDot, at + 1);
    return Take(kSwiftEllipsis, Is(at + 2, '.') || Is(at + 2, '<') ? at + 3 : at + 2);
  }

  bool ScanSlash() {
    if (Is(at + 1, '*')) return Hide(kSwiftCComment, EndOfComment());
    if (Is(at + 1, '/')) {
      return Hide(kSwiftSingleLineComment, PastLineEnd(FindLineEnd(at + 2), end));
    }
    const bool isRegex = IsRegexHead(CharacterWindow(cursor.begin, at, end));
    return Take(isRegex ? kSwiftRegexHead : kSwiftDivide, at + 1);
  }

  /// Past the comment at `at`, which may hold others; null when it is not closed.
  const Byte* EndOfComment() const {
    int depth = 1;
    for (const Byte* next = at + 2; next + 1 < end; ++next) {
      if (*next == '*' && next[1] == '/') {
        if (--depth == 0) return next + 2;
        ++next;
      } else if (*next == '/' && next[1] == '*') {
        ++depth;
        ++next;
      }
    }
    return nullptr;
  }

  bool ScanBacktick() {
    if (at + 1 == end || !kLetters[at[1]]) return Take(kSwiftBacktick, at + 1);
    const Byte* next = EndOfWord(at + 1, end);
    return Is(next, '`') && Take(kSwiftIdentifier, next + 1);
  }

  bool ScanDollar() {
    const Byte* next = at + 1;
    while (next < end && IsDigit(*next)) ++next;
    return Take(next == at + 1 ? kSwiftDollar : kSwiftIdentifier, next);
  }

  bool ScanAttribute() {
    const Byte* next = at + 1;
    while (next < end && kLetters[*next]) ++next;
    if (next == at + 1) return false;
    if (Is(next, '<')) return Hide(kSwiftAttribute, EndOfBalance(next, '<', '>'));
    const std::string_view name = Text(at + 1, next);
    if (name == "available" || name == "Environment" || name == "ModelPublished" ||
        name == "objc" || name == "_spi") {
      const Byte* open = next;
      while (Is(open, ' ')) ++open;
      if (Is(open, '(') && !Is(open + 1, ')') && !IsOpenForGood(open)) {
        return Hide(kSwiftAttribute, EndOfBalance(open, '(', ')'));
      }
    }
    return Hide(kSwiftAttribute, next);
  }

  /// Whether nothing closes the parenthesis at `open`. The first one that is not closed costs a
  /// pass over the rest of the file, which answers for all that follow.
  bool IsOpenForGood(const Byte* open) {
    if (!knowsOpen) {
      if (EndOfBalance(open, '(', ')') != nullptr) return false;
      for (const Byte* next = open; next < end; ++next) {
        if (*next == '(') openForGood.push_back(next);
        if (*next == ')' && !openForGood.empty()) openForGood.pop_back();
      }
      knowsOpen = true;
    }
    return std::binary_search(openForGood.begin(), openForGood.end(), open);
  }

  /// Past the bracket that closes the one at `place`, or null. Brackets in strings count too.
  const Byte* EndOfBalance(const Byte* place, Byte open, Byte close) const {
    int depth = 0;
    for (; place < end; ++place) {
      if (*place == open) ++depth;
      if (*place == close && --depth == 0) return place + 1;
    }
    return nullptr;
  }

  bool ScanHash() {
    if (Is(at + 1, '"')) return TakeString(kSwiftRawStringLiteral, EndOfRawString());
    if (StartsWith(at, "#if") || StartsWith(at, "#else") || StartsWith(at, "#endif")) {
      return Hide(kSwiftControlStatement, EndOfControlStatement());
    }
    const Byte* next = EndOfWord(at + 1, end);
    const std::string_view word = Text(at + 1, next);
    if (word == "error" || word == "warning") {
      return Is(next, '(') && Hide(kSwiftErrorStatement, EndOfBalance(next, '(', ')'));
    }
    const unsigned type = ClassifySwiftHashWord(word);
    return type != 0 && Take(type, next);
  }

  /// Past the line of `at`, and past the lines that backslashes at line ends add.
  const Byte* EndOfControlStatement() const {
    for (const Byte* next = at + 3; next < end; ++next) {
      if (*next == '\\' && next + 1 < end && IsLineEnd(next[1])) {
        next = PastLineEnd(next + 1, end) - 1;
      } else if (IsLineEnd(*next)) {
        return next + 1;
      }
    }
    return end;
  }

  const Byte* EndOfRawString() const {
    for (const Byte* next = at + 2; next + 1 < end; ++next) {
      if (*next == '"' && next[1] == '#') return next + 2;
      if (!StartsWith(next, "\\#(")) continue;
      const Byte* closed = EndOfBalance(next + 2, '(', ')');
      if (closed == nullptr) return nullptr;
      next = closed - 1;
    }
    return nullptr;
  }

  const Byte* EndOfString() const {
    return StartsWith(at, "\"\"\"") ? EndOfLongString(at + 3) : EndOfShortString(at + 1);
  }

  const Byte* EndOfShortString(const Byte* next) const {
    while (next < end) {
      if (*next == '"') return next + 1;
      if (IsLineEnd(*next)) return nullptr;
      next = *next == '\\' ? EndOfEscape(next) : next + 1;
      if (next == nullptr) return nullptr;
    }
    return nullptr;
  }

  /// One or two quotes consume the character after them, whatever it is.
  const Byte* EndOfLongString(const Byte* next) const {
    while (next < end) {
      if (StartsWith(next, "\"\"\"")) return next + 3;
      if (*next == '"') {
        next += Is(next + 1, '"') ? 3 : 2;
      } else {
        next = *next == '\\' ? EndOfEscape(next) : next + 1;
        if (next == nullptr) return nullptr;
      }
    }
    return nullptr;
  }

  /// Past the interpolation or escape at `place`; null when there is none.
  const Byte* EndOfEscape(const Byte* place) const {
    if (place + 1 == end) return nullptr;
    switch (place[1]) {
      case '(':
        return EndOfBalance(place + 1, '(', ')');
      case '"':
      case '\'':
      case '0':
      case '\\':
      case 'n':
      case 'r':
      case 't':
        return place + 2;
      case 'x':
        return end - place >= 4 && IsHexDigit(place[2]) && IsHexDigit(place[3]) ? place + 4
                                                                                : nullptr;
      case 'u': {
        if (!Is(place + 2, '{')) return nullptr;
        const Byte* next = place + 3;
        while (next < end && IsHexDigit(*next)) ++next;
        return next > place + 3 && Is(next, '}') ? next + 1 : nullptr;
      }
      default:
        return nullptr;
    }
  }

  bool knowsOpen = false;
  std::vector<const Byte*> openForGood;  ///< In ascending order, once they are known.
};

}  // namespace

void ScanSwift(ScanCursor& cursor, TokenTable& table) { RunScanner<SwiftScanner>(cursor, table); }

}  // namespace vexltags
