// SPDX-License-Identifier: MIT
// The follow sets of the rules that a parser is in, for error recovery.
#pragma once

#include <antlr3.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace vexltags {

/// Takes the place of the runtime's stack of follow sets. Rules push and pop all the time and only
/// recovery looks, so the two are as short as can be; and recovery, which wants the union of the
/// whole stack, finds most of it already made: an error at each level of a deep nesting costs the
/// depth once and not once for each.
class FollowStack {
 public:
  static constexpr std::size_t kWords = 4;
  /// Token types are below this; the build fails for a grammar that has more.
  static constexpr std::size_t kTypes = kWords * 64;
  using Union = std::array<std::uint64_t, kWords>;

  /// True when `all` holds the token type; false for the end of the file, which no set holds.
  static bool Has(const Union& all, ANTLR3_UINT32 type) {
    return type / 64 < kWords && (all[type / 64] >> (type % 64) & 1) != 0;
  }
  static void Remove(Union& all, ANTLR3_UINT32 type) {
    all[type / 64] &= ~(std::uint64_t{1} << (type % 64));
  }
  /// Adds a set of the generated code to `all`.
  static void Add(Union& all, const ANTLR3_BITSET_LIST& set) {
    for (std::size_t word = 0; word < set.length && word < kWords; ++word) {
      all[word] |= set.bits[word];
    }
  }

  /// A set of all token types, to be pushed.
  static pANTLR3_BITSET_LIST AllTypes();

  /// Pushes a set of the generated code, which outlives the stack.
  void Push(pANTLR3_BITSET_LIST set) {
    if (size == sets.size()) sets.resize(2 * size + 64);
    sets[size++] = set;
  }
  void Pop() {
    --size;
    if (unions > size) unions = size;
  }

  void Clear() { size = unions = 0; }

  std::size_t Size() const { return size; }
  /// The union of all sets on the stack.
  Union All();

 private:
  std::vector<pANTLR3_BITSET_LIST> sets;
  std::size_t size = 0;
  std::vector<Union> made;  ///< made[i]: the union of sets 0 to i, good for i < unions.
  std::size_t unions = 0;
};

}  // namespace vexltags
