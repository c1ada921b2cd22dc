// SPDX-License-Identifier: MIT
// Repairs the heads of templates, aliases and concepts.

#include <algorithm>

#include "thorough/declaration_repairer.h"
#include "vocabulary/main_tokens.h"

namespace vexltags::thorough {

void DeclarationRepairer::RepairUsing() {
  RemoveLeadingScopes();
  const Outline outline(words);
  const std::size_t assign = outline.assign;
  if (assign == kNoWord || outline.begin + 2 > assign) return;
  // Macros between the name and the `=`.
  if (assign > outline.begin + 2) {
    Erase(outline.begin + 2, assign);
    return RepairUsing();
  }
  // Only a type with a class key shows in the tag of an alias.
  if (outline.classKey != kNoWord && outline.classKey == assign + 1) return;
  const std::size_t last = words.size() - 1;
  if (TypeAt(last) != kMainSemicolon || last <= assign + 1) return;
  Erase(assign + 1, last);
  Insert(assign + 1, kMainKw_int, "int");
  EmptyTemplateHeads();
}

void DeclarationRepairer::RepairConcept(const Outline& outline) {
  const std::size_t last = words.size() - 1;
  if (outline.assign == kNoWord || TypeAt(last) != kMainSemicolon) return;
  if (outline.assign + 1 >= last) return;
  Erase(outline.assign + 1, last);
  Insert(outline.assign + 1, kMainKw_true, "true");
  RemoveTemplateDefaults();
}

void DeclarationRepairer::EmptyTemplateHeads() {
  std::size_t i = 0;
  while (TypeAt(i) == kMainKw_template && TypeAt(i + 1) == kMainLess) {
    const std::size_t past = PastAngles(i + 1);
    if (past == i + 1) return;
    Erase(i + 2, past - 1);
    i += 3;
  }
  RemoveConstraint(i);
}

void DeclarationRepairer::RemoveConstraint(std::size_t from) {
  if (from > 0 && TypeAt(from) == kMainKw_requires) Erase(from, PastTemplateHeads(words));
}

void DeclarationRepairer::RemoveTemplateDefaults() {
  for (std::size_t i = 0; TypeAt(i) == kMainKw_template && TypeAt(i + 1) == kMainLess;) {
    std::size_t past = PastAngles(i + 1);
    if (past == i + 1) return;
    for (std::size_t at = i + 2; at + 1 < past;) {
      const unsigned type = TypeAt(at);
      if (type == kMainLParen || type == kMainLSquare) {
        at = PastBracket(words, at);
      } else if (type == kMainLess) {
        at = std::max(PastAngles(at), at + 1);
      } else if (type == kMainAssign) {
        std::size_t stop = at + 1;
        while (stop + 1 < past && TypeAt(stop) != kMainComma) {
          const unsigned inside = TypeAt(stop);
          if (inside == kMainLParen || inside == kMainLSquare) {
            stop = PastBracket(words, stop);
          } else if (inside == kMainLess && TypeAt(stop - 1) == kMainId) {
            stop = std::max(PastAngles(stop), stop + 1);
          } else {
            ++stop;
          }
        }
        stop = std::min(stop, past - 1);
        Erase(at, stop);
        past -= stop - at;
      } else {
        ++at;
      }
    }
    i = past;
    if (TypeAt(i) == kMainKw_requires) RemoveConstraint(i);
  }
}

}  // namespace vexltags::thorough
