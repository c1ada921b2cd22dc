// SPDX-License-Identifier: MIT
// The follow sets of the rules that a parser is in, for error recovery.
#include "engine/follow_stack.h"

#include <algorithm>

namespace vexltags {

void FollowStack::Grow() { sets.resize(2 * size + 64); }

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
