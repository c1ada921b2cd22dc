// SPDX-License-Identifier: MIT
// Blanks what the Swift lexer would misread, so that every character left is plain code.
#include "thorough/swift_text.h"

#include <algorithm>
#include <array>
#include <cstring>

#include "base/character_class.h"

namespace vexltags::thorough {
namespace {

/// Characters at which plain code may end.
constexpr ByteTable<bool> MakeMarks() {
  ByteTable<bool> marks{};
  for (unsigned c = 0; c < ' '; ++c) marks[c] = c != '\t' && c != '\n' && c != '\r';
  for (unsigned c = 0x7F; c < marks.size(); ++c) marks[c] = true;
  for (const char c : {'"', '#', '/', '@', '`', '(', ')', '\''})
    marks[static_cast<unsigned>(c)] = true;
  return marks;
}
constexpr ByteTable<bool> kMarks = MakeMarks();

/// After which characters an expression can begin.
constexpr std::string_view kBeforeOperands = "=([{},;:?!&|^~<>+-*%\n\r";
/// After which words one can.
constexpr std::array<std::string_view, 8> kWordsBeforeOperands = {
    "return", "in", "case", "where", "if", "while", "try", "await"};
/// Attributes whose arguments may follow after blanks.
constexpr std::array<std::string_view, 5> kSpacedAttributes = {"available", "objc", "_spi",
                                                               "Environment", "ModelPublished"};
constexpr std::string_view kInAngles = " .,:?!&_-<>[]()";

template <class List>
bool Contains(const List& list, std::string_view word) {
  return std::find(list.begin(), list.end(), word) != list.end();
}

constexpr bool IsBlank(unsigned char c) { return c == ' ' || c == '\t'; }
constexpr bool IsLineEnd(unsigned char c) { return c == '\n' || c == '\r'; }
constexpr bool IsInWord(unsigned char c) { return kLettersAndDigits[c] || c >= 0x80; }

}  // namespace

std::string& SwiftText::Simplify(std::string_view source) {
  text = source;
  copy.assign(source);
  at = newlineFrom = 0;
  newline = std::min(text.find('\n'), text.size());
  open.clear();
  blanksArguments = readsInterpolations = hasLongRegexEnds = true;
  if (Has(0, "\xEF\xBB\xBF")) {
    Blank(0, 3);
    at = 3;
  }
  if (Has(at, "#!")) {
    Blank(at, EndOfLine(at));
    at = EndOfLine(at);
  }
  ReadAll();
  return copy;
}

void SwiftText::ReadAll() {
  for (;;) {
    while (at < text.size()) ReadCode();
    if (open.empty()) break;
    GiveUpOpen();
  }
}

void SwiftText::ReadCode() {
  while (at < text.size() && !kMarks[At(at)]) ++at;
  if (at < text.size()) ReadMark(At(at));
}

void SwiftText::ReadMark(unsigned char mark) {
  switch (mark) {
    case '"':
      OpenString(at, 0);
      break;
    case '#':
      ReadHash();
      break;
    case '/':
      ReadSlash();
      break;
    case '@':
      ReadAttribute();
      break;
    case '`':
      ReadBacktick();
      break;
    case '(':
      if (!open.empty()) ++open.back().parens;
      ++at;
      break;
    case ')':
      ++at;
      if (!open.empty()) CloseParenthesis();
      break;
    default:
      if (mark >= 0x80) {
        ReadHighBytes();
      } else {
        Blank(at, at + 1);
        ++at;
      }
  }
}

void SwiftText::CloseParenthesis() {
  if (--open.back().parens > 0) return;
  if (open.back().isString) {
    ReadString();
  } else {
    Leave();
  }
}

/// Ends the innermost open thing at the current place.
void SwiftText::Leave() {
  const std::size_t begin = open.back().begin;
  open.pop_back();
  if (open.empty()) Blank(begin, at);
}

/// The file has ended within a string or arguments. Goes back to where they began and gives up what
/// made them run on. Each cause can be given up only once.
void SwiftText::GiveUpOpen() {
  const Open first = open.front();
  open.clear();
  at = first.begin;
  if (!first.isString) {
    blanksArguments = false;
  } else if (first.isLong) {
    Blank(at, text.size());
    at = text.size();
  } else {
    readsInterpolations = false;
  }
}

void SwiftText::OpenString(std::size_t begin, std::size_t hashes) {
  const std::size_t quote = begin + hashes;
  bool isLong = Has(quote, "\"\"\"");
  if (isLong && hashes > 0) {
    // One quote in a string on one line looks like the beginning of a long one.
    isLong = text.substr(quote + 3, hashes).find_first_not_of('#') != std::string_view::npos ||
             text.size() < quote + 3 + hashes;
  }
  open.push_back({begin, 0, static_cast<std::uint32_t>(hashes), true, isLong});
  at = quote + (isLong ? 3 : 1);
  ReadString();
}

/// Reads the innermost open string up to its end or up to an interpolation.
void SwiftText::ReadString() {
  Open& string = open.back();
  const auto isMarked = [&](std::size_t place) {
    const std::string_view marks = text.substr(place, string.hashes);
    return marks.size() == string.hashes && marks.find_first_not_of('#') == std::string_view::npos;
  };
  for (; at < text.size(); ++at) {
    const unsigned char c = At(at);
    if (c == '"') {
      const std::size_t quotes = string.isLong ? 3 : 1;
      if ((string.isLong && !Has(at, "\"\"\"")) || !isMarked(at + quotes)) continue;
      at += quotes + string.hashes;
      return Leave();
    }
    if (IsLineEnd(c) && !string.isLong) return Leave();
    if (c != '\\' || !isMarked(at + 1)) continue;
    const std::size_t escaped = at + 1 + string.hashes;
    if (At(escaped) == '(' && readsInterpolations) {
      at = escaped + 1;
      string.parens = 1;
      return;
    }
    if (!IsLineEnd(At(escaped))) at = escaped;
  }
  // A short string ends with the file too.
  at = text.size();
  if (!string.isLong) Leave();
}

void SwiftText::ReadHash() {
  std::size_t next = at + 1;
  while (At(next) == '#') ++next;
  const std::size_t hashes = next - at;
  if (At(next) == '"') return OpenString(at, hashes);
  if (At(next) == '/') return ReadLongRegex(hashes);
  const std::string_view word = text.substr(next, EndOfWord(next) - next);
  std::size_t end = next;
  if (word == "if" || word == "elseif" || word == "else" || word == "endif") {
    // A comment on the line may go on after it.
    while (end < text.size() && !IsLineEnd(At(end)) && !Has(end, "//") && !Has(end, "/*")) ++end;
  } else if (word == "error" || word == "warning" || word == "sourceLocation") {
    end = next + word.size();
    if (At(end) == '(' && blanksArguments) open.push_back({end, 0, 0, false, false});
  }
  Blank(at, end);
  at = end;
}

void SwiftText::ReadSlash() {
  if (At(at + 1) == '/') {
    // The lexer hides it.
    at = EndOfLine(at);
  } else if (At(at + 1) == '*') {
    const std::size_t end = EndOfComment(at);
    Blank(at, end);
    at = end;
  } else {
    ReadRegex();
  }
}

/// A slash is the beginning of a regular expression where an operand can begin, no blank follows,
/// and the expression ends on the line, not after a blank, with its parentheses closed.
void SwiftText::ReadRegex() {
  const std::size_t begin = at++;
  if (IsBlank(At(at)) || !CanRegexBegin()) return;
  int parens = 0;
  bool inSet = false;
  for (std::size_t place = at; place < text.size() && !IsLineEnd(At(place)); ++place) {
    switch (At(place)) {
      case '\\':
        ++place;
        break;
      case '[':
        inSet = true;
        break;
      case ']':
        inSet = false;
        break;
      case '(':
        parens += !inSet;
        break;
      case ')':
        if (!inSet && --parens < 0) return;
        break;
      case '/':
        if (IsBlank(At(place - 1))) return;
        at = place + 1;
        Blank(begin, at);
        return;
      default:
        break;
    }
  }
}

/// Whether the character before the current place, which is after a slash, can precede an operand.
bool SwiftText::CanRegexBegin() const {
  std::size_t before = at - 1;
  while (before > 0 && IsBlank(At(before - 1))) --before;
  if (before == 0) return true;
  const unsigned char last = At(before - 1);
  // Glued to the slash these belong to the operand before it.
  if ((last == '!' || last == '?') && before == at - 1) return false;
  if (!IsInWord(last))
    return kBeforeOperands.find(static_cast<char>(last)) != std::string_view::npos;
  std::size_t begin = before;
  while (begin > 0 && before - begin < 8 && IsInWord(At(begin - 1))) --begin;
  return Contains(kWordsBeforeOperands, text.substr(begin, before - begin));
}

void SwiftText::ReadLongRegex(std::size_t hashes) {
  const std::size_t begin = at;
  const std::string end = "/" + std::string(hashes, '#');
  at += hashes + 1;
  if (!hasLongRegexEnds) return Blank(begin, at);
  const std::size_t found = text.find(end, at);
  if (found == std::string_view::npos) {
    hasLongRegexEnds = false;
    return Blank(begin, at);
  }
  at = found + end.size();
  Blank(begin, at);
}

void SwiftText::ReadAttribute() {
  std::size_t end = at + 1;
  while (IsInWord(At(end)) || (At(end) == '.' && IsInWord(At(end + 1)))) ++end;
  const std::string_view name = text.substr(at + 1, end - at - 1);
  if (At(end) == '<') end = EndOfAngles(end);
  Blank(at, end);
  std::size_t paren = end;
  if (Contains(kSpacedAttributes, name)) {
    while (At(paren) == ' ') ++paren;
  }
  if (At(paren) == '(' && blanksArguments && open.empty()) {
    open.push_back({paren, 0, 0, false, false});
    end = paren;
  }
  at = end;
}

void SwiftText::ReadBacktick() {
  const std::size_t begin = at++;
  std::size_t end = at;
  while (end < text.size() && At(end) != '`' && !IsLineEnd(At(end))) ++end;
  if (At(end) != '`' || end == at) return Blank(begin, begin + 1);
  if (!kLetters[At(at)]) copy[at] = '_';
  for (; at < end; ++at) {
    if (!kLettersAndDigits[At(at)]) copy[at] = '_';
  }
  ++at;
}

void SwiftText::ReadHighBytes() {
  if (Has(at, "\xC2\xA0")) {
    Blank(at, at + 2);
    at += 2;
    return;
  }
  for (; At(at) >= 0x80; ++at) copy[at] = '_';
}

/// The place of the line end that follows `place`, or the end of the file.
std::size_t SwiftText::EndOfLine(std::size_t place) {
  // The newline is remembered: where lines end in `\r` alone it may be far.
  if (place < newlineFrom || place > newline) {
    newlineFrom = place;
    newline = std::min(text.find('\n', place), text.size());
  }
  const std::size_t length = text.substr(place, newline - place).find('\r');
  return length == std::string_view::npos ? newline : place + length;
}

/// The end of the comment at `place`, nested ones included; the end of the file where it is open.
std::size_t SwiftText::EndOfComment(std::size_t place) const {
  int depth = 0;
  for (;;) {
    place = text.find_first_of("*/", place);
    if (place == std::string_view::npos) return text.size();
    if (Has(place, "/*")) {
      ++depth;
      place += 2;
    } else if (Has(place, "*/")) {
      place += 2;
      if (--depth == 0) return place;
    } else {
      ++place;
    }
  }
}

std::size_t SwiftText::EndOfWord(std::size_t place) const {
  while (kLettersAndDigits[At(place)]) ++place;
  return place;
}

/// The end of the generic arguments at `place`, or `place` where they are none.
std::size_t SwiftText::EndOfAngles(std::size_t place) const {
  int depth = 0;
  for (std::size_t next = place; next < text.size(); ++next) {
    const unsigned char c = At(next);
    if (c == '<') ++depth;
    if (c == '>' && At(next - 1) != '-' && --depth == 0) return next + 1;
    if (!IsInWord(c) && kInAngles.find(static_cast<char>(c)) == std::string_view::npos) break;
  }
  return place;
}

/// Makes blanks of all characters but line ends.
void SwiftText::Blank(std::size_t from, std::size_t to) {
  for (std::size_t place = from; place < to; ++place) {
    if (!IsLineEnd(At(place))) copy[place] = ' ';
  }
}

}  // namespace vexltags::thorough
