// SPDX-License-Identifier: MIT
// Finds the parts of a declaration.
#pragma once

#include <cstddef>
#include <vector>

#include "thorough/word.h"

namespace vexltags::thorough {

/// The words of one declaration, up to its `;` or `{`.
using Words = std::vector<Word>;

inline constexpr std::size_t kNoWord = static_cast<std::size_t>(-1);

/// One past the bracket that closes the one at `open`; the number of words if it stays open.
std::size_t PastBracket(const Words& words, std::size_t open);

/// True when the words are next to each other in the source, without blanks between them.
bool AreAdjacent(const Word& a, const Word& b);

/// One past the `>` that closes the `<` at `open`, or `open` if no `>` does before the end of the
/// declaration. Parentheses and blocks in between are skipped.
std::size_t PastAngle(const Words& words, std::size_t open);

/// The first word after the template heads of a declaration, and after the brace that it may begin
/// with.
std::size_t PastTemplateHeads(const Words& words);

/// Where the parts of a declaration are, outside brackets and template lists; `kNoWord` for none.
struct Outline {
  explicit Outline(const Words& words);

  std::size_t begin = 0;  ///< The first word after template heads.
  std::size_t classKey = kNoWord;
  std::size_t enumKey = kNoWord;
  std::size_t namespaceKey = kNoWord;
  std::size_t operatorWord = kNoWord;
  std::size_t assign = kNoWord;
  std::size_t arrow = kNoWord;
  std::size_t params = kNoWord;      ///< The `(` of the parameters of a function.
  std::size_t pastParams = kNoWord;  ///< One past their `)`.
  std::size_t colon = kNoWord;       ///< The first `:`; after the parameters if there are any.
  std::size_t comma = kNoWord;       ///< The first `,`.
  std::size_t pointer = kNoWord;     ///< The `(` around the name of a function pointer.
  std::size_t result = kNoWord;  ///< The `(` in `int (*f(int))(int)`, whose result is a pointer.
  std::size_t name = kNoWord;    ///< The first word of the name in it.
};

/// True for the words of built-in types.
bool IsBuiltInType(unsigned type);
/// True for `const`, `volatile` and `constexpr`.
bool IsQualifier(unsigned type);
/// True for class, struct and union.
bool IsClassKey(unsigned type);
/// True for a name that looks like a macro: capitals, digits and `_`, and at least two of them.
bool LooksLikeMacro(const Word& word);

}  // namespace vexltags::thorough
