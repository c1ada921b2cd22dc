// SPDX-License-Identifier: MIT
// Blanks what the Swift lexer would misread, so that every character left is plain code.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vexltags::thorough {

/// Makes a copy of Swift source that the lexer reads without an error. Offsets and line ends are
/// those of the source. In the copy
/// - strings, regular expressions, attributes with their arguments, conditional directives,
///   diagnostics and comments that are not of a single line are blank;
/// - a word after `#` has lost the `#`;
/// - each byte beyond ASCII outside these is a `_`, and so is each character of a name in backticks
///   that no plain name can have.
///
/// Takes time linear in the length, whatever the text is. One object serves file after file.
class SwiftText {
 public:
  /// Returns the copy, which is good until the next call.
  std::string& Simplify(std::string_view source);

 private:
  /// A string or the arguments of an attribute, open at the current place.
  struct Open {
    std::size_t begin;     ///< Of the whole.
    std::uint32_t parens;  ///< Open in the interpolation, or in the arguments.
    std::uint32_t hashes;  ///< Of a string.
    bool isString;
    bool isLong;  ///< In three quotes.
  };

  unsigned char At(std::size_t place) const {
    return place < text.size() ? static_cast<unsigned char>(text[place]) : '\0';
  }
  bool Has(std::size_t place, std::string_view what) const {
    return text.substr(place, what.size()) == what;
  }
  void Blank(std::size_t from, std::size_t to);

  void ReadAll();
  void ReadCode();
  void ReadMark(unsigned char mark);
  void CloseParenthesis();
  void Leave();
  void GiveUpOpen();
  void OpenString(std::size_t begin, std::size_t hashes);
  void ReadString();
  void ReadHash();
  void ReadSlash();
  void ReadRegex();
  void ReadLongRegex(std::size_t hashes);
  void ReadAttribute();
  void ReadBacktick();
  void ReadHighBytes();

  bool CanRegexBegin() const;
  std::size_t EndOfLine(std::size_t place);
  std::size_t EndOfComment(std::size_t place) const;
  std::size_t EndOfWord(std::size_t place) const;
  std::size_t EndOfAngles(std::size_t place) const;

  std::string_view text;
  std::string copy;
  std::size_t at = 0;
  std::size_t newlineFrom = 0, newline = 0;  ///< The last search for one: from where, and what.
  std::vector<Open> open;
  bool blanksArguments = true;      ///< False once some are open at the end of the file.
  bool readsInterpolations = true;  ///< The same of interpolations.
  bool hasLongRegexEnds = true;     ///< False once a search for one has failed.
};

}  // namespace vexltags::thorough
