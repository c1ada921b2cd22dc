// SPDX-License-Identifier: MIT
// The follow sets of the rules that a parser is in, for error recovery.
#pragma once

#include <antlr3.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace vexltags {

/// Replaces the runtime's stack of follow sets. Rules push and pop constantly while only recovery
/// reads, so pushing and popping do as little as possible. Recovery needs the union of the whole
/// stack. Unions are kept, so errors at every level of a deep nesting together take time linear in
/// the depth.
class FollowStack {
 public:
  static constexpr std::size_t kWords = 4;
  /// Token types are below this; the build fails for a grammar that has more.
  static constexpr std::size_t kTypes = kWords * 64;
  using Union = std::array<std::uint64_t, kWords>;

  /// Returns whether `all` contains the token type; false for the end of the file.
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

  /// Pushes a set of the generated code, which outlives the stack.
  void Push(pANTLR3_BITSET_LIST set) {
    if (size == sets.size()) Grow();
    sets[size++] = set;
  }
  void Pop() {
    --size;
    if (unions > size) unions = size;
  }

  void Clear() { size = unions = 0; }

  std::size_t Size() const { return size; }
  /// Returns the union of all sets on the stack.
  Union All();

 private:
  void Grow();

  std::vector<pANTLR3_BITSET_LIST> sets;
  std::size_t size = 0;
  std::vector<Union> made;  ///< made[i]: the union of sets 0 to i, valid for i < unions.
  std::size_t unions = 0;
};

}  // namespace vexltags
