// SPDX-License-Identifier: MIT
// The follow sets of the rules that a parser is in, for error recovery.
#include "engine/follow_stack.h"

#include <algorithm>

namespace vexltags {

pANTLR3_BITSET_LIST FollowStack::AllTypes() {
  constexpr ANTLR3_BITWORD kAll = ~ANTLR3_BITWORD{0};
  static ANTLR3_BITWORD words[kWords] = {kAll, kAll, kAll, kAll};
  static ANTLR3_BITSET_LIST set = {words, kWords};
  return &set;
}

FollowStack::Union FollowStack::All() {
  if (size == 0) return {};
  if (made.size() < size) made.resize(std::max(size, 2 * made.size()));
  for (; unions < size; ++unions) {
    Union& all = made[unions];
    all = unions == 0 ? Union{} : made[unions - 1];
    Add(all, *sets[unions]);
  }
  return made[size - 1];
}

}  // namespace vexltags
