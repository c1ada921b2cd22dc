// SPDX-License-Identifier: MIT
// Repairs declarations that declare several names.

#include <algorithm>

#include "thorough/declaration_repairer.h"
#include "vocabulary/main_tokens.h"

namespace vexltags::thorough {
namespace {

/// True if the declarator from `from` up to, but not including, `to` has parentheses that follow a
/// name or are around one, as those of functions and of pointers to them have.
bool HasParentheses(const Words& words, std::size_t from, std::size_t to) {
  for (std::size_t i = from; i < to; ++i) {
    const unsigned type = words[i].type;
    if (type == kMainAssign || type == kMainColon) return false;
    if (type != kMainLParen || i == 0) continue;
    const unsigned before = words[i - 1].type;
    if (before != kMainKw_decltype && before != kMainKw_throw && before != kMainKw_noexcept) {
      return true;
    }
  }
  return false;
}

/// True if the words from `from` up to, but not including, `to` can be a declarator after a comma:
/// a name, in parentheses or not, and after it no other name but those of macros.
bool CanBeDeclarator(const Words& words, std::size_t from, std::size_t to) {
  std::size_t i = from;
  while (i < to && (words[i].type == kMainStar || words[i].type == kMainAmpersand ||
                    words[i].type == kMainAnd || IsQualifier(words[i].type))) {
    ++i;
  }
  if (i == to || (words[i].type != kMainId && words[i].type != kMainLParen)) return false;
  if (words[i].type == kMainId) ++i;
  while (i < to) {
    const unsigned type = words[i].type;
    if (type == kMainAssign || type == kMainColon) return true;
    if (type == kMainLParen || type == kMainLSquare) {
      i = PastBracket(words, i);
      continue;
    }
    const bool isCall = i + 1 < to && words[i + 1].type == kMainLParen;
    if (type == kMainId && !isCall && !LooksLikeMacro(words[i]) &&
        !words[i].text.starts_with("__")) {
      return false;
    }
    ++i;
  }
  return true;
}

}  // namespace

std::vector<std::size_t> DeclarationRepairer::DeclaratorEnds(std::size_t begin) {
  std::vector<std::size_t> ends;
  std::size_t i = begin;
  const std::size_t last = words.size() - 1;
  while (i < last) {
    const unsigned type = TypeAt(i);
    if (type == kMainLParen || type == kMainLSquare) {
      i = PastBracket(words, i);
    } else if (type == kMainLess && i > 0 && TypeAt(i - 1) == kMainId) {
      i = std::max(PastAngles(i), i + 1);
    } else {
      if (type == kMainComma) ends.push_back(i);
      ++i;
    }
  }
  ends.push_back(last);
  return ends;
}

bool DeclarationRepairer::SplitDeclarators(const Outline& outline) {
  const bool hasGroup = outline.params != kNoWord || outline.pointer != kNoWord;
  if (outline.comma == kNoWord || !hasGroup) return false;
  const bool mayBeSeveral = end == DeclarationEnd::Semicolon && outline.begin == 0 &&
                            outline.operatorWord == kNoWord && TypeAt(0) != kMainKw_using &&
                            TypeAt(words.size() - 1) == kMainSemicolon;
  if (!mayBeSeveral) return false;
  // A macro, with or without another one after it.
  if (TypeAt(1) == kMainLParen && PastBracket(words, 1) == outline.comma) return false;
  const std::vector<std::size_t> ends = DeclaratorEnds(0);
  bool hasParentheses = false;
  std::size_t from = 1;
  for (const std::size_t past : ends) {
    if (past <= from || (from > 1 && !CanBeDeclarator(words, from, past))) return false;
    hasParentheses = hasParentheses || HasParentheses(words, from, past);
    from = past + 1;
  }
  if (!hasParentheses) return false;
  std::size_t specifiers = 0;
  while (IsSpecifier(TypeAt(specifiers))) ++specifiers;
  const auto wordAt = [&](std::size_t index) {
    return words.begin() + static_cast<std::ptrdiff_t>(index);
  };
  const auto made = [](Word word, unsigned type, std::string_view text) {
    word.type = type;
    word.text = text;
    word.index = -1;
    return word;
  };
  Words result;
  Words one;
  from = 0;
  for (const std::size_t past : ends) {
    if (from > 0) {
      for (std::size_t i = 0; i < specifiers; ++i) {
        one.push_back(made(words[from], TypeAt(i), words[i].text));
      }
      one.push_back(made(words[from], kMainKw_int, "int"));
    }
    one.insert(one.end(), wordAt(from), wordAt(past));
    const bool isLast = past + 1 == words.size();
    one.push_back(isLast ? words[past] : made(words[past], kMainSemicolon, ";"));
    DeclarationRepairer(one, end, place).Run();
    result.insert(result.end(), one.begin(), one.end());
    one.clear();
    from = past + 1;
  }
  words = std::move(result);
  changed = true;
  return true;
}

}  // namespace vexltags::thorough
