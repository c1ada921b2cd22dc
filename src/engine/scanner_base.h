// SPDX-License-Identifier: MIT
// What the hand-written scanners of all languages share.
#pragma once

#include <cstddef>
#include <cstring>
#include <string_view>

#include "base/byte_search.h"
#include "engine/token_feed.h"
#include "engine/token_table.h"

namespace vexltags {

/// Base of the class of a language's scanner, which adds a public `bool ScanToken()`: reads one
/// token or some white space from `at` on, of which there is at least one character, and returns
/// true; or changes nothing and returns false, where the generated lexer has to read.
class ScannerBase {
 public:
  using Byte = unsigned char;

  ScannerBase(ScanCursor& scanCursor, TokenTable& tokens)
      : cursor(scanCursor), table(tokens), at(scanCursor.at), end(scanCursor.end) {}

  bool AtEnd() const { return at == end; }
  /// Stores the place that the scanner has reached.
  void Leave() { cursor.at = at; }

 protected:
  /// The character `offset` places after `at`; NUL past the end.
  Byte Ahead(std::ptrdiff_t offset) const { return end - at > offset ? at[offset] : Byte{0}; }
  /// True when `place` is a `c` and not the end.
  bool Is(const Byte* place, Byte c) const { return place < end && *place == c; }
  bool StartsWith(const Byte* place, std::string_view text) const {
    return static_cast<std::size_t>(end - place) >= text.size() &&
           std::memcmp(place, text.data(), text.size()) == 0;
  }
  static std::string_view Text(const Byte* from, const Byte* to) {
    return {reinterpret_cast<const char*>(from), static_cast<std::size_t>(to - from)};
  }

  /// Reads a visible token that ends before `next` and holds no line end. Returns true.
  bool Take(unsigned type, const Byte* next) {
    table.Add(type, at, next, cursor.line);
    at = next;
    return true;
  }

  /// The same for a token that may hold line ends.
  bool TakeLines(unsigned type, const Byte* next) {
    table.Add(type, at, next, cursor.line);
    return SkipLines(next);
  }

  /// Moves to `next` and counts the lines that end before it. Returns true.
  bool SkipLines(const Byte* next) {
    for (;;) {
      const Byte* found = FindByte('\n', at, next);
      if (found == next) break;
      at = found + 1;
      StartLine(at);
    }
    at = next;
    return true;
  }

  /// Moves past the line end at `at`. A `\r` alone begins no line. Returns true.
  bool SkipLineEnd() {
    if (*at == '\r') {
      ++at;
      if (at == end || *at != '\n') return true;
    }
    ++at;
    StartLine(at);
    return true;
  }

  /// Counts a line that begins at `place`.
  void StartLine(const Byte* place) {
    ++cursor.line;
    cursor.columnZero = place;
  }

  /// The first `\r` or `\n` from `from` on; the end when there is none.
  const Byte* FindLineEnd(const Byte* from) {
    // The newline is remembered: where lines end in `\r` alone it may be far.
    if (from < newlineFrom || from > newline) {
      newlineFrom = from;
      newline = FindByte('\n', from, end);
    }
    return FindByte('\r', from, newline);
  }

  ScanCursor& cursor;
  TokenTable& table;
  const Byte* at;  ///< The start of the next token.
  const Byte* const end;

 private:
  const Byte* newlineFrom = end;  ///< The last search for a newline began here ...
  const Byte* newline = nullptr;  ///< ... and found this, or the end.
};

/// A `Scanner` made of a class that is derived from `ScannerBase`.
template <class LanguageScanner>
void RunScanner(ScanCursor& cursor, TokenTable& table) {
  LanguageScanner scanner(cursor, table);
  while (!scanner.AtEnd() && scanner.ScanToken()) {
  }
  scanner.Leave();
}

}  // namespace vexltags
