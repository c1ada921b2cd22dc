// SPDX-License-Identifier: MIT
// Removes macros without a definition from declarations.

#include <algorithm>

#include "thorough/declaration_repairer.h"
#include "vocabulary/main_tokens.h"

namespace vexltags::thorough {
namespace {

/// Words that begin the name of a type.
bool BeginsType(unsigned type) {
  return type == kMainId || IsBuiltInType(type) || IsClassKey(type) || type == kMainKw_enum ||
         type == kMainKw_const || type == kMainKw_volatile || type == kMainKw_typename ||
         type == kMainKw_auto || type == kMainKw_decltype || type == kMainScope;
}

/// True for a word that can follow a macro at the beginning of a declaration, but not the name of
/// a type.
bool BeginsDeclaration(unsigned type) {
  return IsBuiltInType(type) || IsSpecifier(type) || IsClassKey(type) || type == kMainKw_enum ||
         type == kMainKw_typename || type == kMainKw_auto || type == kMainKw_namespace ||
         type == kMainKw_using || type == kMainTilde || type == kMainKw_template ||
         type == kMainKw_decltype;
}

}  // namespace

// As in `RemoveThirdNames`, what is removed is a gap before the next word.
void DeclarationRepairer::RemoveMacrosBefore() {
  std::size_t kept = 0;
  if (TypeAt(0) == kMainKw_template) kept = PastTemplateHeads(words);
  RemoveMacroLines(kept);
  RemoveMadeTemplateHead();
  std::size_t i = kept;
  // A call of one, followed by the rest of a declaration.
  for (;;) {
    while (IsSpecifier(TypeAt(i)) || TypeAt(i) == kMainKw_const) words[kept++] = words[i++];
    if (TypeAt(i) == kMainId && TypeAt(i + 1) == kMainLParen) {
      // A constructor.
      if (place.inClass && words[i].text == place.className) break;
      const std::size_t past = PastBracket(words, i + 1);
      const unsigned after = TypeAt(past);
      // A macro that makes a type.
      const bool isLastName = after == kMainId && TypeAt(past + 1) == kMainSemicolon &&
                              LooksLikeMacro(words[i]) && !LooksLikeMacro(words[past]);
      if (after == kMainStar || isLastName || NamesFunctionAfterMacro(i, past) ||
          (after == kMainId && !LooksLikeMacro(words[past]) && !LooksLikeMacro(words[i]))) {
        Erase(i + 1, past);
        break;
      }
      if (!LooksLikeMacro(words[i])) break;
      const bool goesOn =
          (BeginsType(after) && after != kMainKw_const && after != kMainKw_volatile) ||
          IsSpecifier(after) || after == kMainTilde;
      if (!goesOn) break;
      i = past;
      continue;
    }
    if (TypeAt(i) != kMainId) break;
    // A name directly before a word that cannot follow the name of a type.
    const unsigned after = TypeAt(i + 1);
    if (BeginsDeclaration(after) && after != kMainKw_constexpr) {
      ++i;
      continue;
    }
    if ((after == kMainKw_const || after == kMainKw_volatile) && LooksLikeMacro(words[i]) &&
        BeginsType(TypeAt(i + 2)) && BeginsType(TypeAt(i + 3))) {
      ++i;
      continue;
    }
    break;
  }
  Erase(kept, i);
  RemoveThirdNames(kept);
}

bool DeclarationRepairer::NamesFunctionAfterMacro(std::size_t macro, std::size_t name) const {
  if (TypeAt(name) != kMainId || TypeAt(name + 1) != kMainLParen || LooksLikeMacro(words[name]) ||
      words[name].line > words[macro].line || words[name].text == place.className) {
    return false;
  }
  if (end == DeclarationEnd::Body || TypeAt(name + 2) == kMainRParen) return true;
  // `int a`, `A* a`
  return BeginsParameter(name + 2) ||
         (TypeAt(name + 2) == kMainId && TypeAt(name + 3) == kMainStar);
}

void DeclarationRepairer::RemoveMadeTemplateHead() {
  if ((TypeAt(0) != kMainKw_template && TypeAt(0) != kMainId) || TypeAt(1) != kMainLParen) return;
  std::size_t past = PastBracket(words, 1);
  if (TypeAt(past) != kMainLParen) return;
  past = PastBracket(words, past);
  const unsigned after = TypeAt(past);
  // Nothing else has a parenthesis after `template`.
  const bool hasTypes =
      TypeAt(0) == kMainKw_template || TypeAt(2) == kMainKw_typename || TypeAt(2) == kMainKw_class;
  if (hasTypes && (BeginsType(after) || BeginsDeclaration(after))) Erase(0, past);
}

void DeclarationRepairer::RemoveMacroLines(std::size_t at) {
  std::size_t line = at;
  while (line + 1 < words.size() && LooksLikeMacro(words[line]) &&
         words[line + 1].line > words[line].line && TypeAt(line + 1) != kMainLParen &&
         !(TypeAt(line + 1) == kMainId && TypeAt(line + 2) == kMainLParen) &&
         TypeAt(line + 1) != kMainStar && TypeAt(line + 1) != kMainSemicolon) {
    ++line;
  }
  Erase(at, line);
  std::size_t past = at;
  while (past < words.size() && LooksLikeMacro(words[past])) ++past;
  if (past > at + 1 && BeginsDeclaration(TypeAt(past))) Erase(at, past);
}

// What is removed is a gap before the next word, which moves on with it, so that a long run of
// names takes linear time.
void DeclarationRepairer::RemoveThirdNames(std::size_t from) {
  std::size_t kept = from;  // The gap begins here ...
  std::size_t i = from;     // ... and ends before this word.
  const auto keepTo = [&](std::size_t past) {
    if (kept == i) {
      kept = i = past;
      return;
    }
    while (i < past) words[kept++] = words[i++];
  };
  // Removes the words from `begin` to before `end`, which follow the word at `i`.
  const auto remove = [&](std::size_t begin, std::size_t end) {
    end = std::min(end, words.size());
    const auto first = words.begin();
    std::copy_backward(first + static_cast<std::ptrdiff_t>(i),
                       first + static_cast<std::ptrdiff_t>(begin),
                       first + static_cast<std::ptrdiff_t>(end));
    i += end - begin;
  };
  while (i < words.size()) {
    const unsigned type = TypeAt(i);
    if (type == kMainLParen || type == kMainAssign || type == kMainSemicolon ||
        type == kMainLCurly || type == kMainKw_operator || type == kMainColon ||
        type == kMainComma) {
      break;
    }
    if (type == kMainLess && kept > 0 && TypeAt(kept - 1) == kMainId) {
      keepTo(std::max(PastAngles(i), i + 1));
      continue;
    }
    const bool isPair = type == kMainId && TypeAt(i + 1) == kMainId;
    if (!isPair) {
      keepTo(i + 1);
      continue;
    }
    // `a b c`, `int a b`, `a* b c`, `a b ::c`: one of a and b is a macro.
    const unsigned before = kept > 0 ? TypeAt(kept - 1) : 0;
    const bool isFirst = kept == from;
    const bool hasTypeBefore =
        !isFirst && (IsBuiltInType(before) || before == kMainStar || before == kMainAmpersand ||
                     before == kMainGreater || before == kMainAnd);
    const bool hasThird =
        TypeAt(i + 2) == kMainId || TypeAt(i + 2) == kMainKw_operator ||
        (TypeAt(i + 2) == kMainStar && LooksLikeMacro(words[i]) && isFirst) ||
        (TypeAt(i + 2) == kMainAmpersand && LooksLikeMacro(words[i]) && isFirst) ||
        (TypeAt(i + 2) == kMainLess && LooksLikeMacro(words[i])) ||
        (TypeAt(i + 2) == kMainScope && LooksLikeMacro(words[i]));
    if (hasTypeBefore && LooksLikeMacro(words[i + 1]) && !LooksLikeMacro(words[i])) {
      // `int name MACRO`, `int name MACRO (int a)`
      const bool hasParameters =
          TypeAt(i + 2) == kMainLParen &&
          (TypeAt(i + 3) == kMainRParen || BeginsParameter(i + 3) ||
           (end == DeclarationEnd::Body && TypeAt(PastBracket(words, i + 2)) != kMainLParen));
      if (TypeAt(i + 2) != kMainLParen || hasParameters) {
        remove(i + 1, i + 2);
        continue;
      }
      remove(i + 1, PastBracket(words, i + 2));
      continue;
    }
    if (hasTypeBefore) {
      ++i;
      continue;
    }
    if (hasThird) {
      if (LooksLikeMacro(words[i + 2]) && !LooksLikeMacro(words[i + 1]) &&
          !LooksLikeMacro(words[i])) {
        remove(i + 2, TypeAt(i + 3) == kMainLParen && TypeAt(i + 4) == kMainStringLiteral
                          ? PastBracket(words, i + 3)
                          : i + 3);
      } else if (LooksLikeMacro(words[i + 1]) && !LooksLikeMacro(words[i])) {
        remove(i + 1, i + 2);
      } else if (TypeAt(i + 2) == kMainId && words[i + 2].text.starts_with("__") &&
                 !LooksLikeMacro(words[i]) && !words[i + 1].text.starts_with("__")) {
        // `type name __attribute`
        remove(i + 2, TypeAt(i + 3) == kMainLParen ? PastBracket(words, i + 3) : i + 3);
      } else {
        ++i;
      }
      continue;
    }
    // `type name MACRO;`
    keepTo(i + 2);
  }
  Erase(kept, i);
}

void DeclarationRepairer::RemoveTrailingMacros() {
  for (;;) {
    if (words.size() < 4 || TypeAt(words.size() - 1) != kMainSemicolon) return;
    std::size_t at = words.size() - 2;
    if (TypeAt(at) == kMainRParen) {
      int depth = 0;
      while (at > 0) {
        if (TypeAt(at) == kMainRParen) ++depth;
        if (TypeAt(at) == kMainLParen && --depth == 0) break;
        --at;
      }
      if (at < 3) return;
      --at;
    }
    if (TypeAt(at) != kMainId) return;
    const unsigned before = TypeAt(at - 1);
    if (before == kMainRParen) {
      int depth = 0;
      std::size_t open = at - 1;
      while (open > 0) {
        if (TypeAt(open) == kMainRParen) ++depth;
        if (TypeAt(open) == kMainLParen && --depth == 0) break;
        --open;
      }
      // The name after the type `decltype(...)`, or after one that a macro makes.
      if (open == 0 || TypeAt(open - 1) == kMainKw_decltype || open == 1) return;
      const bool followsMacro = LooksLikeMacro(words[open - 1]) && !LooksLikeMacro(words[at]);
      if (TypeAt(0) == kMainKw_typedef && (open == 2 || followsMacro)) return;
    }
    const bool isExtra = before == kMainRParen || before == kMainRSquare ||
                         (before == kMainId && at >= 3 &&
                          (TypeAt(at - 2) == kMainId || TypeAt(at - 2) == kMainStar ||
                           IsBuiltInType(TypeAt(at - 2)) || TypeAt(at - 2) == kMainGreater ||
                           TypeAt(at - 2) == kMainAmpersand || TypeAt(at - 2) == kMainComma));
    if (!isExtra) return;
    Erase(at, words.size() - 1);
  }
}

bool DeclarationRepairer::IsType(std::size_t from, std::size_t to) const {
  for (std::size_t i = from; i < to; ++i) {
    const unsigned type = TypeAt(i);
    const bool isPart = type == kMainId || type == kMainScope || IsBuiltInType(type) ||
                        IsQualifier(type) || IsClassKey(type) || type == kMainStar ||
                        type == kMainAmpersand || type == kMainLess || type == kMainGreater ||
                        type == kMainKw_typename;
    if (!isPart) return false;
  }
  return from < to;
}

bool DeclarationRepairer::IsFunctionType(std::size_t from, std::size_t to) const {
  std::size_t open = from;
  while (open < to && TypeAt(open) != kMainLParen) ++open;
  if (!IsType(from, open) || PastBracket(words, open) != to) return false;
  if (TypeAt(from) == kMainKw_void || IsQualifier(TypeAt(from))) return true;
  for (std::size_t i = open + 1; i < to; ++i) {
    const unsigned before = TypeAt(i - 1);
    const bool begins = before == kMainLParen || before == kMainComma;
    const bool ends = TypeAt(i) == kMainRParen || TypeAt(i) == kMainComma;
    if (begins && BeginsParameter(i)) return true;
    if (ends && (before == kMainStar || before == kMainAmpersand)) return true;
  }
  return false;
}

bool DeclarationRepairer::RepairMemberCall() {
  if (!place.inClass || end != DeclarationEnd::Semicolon || !LooksLikeMacro(words[0])) return false;
  const std::size_t close = words.size() - 2;
  if (words.size() < 6 || PastBracket(words, 1) != close + 1) return false;
  std::size_t comma = 2;
  while (comma < close && TypeAt(comma) != kMainComma) {
    const bool opens = TypeAt(comma) == kMainLParen || TypeAt(comma) == kMainLSquare;
    comma = opens ? PastBracket(words, comma) : comma + 1;
  }
  if (comma >= close) return false;
  const std::size_t name = comma + 1;
  const std::size_t open = comma + 3;
  if (IsType(2, comma) && TypeAt(name) == kMainId && TypeAt(name + 1) == kMainAssign) {
    // CONSTANT(int, name = 1);
    Erase(name + 1, close + 1);
    Erase(comma, name);
    Erase(0, 2);
    return true;
  }
  if (IsType(2, comma) && TypeAt(name) == kMainId && TypeAt(name + 1) == kMainComma &&
      TypeAt(open) == kMainLParen) {
    // METHOD(int, name, (int a));
    const std::size_t past = PastBracket(words, open);
    if (past != close && TypeAt(past) != kMainComma) return false;
    Erase(past, close + 1);
    Erase(open + 1, past - 1);
    Erase(name + 1, open);
    Erase(comma, name);
    Erase(0, 2);
    return true;
  }
  if (comma == 3 && TypeAt(2) == kMainId && IsFunctionType(name, close)) {
    // METHOD(name, int(int a));
    std::size_t params = name;
    while (TypeAt(params) != kMainLParen) ++params;
    Erase(close, close + 1);
    Erase(params + 1, close - 1);
    Erase(comma, params);
    Erase(0, 2);
    Insert(0, kMainKw_int, "int");
    return true;
  }
  return false;
}

bool DeclarationRepairer::IsMacroCall(const Outline& outline) const {
  if (outline.params != 1 || TypeAt(0) != kMainId || outline.operatorWord != kNoWord) {
    return false;
  }
  if (end == DeclarationEnd::Body) {
    // Also what follows the body of a function that is a `try` block.
    return (LooksLikeMacro(words[0]) || words[0].text == "catch") &&
           words[0].text != place.className;
  }
  if (place.inClass && words[0].text == place.className) return false;
  const unsigned after = TypeAt(outline.pastParams);
  const bool ends = outline.pastParams >= words.size() || after == kMainSemicolon;
  if (!ends) return false;
  return true;
}

}  // namespace vexltags::thorough
