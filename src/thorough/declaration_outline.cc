// SPDX-License-Identifier: MIT
// Finds the parts of a declaration.
#include "thorough/declaration_outline.h"

#include <algorithm>
#include <initializer_list>

#include "base/character_class.h"
#include "vocabulary/main_tokens.h"

namespace vexltags::thorough {
namespace {

bool IsOpen(unsigned type) { return type == kMainLParen || type == kMainLSquare; }
bool IsClose(unsigned type) { return type == kMainRParen || type == kMainRSquare; }

constexpr ByteTable<bool> MakeTypeTable(std::initializer_list<unsigned> types) {
  ByteTable<bool> table{};
  for (const unsigned type : types) table[type] = true;
  return table;
}

/// The types of words between `<` and `>` that matter to `PastAngle`.
constexpr ByteTable<bool> kAngleTypes =
    MakeTypeTable({kMainLParen, kMainLSquare, kMainRParen, kMainRSquare, kMainSemicolon,
                   kMainAssign, kMainComma, kMainLess, kMainGreater, kMainGreaterOrEqual});

/// The types of words that can be a part of an outline or begin one.
constexpr ByteTable<bool> kOutlineTypes =
    MakeTypeTable({kMainKw_class, kMainKw_struct, kMainKw_union, kMainKw_enum, kMainNsOptionsMacro,
                   kMainKw_namespace, kMainKw_operator, kMainAssign, kMainPointerTo, kMainColon,
                   kMainComma, kMainLess, kMainLParen, kMainLSquare});

/// One past the symbol of the operator whose word is at `word`.
std::size_t PastOperatorSymbol(const Words& words, std::size_t word) {
  std::size_t at = word + 1;
  if (at == words.size()) return at;
  const unsigned type = words[at].type;
  if (type == kMainLParen || type == kMainLSquare) return PastBracket(words, at);
  if (type == kMainGreater || type == kMainLess || type == kMainShiftLeft) {
    ++at;
    while (at < words.size() && (words[at].type == kMainGreater || words[at].type == kMainLess ||
                                 words[at].type == kMainGreaterOrEqual)) {
      ++at;
    }
    return at;
  }
  // A literal's suffix, new and delete with brackets, or the words of a type up to the parameters.
  ++at;
  while (at < words.size() && words[at].type != kMainLParen && words[at].type != kMainSemicolon) {
    if (words[at].type == kMainLess && words[at - 1].type == kMainId) {
      const std::size_t past = PastAngle(words, at);
      if (past == at) break;
      at = past;
    } else {
      ++at;
    }
  }
  return at;
}

/// One past the constraint that follows the word `requires` at `word`.
std::size_t PastRequires(const Words& words, std::size_t word) {
  std::size_t at = word + 1;
  for (;;) {
    while (at < words.size() && words[at].type == kMainNot) ++at;
    if (at < words.size() && words[at].type == kMainKw_requires) {
      ++at;
      if (at < words.size() && words[at].type == kMainLParen) at = PastBracket(words, at);
      if (at < words.size() && words[at].type == kMainLCurly) ++at;
    } else if (at < words.size() && words[at].type == kMainLParen) {
      at = PastBracket(words, at);
    } else {
      while (at < words.size() && (words[at].type == kMainId || words[at].type == kMainScope)) {
        const bool isName = words[at].type == kMainId;
        ++at;
        if (isName && at < words.size() && words[at].type == kMainLess) {
          at = std::max(PastAngle(words, at), at);
        }
        if (isName && (at == words.size() || words[at].type != kMainScope)) break;
      }
    }
    if (at == words.size() || (words[at].type != kMainAnd && words[at].type != kMainOr)) return at;
    ++at;
  }
}

/// True for the parentheses from `open` to `past` in `int (*name)(int)` and its like.
bool IsPointerGroup(const Words& words, std::size_t open, std::size_t past) {
  if (open + 1 >= past) return false;
  const unsigned first = words[open + 1].type;
  if (first == kMainStar || first == kMainBitwiseXor) return true;
  // `char (&name)[2]`
  const bool isReference = (first == kMainAmpersand || first == kMainAnd) && past == open + 4;
  if (isReference && past < words.size() && words[past].type == kMainLSquare) return true;
  if (past >= words.size() || words[past].type != kMainLParen) return false;
  // `(API_POINTER name)(...)`
  if (past == open + 4 && LooksLikeMacro(words[open + 1]) && words[open + 2].type == kMainId) {
    return true;
  }
  for (std::size_t i = open + 1; i + 1 < past; ++i) {
    const unsigned type = words[i].type;
    if (type == kMainStar || type == kMainBitwiseXor || type == kMainAmpersand) return true;
    if (type != kMainId && type != kMainScope) return false;
  }
  return false;
}

/// The first word of the name of a function whose result is a pointer or a reference, where the
/// parentheses from `open` to `past` are those in `int (*f(int))(int)`; `kNoWord` otherwise.
/// `params` becomes the index of the parenthesis after a name that is found.
std::size_t NameInResult(const Words& words, std::size_t open, std::size_t past,
                         std::size_t& params) {
  if (past >= words.size() || !IsOpen(words[past].type)) return kNoWord;
  std::size_t at = open + 1;
  while (at < past && (words[at].type == kMainStar || words[at].type == kMainBitwiseXor ||
                       words[at].type == kMainAmpersand || words[at].type == kMainAnd)) {
    ++at;
  }
  if (at == open + 1) return kNoWord;
  while (at < past && IsQualifier(words[at].type)) ++at;
  const std::size_t name = at;
  while (at + 2 < past && words[at].type == kMainId && words[at + 1].type == kMainScope) at += 2;
  if (words[at].type != kMainId || words[at + 1].type != kMainLParen) return kNoWord;
  const std::size_t list = at + 1;
  at = PastBracket(words, list);
  while (at < past && (IsQualifier(words[at].type) || words[at].type == kMainKw_noexcept)) ++at;
  if (at + 1 != past) return kNoWord;
  params = list;
  return name;
}

}  // namespace

bool IsBuiltInType(unsigned type) { return type >= kMainKw_char && type <= kMainKw_void; }
bool IsQualifier(unsigned type) {
  return type == kMainKw_const || type == kMainKw_volatile || type == kMainKw_constexpr;
}
bool IsClassKey(unsigned type) {
  return type == kMainKw_class || type == kMainKw_struct || type == kMainKw_union;
}

bool LooksLikeMacro(const Word& word) {
  if (word.type != kMainId || word.text.size() < 2) return false;
  bool hasLetter = false;
  for (const char c : word.text) {
    if (c >= 'a' && c <= 'z') return false;
    hasLetter |= c >= 'A' && c <= 'Z';
  }
  return hasLetter;
}

std::size_t PastBracket(const Words& words, std::size_t open) {
  int depth = 0;
  for (std::size_t i = open; i < words.size(); ++i) {
    if (IsOpen(words[i].type)) ++depth;
    if (IsClose(words[i].type) && --depth == 0) return i + 1;
  }
  return words.size();
}

bool AreAdjacent(const Word& a, const Word& b) {
  return a.text.data() + a.text.size() == b.text.data();
}

std::size_t PastAngle(const Words& words, std::size_t open) {
  int depth = 0;
  bool afterAssign = false;
  for (std::size_t i = open; i < words.size();) {
    const unsigned type = words[i].type;
    if (!kAngleTypes[type % kAngleTypes.size()]) {
      ++i;
      continue;
    }
    if (IsOpen(type)) {
      i = PastBracket(words, i);
      continue;
    }
    if (type == kMainSemicolon || IsClose(type)) return open;
    if (type == kMainAssign) afterAssign = true;
    if (type == kMainComma) afterAssign = false;
    if (type == kMainLess) {
      const unsigned before = i > 0 ? words[i - 1].type : 0;
      const bool opens =
          before == kMainId || before == kMainKw_template || before == kMainKw_operator;
      // `bool ok = a < b` compares, and so does `A::value < 5`.
      const bool isApart = i + 1 < words.size() && i > 0 && !AreAdjacent(words[i - 1], words[i]) &&
                           !AreAdjacent(words[i], words[i + 1]);
      const bool compares = isApart && (afterAssign || words[i + 1].type == kMainNumber ||
                                        words[i + 1].type == kMainKw_sizeof);
      if (i == open || (opens && !compares)) ++depth;
    }
    if (type == kMainGreater && --depth == 0) return i + 1;
    // `enable_if_t<A>= 0`; with a blank before it, it compares.
    if (type == kMainGreaterOrEqual && AreAdjacent(words[i - 1], words[i]) && --depth == 0) {
      return i + 1;
    }
    ++i;
  }
  return open;
}

std::size_t PastTemplateHeads(const Words& words) {
  std::size_t i = 0;
  if (i < words.size() && words[i].type == kMainRCurly) ++i;
  while (i < words.size() && words[i].type == kMainKw_template) {
    ++i;
    if (i < words.size() && words[i].type == kMainLess) {
      const std::size_t past = PastAngle(words, i);
      if (past == i) break;
      i = past;
    }
  }
  if (i < words.size() && words[i].type == kMainKw_requires) i = PastRequires(words, i);
  return i;
}

Outline::Outline(const Words& words) {
  std::size_t i = begin = PastTemplateHeads(words);
  // Each that stays open costs a look at the whole rest.
  constexpr int kMostOpenAngles = 8;
  int openAngles = 0;
  while (i < words.size()) {
    const unsigned type = words[i].type;
    if (!kOutlineTypes[type % kOutlineTypes.size()]) {
      ++i;
      continue;
    }
    if (IsClassKey(type)) {
      if (classKey == kNoWord && params == kNoWord) classKey = i;
    } else if (type == kMainKw_enum || type == kMainNsOptionsMacro) {
      if (enumKey == kNoWord) enumKey = i;
    } else if (type == kMainKw_namespace) {
      if (namespaceKey == kNoWord) namespaceKey = i;
    } else if (type == kMainKw_operator) {
      if (operatorWord == kNoWord && params == kNoWord && assign == kNoWord) {
        operatorWord = i;
        i = PastOperatorSymbol(words, i);
        if (i < words.size() && words[i].type == kMainLParen) {
          params = i;
          pastParams = i = PastBracket(words, i);
        }
        continue;
      }
    } else if (type == kMainAssign) {
      if (assign == kNoWord) assign = i;
    } else if (type == kMainPointerTo) {
      if (arrow == kNoWord && assign == kNoWord) arrow = i;
    } else if (type == kMainColon) {
      if (colon == kNoWord && assign == kNoWord) colon = i;
    } else if (type == kMainComma) {
      if (comma == kNoWord) comma = i;
    } else if (type == kMainLess && i > 0 && openAngles < kMostOpenAngles &&
               (words[i - 1].type == kMainId || words[i - 1].type == kMainKw_template)) {
      const std::size_t past = PastAngle(words, i);
      if (past != i) {
        i = past;
        continue;
      }
      ++openAngles;
    } else if (IsOpen(type)) {
      const std::size_t past = PastBracket(words, i);
      if (i > 0 && words[i - 1].type == kMainKw_decltype) {
        i = past;
        continue;
      }
      if (type == kMainLParen && i > begin && params == kNoWord && assign == kNoWord &&
          words[begin].type != kMainKw_typedef) {
        name = NameInResult(words, i, past, params);
        if (name != kNoWord) {
          result = i;
          pastParams = PastBracket(words, params);
          i = PastBracket(words, past);
          colon = kNoWord;
          continue;
        }
      }
      if (type == kMainLParen && params == kNoWord && assign == kNoWord &&
          IsPointerGroup(words, i, past)) {
        pointer = i;
        i = past < words.size() && words[past].type == kMainLParen ? PastBracket(words, past)
                                                                   : past;
        continue;
      }
      // After the colon of a bit field a call is its width.
      const bool isWidth = colon != kNoWord && colon > begin + 1;
      const bool isCall = type == kMainLParen && i > begin && assign == kNoWord && !isWidth &&
                          (words[i - 1].type == kMainId || words[i - 1].type == kMainGreater);
      const bool isName = type == kMainLParen && past < words.size() && past - i == 3 &&
                          words[past].type == kMainLParen && words[i + 1].type == kMainId;
      if (isName && params == kNoWord && assign == kNoWord) {
        // A name in parentheses.
        params = past;
        i = pastParams = PastBracket(words, past);
        colon = kNoWord;
        continue;
      }
      if (isCall && params == kNoWord) {
        params = i;
        pastParams = past;
        colon = kNoWord;
      }
      i = past;
      continue;
    }
    ++i;
  }
}

}  // namespace vexltags::thorough
