// SPDX-License-Identifier: MIT
// Repairs functions.

#include "thorough/declaration_repairer.h"
#include "vocabulary/main_tokens.h"

namespace vexltags::thorough {

bool DeclarationRepairer::BeginsParameter(std::size_t at) const {
  const unsigned first = TypeAt(at);
  const unsigned second = TypeAt(at + 1);
  if (first == kMainId) {
    // `a::B c`, `a::B* MACRO c`
    std::size_t next = at + 1;
    while (TypeAt(next) == kMainScope && TypeAt(next + 1) == kMainId) next += 2;
    if (TypeAt(next) == kMainId || IsQualifier(TypeAt(next))) return true;
    const std::size_t type = next;
    while (TypeAt(next) == kMainStar || TypeAt(next) == kMainAmpersand) ++next;
    return next > type &&
           (IsQualifier(TypeAt(next)) || (TypeAt(next) == kMainId && TypeAt(next + 1) == kMainId));
  }
  if (IsBuiltInType(first)) return second != kMainLParen && second != kMainLCurly;
  return IsQualifier(first) || IsClassKey(first) || first == kMainKw_enum;
}

bool DeclarationRepairer::HasParameters(const Outline& outline) const {
  std::size_t at = outline.params + 1;
  while (at < outline.pastParams) {
    if (BeginsParameter(at)) return true;
    while (at < outline.pastParams && TypeAt(at) != kMainComma) {
      const unsigned type = TypeAt(at);
      at = type == kMainLParen || type == kMainLSquare ? PastBracket(words, at) : at + 1;
    }
    ++at;
  }
  return false;
}

bool DeclarationRepairer::IsFunction(const Outline& outline) const {
  if (outline.params == kNoWord || outline.pointer != kNoWord) return false;
  if (outline.assign != kNoWord && outline.assign < outline.params) return false;
  if (end == DeclarationEnd::Body || outline.begin > 0 || outline.result != kNoWord) return true;
  if (outline.operatorWord != kNoWord || outline.arrow != kNoWord) return true;
  if (place.inClass || TypeAt(outline.params - 1) == kMainRParen) return true;
  if (TypeAt(0) != kMainKw_typedef && HasParameters(outline)) return true;
  const unsigned after = TypeAt(outline.pastParams);
  return after == kMainKw_const || after == kMainKw_noexcept || after == kMainAmpersand ||
         after == kMainAnd || after == kMainKw_override || after == kMainKw_final ||
         after == kMainKw_throw || after == kMainKw_requires || after == kMainKw_volatile ||
         TypeAt(outline.params + 1) == kMainRParen;
}

void DeclarationRepairer::RepairFunction(const Outline& outline) {
  if (TypeAt(0) == kMainKw_typedef) return;
  // A friend that is defined, by default, has a body to the grammar.
  if (TypeAt(outline.begin) == kMainKw_friend && outline.assign != kNoWord &&
      TypeAt(outline.assign + 1) == kMainKw_default) {
    words.back().type = kMainLCurly;
    words.back().text = "{";
    words.back().index = -1;
    words.back().span = 0;
    changed = true;
  }
  // After the parameters: `= 0`, `= default`, `= delete`, a body, and nothing else.
  const std::size_t last = words.size() - 1;
  if (outline.pastParams <= last) Erase(outline.pastParams, last);
  std::size_t params = outline.params;
  if (TypeAt(params + 1) != kMainRParen) Erase(params + 1, outline.pastParams - 1);
  if (outline.result != kNoWord) {
    // `int (*f(int))(int)`
    Erase(outline.result, outline.name);
    params -= outline.name - outline.result;
  }
  // `(name)(...)`
  if (params >= 3 && TypeAt(params - 1) == kMainRParen && TypeAt(params - 3) == kMainLParen &&
      TypeAt(params - 2) == kMainId && outline.operatorWord == kNoWord) {
    Erase(params - 1, params);
    Erase(params - 3, params - 2);
    params -= 2;
  }
  // The grammar has no comma among its operators.
  if (outline.operatorWord != kNoWord && TypeAt(outline.operatorWord + 1) == kMainComma) {
    Retype(outline.operatorWord + 1, kMainPlus);
  }
  // The type of a conversion without its qualifiers, which would be taken for the operator's.
  if (outline.operatorWord != kNoWord) {
    const std::size_t type = outline.operatorWord + 1;
    while (TypeAt(type) == kMainId && TypeAt(type + 1) == kMainScope) Erase(type, type + 2);
  }
  // `A::operator T()` needs a result for the class to be read as a class.
  if (outline.operatorWord != kNoWord) {
    std::size_t name = outline.operatorWord;
    while (name >= 2 && TypeAt(name - 1) == kMainScope) {
      std::size_t before = name - 2;
      if (TypeAt(before) == kMainGreater) {
        int depth = 0;
        while (before > 0) {
          if (TypeAt(before) == kMainGreater) ++depth;
          if (TypeAt(before) == kMainLess && --depth == 0) break;
          --before;
        }
        if (before > 0) --before;
      }
      if (TypeAt(before) != kMainId) break;
      name = before;
    }
    const unsigned before = name > 0 ? TypeAt(name - 1) : 0;
    const bool hasResult = name > outline.begin && !IsSpecifier(before);
    if (!hasResult && name < outline.operatorWord) Insert(name, kMainKw_auto, "auto");
  }
}

}  // namespace vexltags::thorough
