// SPDX-License-Identifier: MIT
// Finds the classes and functions of a Python file in its text, without a grammar.
#include "thorough/python_definitions.h"

#include "base/character_class.h"

namespace vexltags::thorough {
namespace {

constexpr int kTabWidth = 8;  // As Python itself counts.

constexpr ByteTable<bool> MakeMarks() {
  ByteTable<bool> marks{};
  for (const char c : std::string_view("\"'#()[]{}\\\n\r"))
    marks[static_cast<unsigned char>(c)] = true;
  return marks;
}
constexpr ByteTable<bool> kMarks = MakeMarks();

constexpr bool IsLineEnd(unsigned char c) { return c == '\n' || c == '\r'; }
constexpr bool IsInWord(unsigned char c) { return kLettersAndDigits[c] || c >= 0x80; }

}  // namespace

PythonDefinitions::PythonDefinitions(std::string_view source) : text(source) {
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  if (text.starts_with(kByteOrderMark)) at = kByteOrderMark.size();
}

bool PythonDefinitions::Next(PythonDefinition& definition) {
  // The rest of the line of the last one.
  if (wasDefinition) ReadRestOfLine();
  wasDefinition = false;
  while (at < text.size()) {
    const int indentation = ReadIndentation();
    const unsigned char first = At(at);
    const bool isStatement = !IsLineEnd(first) && first != '#' && !isContinued;
    isContinued = false;
    if (isStatement) {
      const bool isDefinition = ReadDefinition(definition);
      if (isDefinition) brackets = 0;
      if (brackets == 0) {
        while (!indents.empty() && indents.back() >= indentation) indents.pop_back();
      }
      if (isDefinition) {
        definition.depth = static_cast<int>(indents.size());
        indents.push_back(indentation);
        wasDefinition = true;
        return true;
      }
    }
    ReadRestOfLine();
  }
  return false;
}

int PythonDefinitions::ReadIndentation() {
  int width = 0;
  for (;; ++at) {
    switch (At(at)) {
      case ' ':
        ++width;
        break;
      case '\t':
        width += kTabWidth - width % kTabWidth;
        break;
      case '\f':
        width = 0;
        break;
      default:
        return width;
    }
  }
}

/// Reads a definition up to its name. Where none begins, stays where it is. Cython has words before
/// `class`.
bool PythonDefinitions::ReadDefinition(PythonDefinition& definition) {
  const unsigned char first = At(at);
  if (first != 'd' && first != 'c' && first != 'a') return false;
  const std::size_t begin = at;
  const int beginLine = line;
  std::string_view word = ReadWord();
  if (word == "async" || word == "cdef" || word == "ctypedef") {
    while (!word.empty() && word != "def" && word != "class") {
      SkipBlanks();
      word = ReadWord();
    }
  }
  if (word == "def" || word == "class") {
    definition.isClass = word == "class";
    SkipBlanks();
    definition.line = line;
    definition.name = ReadWord();
    SkipBlanks();
    const unsigned char next = At(at);
    const bool hasName =
        !definition.name.empty() && (definition.name[0] < '0' || definition.name[0] > '9');
    if (hasName &&
        (next == '(' || next == '[' || next == ':' || (next == '-' && At(at + 1) == '>'))) {
      return true;
    }
  }
  at = begin;
  line = beginLine;
  return false;
}

/// Goes to the beginning of the next line that is not within a string.
void PythonDefinitions::ReadRestOfLine() {
  for (;;) {
    while (at < text.size() && !kMarks[At(at)]) ++at;
    if (at >= text.size()) return;
    switch (At(at)) {
      case '"':
      case '\'':
        ReadString();
        break;
      case '#':
        while (at < text.size() && !IsLineEnd(At(at))) ++at;
        break;
      case '(':
      case '[':
      case '{':
        ++brackets;
        ++at;
        break;
      case ')':
      case ']':
      case '}':
        if (brackets > 0) --brackets;
        ++at;
        break;
      case '\\':
        ++at;
        isContinued = IsLineEnd(At(at)) && at < text.size();
        if (!isContinued) break;
        [[fallthrough]];
      default:
        ReadLineEnd();
        return;
    }
  }
}

/// Reads a string, whose prefix does not matter: after a backslash no quote ends it, be it raw or
/// not. One in single quotes ends with its line at the latest. A long one that is open is no
/// string.
void PythonDefinitions::ReadString() {
  const unsigned char quote = At(at);
  const bool isLong = At(at + 1) == quote && At(at + 2) == quote;
  if (!isLong) {
    for (++at; at < text.size(); ++at) {
      const unsigned char c = At(at);
      if (c == '\\' && at + 1 < text.size()) {
        ++at;
        if (IsLineEnd(At(at))) {
          ReadLineEnd();
          --at;
        }
      } else if (c == quote) {
        ++at;
        return;
      } else if (IsLineEnd(c)) {
        return;
      }
    }
    return;
  }
  at += 3;
  bool& isOpen = isOpenForGood[quote == '"' ? 0 : 1];
  if (isOpen) return;
  int newlines = 0;
  for (std::size_t place = at; place < text.size(); ++place) {
    const unsigned char c = At(place);
    if (c == '\\') {
      ++place;
      newlines += At(place) == '\n';
    } else if (c == '\n') {
      ++newlines;
    } else if (c == quote && At(place + 1) == quote && At(place + 2) == quote) {
      at = place + 3;
      line += newlines;
      return;
    }
  }
  isOpen = true;
}

/// Lines are counted by their newlines. A carriage return alone ends one, but does not count.
void PythonDefinitions::ReadLineEnd() {
  if (At(at) == '\r' && At(at + 1) == '\n') ++at;
  if (At(at) == '\n') ++line;
  ++at;
}

/// Goes over blanks and over line ends after a backslash.
void PythonDefinitions::SkipBlanks() {
  for (;;) {
    const unsigned char c = At(at);
    if (c == '\\' && IsLineEnd(At(at + 1))) {
      ++at;
      ReadLineEnd();
    } else if (c == ' ' || c == '\t' || c == '\f') {
      ++at;
    } else {
      return;
    }
  }
}

std::string_view PythonDefinitions::ReadWord() {
  const std::size_t begin = at;
  while (IsInWord(At(at))) ++at;
  return text.substr(begin, at - begin);
}

}  // namespace vexltags::thorough
