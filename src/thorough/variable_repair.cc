// SPDX-License-Identifier: MIT
// Repairs variables and typedefs.

#include <algorithm>

#include "thorough/declaration_repairer.h"
#include "vocabulary/main_tokens.h"

namespace vexltags::thorough {

void DeclarationRepairer::RepairTail() {
  // A template declares no variables: what follows it is a macro.
  if (place.followsTemplate && words.back().type == kMainSemicolon) Erase(1, words.size() - 1);
  CutInitializer(1);
  RemoveLeadingScopes();
  // Macros with arguments, and attributes of a class that has a name.
  for (std::size_t i = 1; TypeAt(i) == kMainId;) {
    const bool isCall = TypeAt(i + 1) == kMainLParen;
    const bool isAttribute = place.followsNamedClass && place.dialect != Dialect::Cxx &&
                             words[i].text.starts_with("__") && TypeAt(i + 1) != kMainAssign;
    if (isCall || isAttribute) {
      Erase(i, isCall ? PastBracket(words, i + 1) : i + 1);
    } else {
      ++i;
    }
  }
  // `} __attribute__((...)) const name;`
  while (TypeAt(1) == kMainKw_const || TypeAt(1) == kMainKw_volatile ||
         TypeAt(1) == kMainKw_static || TypeAt(1) == kMainKw_inline ||
         TypeAt(1) == kMainKw_constexpr) {
    Erase(1, 2);
  }
  // Words that look like macros between the brace and the first name.
  while (words.size() > 3 && (LooksLikeMacro(words[1]) || words[1].text.starts_with("__")) &&
         (TypeAt(2) == kMainId || TypeAt(2) == kMainStar)) {
    Erase(1, 2);
  }
  // A macro after the last name.
  while (words.size() > 3 && TypeAt(words.size() - 1) == kMainSemicolon &&
         LooksLikeMacro(words[words.size() - 2]) && TypeAt(words.size() - 3) == kMainId) {
    Erase(words.size() - 2, words.size() - 1);
  }
}

void DeclarationRepairer::RepairVariable(const Outline& outline) {
  const unsigned first = TypeAt(0);
  if (first == kMainKw_typedef) return RepairTypedef(outline);
  if (outline.classKey == kNoWord) RemoveDefaults();
  if (TypeAt(outline.begin) == kMainKw_concept) return RepairConcept(outline);
  if (TypeAt(outline.begin) == kMainKw_namespace || first == kMainKw_namespace) return;
  if (outline.colon != kNoWord && outline.params == kNoWord && place.inClass &&
      outline.colon + 1 < words.size() && TypeAt(0) != kMainKw_public &&
      TypeAt(0) != kMainKw_protected && TypeAt(0) != kMainKw_private && outline.colon > 0) {
    return RepairBitFields(outline.colon);
  }
  CutInitializer(outline.begin);
  RemoveArguments();
  RemoveTrailingMacros();
  // `int (*name[2])(int)`
  if (outline.pointer != kNoWord && outline.params == kNoWord) {
    std::size_t close = PastBracket(words, outline.pointer) - 1;
    while (close > outline.pointer && TypeAt(close - 1) == kMainRSquare) {
      std::size_t open = close - 1;
      while (open > outline.pointer && TypeAt(open) != kMainLSquare) --open;
      Erase(open, close);
      close = open;
    }
  }
  // `int (*name)[2]`
  if (outline.pointer != kNoWord && outline.params == kNoWord) {
    const std::size_t past = PastBracket(words, outline.pointer);
    const std::size_t stars = outline.pointer + 1;
    if (TypeAt(past) == kMainLSquare && past == stars + 3 && TypeAt(stars + 1) == kMainId) {
      Erase(past - 1, past);
      Erase(outline.pointer, stars + 1);
    }
  }
  // `int (* const name)(int)`, `int (A::* const name)(int) noexcept`
  if (outline.pointer != kNoWord && outline.params == kNoWord) {
    std::size_t past = PastBracket(words, outline.pointer);
    // `int (*(name))(int)`
    if (past == outline.pointer + 6 && TypeAt(past - 5) == kMainStar &&
        TypeAt(past - 4) == kMainLParen && TypeAt(past - 2) == kMainRParen) {
      Erase(past - 2, past - 1);
      Erase(past - 4, past - 3);
      past -= 2;
    }
    // `int (** name)(int)`
    while (TypeAt(outline.pointer + 1) == kMainStar && TypeAt(outline.pointer + 2) == kMainStar) {
      Erase(outline.pointer + 1, outline.pointer + 2);
      --past;
    }
    for (std::size_t i = outline.pointer + 2; i < past;) {
      if (TypeAt(i - 1) != kMainStar || !IsQualifier(TypeAt(i))) {
        ++i;
        continue;
      }
      Erase(i, i + 1);
      --past;
    }
    if (TypeAt(past) == kMainLParen) {
      Erase(past + 1, PastBracket(words, past) - 1);
      past += 2;
    }
    while (IsQualifier(TypeAt(past)) || TypeAt(past) == kMainKw_noexcept) Erase(past, past + 1);
  }
  // `int A::* name`
  for (std::size_t i = 0; i + 2 < words.size(); ++i) {
    if (TypeAt(i) == kMainId && TypeAt(i + 1) == kMainScope && TypeAt(i + 2) == kMainStar) {
      Erase(i, i + 2);
    }
  }
  RemoveNameArguments(outline.begin);
}

void DeclarationRepairer::RepairBitFields(std::size_t colon) {
  // Without a type this is something else.
  if (TypeAt(colon - 1) != kMainId && !IsBuiltInType(TypeAt(colon - 1))) {
    return Erase(0, words.size());
  }
  for (std::size_t i = colon; i < words.size();) {
    if (TypeAt(i) != kMainColon) {
      ++i;
      continue;
    }
    std::size_t stop = i + 1;
    while (stop < words.size() && TypeAt(stop) != kMainComma && TypeAt(stop) != kMainSemicolon) {
      stop = TypeAt(stop) == kMainLParen ? PastBracket(words, stop) : stop + 1;
    }
    if (i > 1 && TypeAt(i - 1) == kMainId) {
      Erase(i, stop);
    } else if (TypeAt(stop) == kMainComma) {
      Erase(i, stop + 1);
    } else if (TypeAt(i - 1) == kMainComma) {
      Erase(i - 1, stop);
    } else {
      return Erase(0, words.size());
    }
  }
}

void DeclarationRepairer::RemoveArguments() {
  const Outline outline(words);
  if (outline.params == kNoWord || outline.pointer != kNoWord || outline.comma != kNoWord ||
      outline.operatorWord != kNoWord || TypeAt(outline.pastParams) != kMainSemicolon ||
      outline.params < outline.begin + 2) {
    return;
  }
  switch (TypeAt(outline.params + 1)) {
    case kMainNumber:
    case kMainStringLiteral:
    case kMainCharLiteral:
    case kMainLParen:
    case kMainMinus:
    case kMainNot:
    case kMainAmpersand:
    case kMainKw_true:
    case kMainKw_false:
    case kMainKw_sizeof:
    case kMainKw_new:
      return Erase(outline.params, outline.pastParams);
    default:
      if (HasValue(outline)) Erase(outline.params, outline.pastParams);
      return;
  }
}

bool DeclarationRepairer::HasValue(const Outline& outline) const {
  for (std::size_t i = outline.params + 1; i + 1 < outline.pastParams; ++i) {
    const unsigned before = TypeAt(i - 1);
    const bool begins = before == kMainLParen || before == kMainComma;
    switch (TypeAt(i)) {
      case kMainNumber:
      case kMainStringLiteral:
      case kMainCharLiteral:
      case kMainKw_true:
      case kMainKw_false:
        if (begins) return true;
        break;
      case kMainId:
        if (begins && TypeAt(i + 1) == kMainLess && words[i].text.ends_with("_cast")) return true;
        break;
      case kMainLSquare:
      case kMainLess:
      case kMainAssign:
        return false;
      default:
        break;
    }
  }
  return false;
}

void DeclarationRepairer::RemoveNameArguments(std::size_t begin) {
  const std::size_t last = words.size() - 1;
  if (begin == 0 || TypeAt(last) != kMainSemicolon || TypeAt(last - 1) != kMainGreater) return;
  for (std::size_t i = begin + 1; i < last; ++i) {
    if (TypeAt(i) == kMainLess && TypeAt(i - 1) == kMainId) {
      const std::size_t past = PastAngles(i);
      if (past == last && i >= begin + 2) return Erase(i, past);
      if (past != i) i = past - 1;
    }
  }
}

void DeclarationRepairer::RepairTypedef(const Outline& outline) {
  RemoveTrailingMacros();
  // `typedef struct A (*Name);`
  if (outline.pointer != kNoWord && TypeAt(outline.pointer + 3) == kMainRParen &&
      TypeAt(outline.pointer + 4) == kMainSemicolon) {
    Erase(outline.pointer + 3, outline.pointer + 4);
    return Erase(outline.pointer, outline.pointer + 2);
  }
  const std::size_t last = words.size() - 1;
  if (TypeAt(last) != kMainSemicolon || outline.comma != kNoWord || outline.classKey != kNoWord ||
      outline.operatorWord != kNoWord || last < 3) {
    return;
  }
  std::size_t name = last - 1;
  if (outline.pointer != kNoWord) {
    // The last name in the parentheses.
    name = PastBracket(words, outline.pointer) - 1;
    for (std::size_t i = outline.pointer; i < name; ++i) {
      if (TypeAt(i) == kMainLSquare) name = i;
    }
    while (name > outline.pointer && TypeAt(name) != kMainId) --name;
  } else if (outline.params != kNoWord && TypeAt(outline.pastParams) == kMainId &&
             (outline.params == 2 || LooksLikeMacro(words[outline.params - 1]))) {
    name = outline.pastParams;  // `typedef MACRO(arguments) name;`
  } else if (outline.params != kNoWord) {
    name = outline.params - 1;
    if (TypeAt(name) == kMainRParen) --name;
  } else {
    while (name > 1 && TypeAt(name) == kMainRSquare) {
      while (name > 1 && TypeAt(name) != kMainLSquare) --name;
      --name;
    }
  }
  if (name < 2 || TypeAt(name) != kMainId) return;
  Erase(name + 1, last);
  if (name == 2 && TypeAt(1) == kMainKw_int) return;
  Erase(1, name);
  Insert(1, kMainKw_int, "int");
}

void DeclarationRepairer::CutInitializer(std::size_t from) {
  const std::size_t last = words.size() - 1;
  if (TypeAt(last) != kMainSemicolon) return;
  std::size_t i = from;
  while (i < last) {
    const unsigned type = TypeAt(i);
    if (type == kMainLParen || type == kMainLSquare) {
      i = PastBracket(words, i);
      continue;
    }
    if (type == kMainLess && i > 0 && TypeAt(i - 1) == kMainId) {
      i = std::max(PastAngles(i), i + 1);
      continue;
    }
    if (type == kMainKw_operator) return;
    if (type == kMainAssign || type == kMainLCurly) break;
    ++i;
  }
  if (i >= last) return;
  // Up to the next declarator.
  std::size_t stop = i;
  while (stop < last && TypeAt(stop) != kMainComma) {
    const unsigned type = TypeAt(stop);
    if (type == kMainLParen || type == kMainLSquare) {
      stop = PastBracket(words, stop);
    } else if (type == kMainLess && TypeAt(stop - 1) == kMainId) {
      stop = std::max(PastAngles(stop), stop + 1);
    } else {
      ++stop;
    }
  }
  stop = std::min(stop, last);
  Erase(i, stop);
  if (TypeAt(i) == kMainComma) CutInitializer(i + 1);
}

void DeclarationRepairer::RemoveDefaults() {
  int depth = 0;
  for (std::size_t i = 0; i < words.size(); ++i) {
    const unsigned type = TypeAt(i);
    if (type == kMainLParen) ++depth;
    if (type == kMainRParen) --depth;
    if (type != kMainAssign || depth == 0) continue;
    std::size_t stop = i + 1;
    while (stop < words.size() && TypeAt(stop) != kMainComma && TypeAt(stop) != kMainRParen) {
      const unsigned inside = TypeAt(stop);
      if (inside == kMainLParen || inside == kMainLSquare) {
        stop = PastBracket(words, stop);
      } else if (inside == kMainLess && TypeAt(stop - 1) == kMainId) {
        stop = std::max(PastAngles(stop), stop + 1);
      } else {
        ++stop;
      }
    }
    Erase(i, std::min(stop, words.size()));
    --i;
  }
}

}  // namespace vexltags::thorough
