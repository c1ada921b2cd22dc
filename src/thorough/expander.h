// SPDX-License-Identifier: MIT
// Replaces uses of macros by what they expand to.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "thorough/macro_body.h"
#include "thorough/macro_table.h"
#include "thorough/word.h"

namespace vexltags::thorough {

/// The arguments of a call, each a part of the words of the call.
using Arguments = std::vector<std::span<const Word>>;

/// True for a name in capitals, and for one that begins with capitals and `_`, as `LIB_inline`.
bool HasNameOfMacro(std::string_view name);

/// Expands macros for one file: arguments substituted, stringified and pasted, nested uses
/// expanded, a macro never within itself. Each file has a budget for all its expansions, counted in
/// words; an expansion that exceeds what is left of it fails.
class Expander {
 public:
  Expander(const MacroTable& table, MacroBodies& bodies) : macros(table), bodies(bodies) {}

  /// Must be called before each file. Texts of expansions live until the next call. `paths` holds
  /// the path of each file at its number, and must live as long.
  void BeginFile(std::uint32_t file, const std::vector<std::string>& paths);
  /// Sets the text of the file. Without it, no definition of the file ends before another begins.
  void SetText(std::string_view newText) { text = newText; }

  /// False for most names that `Find` would not find, at little cost.
  bool MayFind(std::string_view name) const { return macros.MayHave(name); }
  /// Returns the definition of `name` that suits this file best, null if there is none. One in this
  /// file comes first; then one with braces or `;`, then an empty one or `__attribute__`, then the
  /// rest. Names with lower-case letters that begin neither with `_` nor with capitals and `_` are
  /// known only in their own folder, in those that contain it and in those within it. A definition
  /// whose condition is unlikely comes after the others. Where `name` is part of the file's text, a
  /// definition of the file that begins later or has been ended by `#undef` is none.
  const MacroDefinition* Find(std::string_view name) const;

  /// Returns `definition`, which `Find` has returned for `name`, or a later one with the same name
  /// if only that takes `count` arguments.
  const MacroDefinition* ForCall(const MacroDefinition* definition, std::string_view name,
                                 std::size_t count);

  /// Returns a definition of `name` that expands to its arguments alone, or `definition`, which is
  /// empty, if there is none.
  const MacroDefinition* KeepingArguments(const MacroDefinition* definition, std::string_view name);

  /// True for a definition in the file itself.
  bool IsOwn(const MacroDefinition& definition) const { return definition.file == file; }

  /// Appends to `result` what `definition` expands to. `arguments` must be those of one call, as
  /// `SplitArguments` returns them. All words are on `line`. Returns false and leaves `result`
  /// unchanged if this nests too deep or exceeds the budget.
  bool Expand(const MacroDefinition& definition, const Arguments& arguments, unsigned line,
              std::vector<Word>& result);

  /// A call with more words than this between its parentheses is not expanded.
  static constexpr std::size_t kMostArguments = 4096;

 private:
  struct Choice {
    const MacroDefinition* best = nullptr;
    /// Where in the file it is the best one: definitions of the file begin and end around it.
    std::uint32_t begin = 0;
    std::uint32_t end = UINT32_MAX;
  };
  Choice Choose(const MacroDefinition& first, std::string_view name) const;
  int RankOf(const MacroDefinition& definition) const;
  bool Substitute(const MacroBody& body, const Arguments& arguments, unsigned line,
                  std::vector<Word>& result);
  bool SubstitutePasted(std::span<const Word> words, unsigned line, std::vector<Word>& result);
  bool Rescan(std::span<const Word> words, unsigned line, std::vector<Word>& result);
  Word Paste(const Word& left, const Word& right);
  Word Stringify(std::span<const Word> words, unsigned line);
  bool IsActive(const MacroDefinition* definition) const;
  bool Spend(std::size_t words) {
    if (words > budget) return false;
    budget -= words;
    return true;
  }

  static constexpr std::size_t kBudget = std::size_t{1} << 20;
  static constexpr std::size_t kDeepest = 64;
  /// How deep calls can be in arguments of calls, where each macro is expanded outside the others.
  static constexpr std::size_t kDeepestCalls = 256;

  const MacroTable& macros;
  MacroBodies& bodies;
  /// The choices of `Find` for this file.
  mutable std::unordered_map<const MacroDefinition*, Choice> choices;
  mutable std::uint32_t position = 0;  ///< The offset of the last name of the text that was found.
  std::vector<const MacroDefinition*> active;
  std::size_t depth = 0;  ///< Of expansions within each other, those of arguments counted.
  std::deque<std::string> texts;
  std::size_t budget = 0;
  std::uint32_t file = 0;
  Dialect dialect = Dialect::Unknown;
  std::string_view text;
  const std::vector<std::string>* paths = nullptr;
};

/// Splits the words of a call at its commas, from index `from`, the one after the `(`. Returns the
/// arguments, which are parts of `words`, and the number of words up to and including the closing
/// `)`, 0 if there is none.
std::pair<Arguments, std::size_t> SplitArguments(std::span<const Word> words, std::size_t from);

}  // namespace vexltags::thorough
