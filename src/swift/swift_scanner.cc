// SPDX-License-Identifier: MIT
// Reads Swift's tokens by hand: the same ones that the generated lexer would give.
#include "swift/swift_scanner.h"

#include <algorithm>
#include <cstring>
#include <string_view>
#include <vector>

#include "base/character_class.h"
#include "swift/regex_head.h"
#include "swift/swift_words.h"
#include "vocabulary/swift_tokens.h"

namespace vexltags {
namespace {

using Byte = unsigned char;

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
    table[static_cast<Byte>(c)] = First::Mark;
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

constexpr bool IsDigit(Byte c) { return c >= '0' && c <= '9'; }
constexpr bool IsHexDigit(Byte c) {
  return IsDigit(c) || (c >= 'A' && c <= 'F') || (c >= 'a' && c <= 'f');
}

class SwiftScanner {
 public:
  SwiftScanner(ScanCursor& scanCursor, TokenTable& tokens)
      : cursor(scanCursor), table(tokens), at(scanCursor.at), end(scanCursor.end) {}

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
        return *at == '\n' ? ScanBlanks() : Hide(kSwiftWhitespace, EndOfLine(at));
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
        return TakeLines(kSwiftStringLiteral, EndOfString());
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

  bool Is(const Byte* place, Byte c) const { return place < end && *place == c; }
  bool Has(const Byte* place, std::string_view text) const {
    return static_cast<std::size_t>(end - place) >= text.size() &&
           std::memcmp(place, text.data(), text.size()) == 0;
  }

  /// A visible token up to `next`; null refuses it.
  bool Take(unsigned type, const Byte* next) {
    if (next == nullptr) return false;
    table.Add(type, at, next, cursor.line);
    at = next;
    return true;
  }

  /// A visible token that may span lines.
  bool TakeLines(unsigned type, const Byte* next) {
    if (next == nullptr) return false;
    table.Add(type, at, next, cursor.line);
    StepOverLines(next);
    return true;
  }

  /// A hidden token, of which only the type matters.
  bool Hide(unsigned type, const Byte* next) {
    if (next == nullptr) return false;
    table.AddHidden(type);
    StepOverLines(next);
    return true;
  }

  void StepOverLines(const Byte* next) {
    while (at < next) {
      const auto* newline =
          static_cast<const Byte*>(std::memchr(at, '\n', static_cast<std::size_t>(next - at)));
      if (newline == nullptr) break;
      ++cursor.line;
      cursor.columnZero = newline + 1;
      at = newline + 1;
    }
    at = next;
  }

  /// Behind the line end at `place`.
  const Byte* EndOfLine(const Byte* place) const {
    return *place == '\r' && Is(place + 1, '\n') ? place + 2 : place + 1;
  }

  // Each blank or line end is a token; nobody can tell several from one.
  bool ScanBlanks() {
    for (; at < end; ++at) {
      if (*at == '\n') {
        ++cursor.line;
        cursor.columnZero = at + 1;
      } else if (*at != ' ' && *at != '\t') {
        break;
      }
    }
    table.AddHidden(kSwiftWhitespace);
    return true;
  }

  bool ScanWord() {
    const Byte* next = EndOfWord(at, end);
    return Take(ClassifySwiftWord(Text(at, next)), next);
  }

  static std::string_view Text(const Byte* from, const Byte* to) {
    return {reinterpret_cast<const char*>(from), static_cast<std::size_t>(to - from)};
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
      const Byte* next = at + 2;
      while (next < end && *next != '\n' && *next != '\r') ++next;
      return Hide(kSwiftSingleLineComment, next == end ? end : EndOfLine(next));
    }
    const bool isRegex = IsRegexHead(CharacterWindow(cursor.begin, at, end));
    return Take(isRegex ? kSwiftRegexHead : kSwiftDivide, at + 1);
  }

  /// Behind the nested comment at the present place; null when it is open.
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

  /// Whether nothing closes the parenthesis at `open`. The first one that is open costs a pass over
  /// the rest of the file, which settles all behind it.
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

  /// Behind the bracket that closes the one at `place`, or null. Nothing but brackets counts, not
  /// even strings.
  const Byte* EndOfBalance(const Byte* place, Byte open, Byte close) const {
    int depth = 0;
    for (; place < end; ++place) {
      if (*place == open) ++depth;
      if (*place == close && --depth == 0) return place + 1;
    }
    return nullptr;
  }

  bool ScanHash() {
    if (Is(at + 1, '"')) return TakeLines(kSwiftRawStringLiteral, EndOfRawString());
    if (Has(at, "#if") || Has(at, "#else") || Has(at, "#endif")) {
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

  /// Behind the line at the present place, and behind those that a backslash at its end adds.
  const Byte* EndOfControlStatement() const {
    for (const Byte* next = at + 3; next < end; ++next) {
      if (*next == '\\' && next + 1 < end && (next[1] == '\n' || next[1] == '\r')) {
        next = EndOfLine(next + 1) - 1;
      } else if (*next == '\n' || *next == '\r') {
        return next + 1;
      }
    }
    return end;
  }

  const Byte* EndOfRawString() const {
    for (const Byte* next = at + 2; next + 1 < end; ++next) {
      if (*next == '"' && next[1] == '#') return next + 2;
      if (!Has(next, "\\#(")) continue;
      const Byte* behind = EndOfBalance(next + 2, '(', ')');
      if (behind == nullptr) return nullptr;
      next = behind - 1;
    }
    return nullptr;
  }

  const Byte* EndOfString() const {
    return Has(at, "\"\"\"") ? EndOfLongString(at + 3) : EndOfShortString(at + 1);
  }

  const Byte* EndOfShortString(const Byte* next) const {
    while (next < end) {
      if (*next == '"') return next + 1;
      if (*next == '\n' || *next == '\r') return nullptr;
      next = *next == '\\' ? EndOfEscape(next) : next + 1;
      if (next == nullptr) return nullptr;
    }
    return nullptr;
  }

  /// One or two quotes take the character behind them along, whatever it is.
  const Byte* EndOfLongString(const Byte* next) const {
    while (next < end) {
      if (Has(next, "\"\"\"")) return next + 3;
      if (*next == '"') {
        next += Is(next + 1, '"') ? 3 : 2;
      } else {
        next = *next == '\\' ? EndOfEscape(next) : next + 1;
        if (next == nullptr) return nullptr;
      }
    }
    return nullptr;
  }

  /// Behind the interpolation or escape at `place`; null when it is none.
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

  ScanCursor& cursor;
  TokenTable& table;
  const Byte* at;
  const Byte* const end;
  bool knowsOpen = false;
  std::vector<const Byte*> openForGood;  ///< In ascending order, once they are known.
};

}  // namespace

void ScanSwift(ScanCursor& cursor, TokenTable& table) { SwiftScanner(cursor, table).Run(); }

}  // namespace vexltags
