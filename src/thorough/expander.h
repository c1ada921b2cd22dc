// SPDX-License-Identifier: MIT
// Replaces uses of macros by what they expand to.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "thorough/macro_body.h"
#include "thorough/macro_table.h"
#include "thorough/word.h"

namespace vexltags::thorough {

/// Expands macros for one file: arguments substituted, stringified and pasted, nested uses
/// expanded, a macro never within itself. What a file's macros may cost is bounded; past that,
/// nothing is expanded any more.
class Expander {
 public:
  Expander(const MacroTable& table, MacroBodies& bodies) : macros(table), bodies(bodies) {}

  /// To be called before each file. Texts of expansions live until the next call. `paths` names
  /// the files by their numbers and must outlive the file.
  void BeginFile(std::uint32_t file, const std::vector<std::string>& paths);

  /// The definition of `name` that serves this file best, with or without parameters; null for
  /// none. A definition in this file comes first; among others one with braces or `;`, then one
  /// that is empty, then the rest. Lower-case names are known in their own folder only.
  const MacroDefinition* Find(std::string_view name) const;

  /// Appends to `result` what `definition` expands to, with one list of words for each argument.
  /// All words are on `line`. False, with `result` as it was, when that costs more than is left.
  bool Expand(const MacroDefinition& definition, const std::vector<std::vector<Word>>& arguments,
              unsigned line, std::vector<Word>& result);

  /// A call with more words than this between its parentheses is not expanded.
  static constexpr std::size_t kMostArguments = 4096;

 private:
  const MacroDefinition* Choose(const MacroDefinition& first, std::string_view name) const;
  bool Substitute(const MacroBody& body, const std::vector<std::vector<Word>>& arguments,
                  unsigned line, std::vector<Word>& result);
  bool Rescan(const std::vector<Word>& words, unsigned line, std::vector<Word>& result);
  Word Paste(const Word& left, const Word& right);
  Word Stringify(const std::vector<Word>& words, unsigned line);
  bool IsActive(const MacroDefinition* definition) const;
  bool Spend(std::size_t words) {
    if (words > budget) return false;
    budget -= words;
    return true;
  }

  static constexpr std::size_t kBudget = std::size_t{1} << 20;
  static constexpr std::size_t kDeepest = 64;

  const MacroTable& macros;
  MacroBodies& bodies;
  /// What `Find` has chosen for this file.
  mutable std::unordered_map<const MacroDefinition*, const MacroDefinition*> choices;
  std::vector<const MacroDefinition*> active;
  std::deque<std::string> texts;
  std::size_t budget = 0;
  std::uint32_t file = 0;
  const std::vector<std::string>* paths = nullptr;
};

/// Splits the words between a call's parentheses at its commas. `words` begins after the `(`; the
/// result's second part is the number of words up to and with the closing `)`, 0 if there is none.
std::pair<std::vector<std::vector<Word>>, std::size_t> SplitArguments(
    const std::vector<Word>& words, std::size_t from);

}  // namespace vexltags::thorough
