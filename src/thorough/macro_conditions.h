// SPDX-License-Identifier: MIT
// The conditions under which the macros of a run are defined.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "thorough/condition.h"
#include "thorough/source_text.h"

namespace vexltags::thorough {

/// Follows the conditionals of the files that are learned, and evaluates the condition of a place
/// in them once all files are known. What is open at more than `kDeepest` levels, or has more than
/// `kMostBranches` branches before the one in question, is unknown.
class MacroConditions {
 public:
  /// To be called before each file.
  void BeginFile();
  /// Takes note of a directive. `argument` must be valid up to the next call of `BeginFile`.
  void Take(DirectiveKind kind, std::string_view argument);
  /// Takes note of a name that some file defines.
  void AddDefined(std::string_view name) { defined.Add(name); }

  /// The number of conditionals that are open.
  std::size_t Depth() const { return levels.size(); }
  /// The number of the current place's condition; 0 where there is none, or none that is known.
  std::uint32_t Current();

  /// Returns the truth of condition `number` in a file of `dialect`: that of the least likely of
  /// the conditionals around it.
  Truth Of(std::uint32_t number, Dialect dialect) const;

 private:
  struct Branch {
    DirectiveKind kind = DirectiveKind::If;
    std::string_view argument;
    std::uint32_t node = 0;
  };
  struct Node {
    DirectiveKind kind = DirectiveKind::If;
    std::string_view argument;
    std::uint32_t parent = 0;
    std::uint32_t previous = 0;  ///< The branch before it in the same conditional.
  };
  using Truths = std::array<std::int8_t, 3>;

  Truth Own(std::uint32_t number, Dialect dialect) const;
  std::uint32_t AddNode(const Branch& branch, std::uint32_t parent, std::uint32_t previous);

  static constexpr std::size_t kDeepest = 32;
  static constexpr std::size_t kMostBranches = 16;
  static constexpr std::size_t kLongest = 256;

  NameSet defined;
  std::vector<Branch> branches;     ///< Of all conditionals that are open, the outermost first.
  std::vector<std::size_t> levels;  ///< Where the branches of each begin.
  std::vector<Node> nodes = std::vector<Node>(1);
  std::deque<std::string> texts;
  mutable std::vector<Truths> known;  ///< The truth of each node by itself, -1 where not known yet.
};

}  // namespace vexltags::thorough
