// SPDX-License-Identifier: MIT
// Rewrites a declaration so that the grammar of the C family can read it.
#include "thorough/declaration_repair.h"

#include "thorough/declaration_repairer.h"

namespace vexltags::thorough {

bool RepairDeclaration(Words& words, DeclarationEnd end, const DeclarationPlace& place) {
  return DeclarationRepairer(words, end, place).Run();
}

}  // namespace vexltags::thorough
