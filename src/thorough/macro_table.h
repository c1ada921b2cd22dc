// SPDX-License-Identifier: MIT
// The macros that the sources of a run define, as far as they can matter to declarations.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <memory_resource>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "thorough/macro_conditions.h"

namespace vexltags::thorough {

/// One `#define`. Its text lives as long as the table.
struct MacroDefinition {
  std::string_view parameters;  ///< The text between its parentheses, if function-like.
  std::string_view body;        ///< As written: with comments and continued lines.
  std::uint32_t file = 0;       ///< The number of the file that defines it.
  std::uint32_t next = 0;       ///< The next definition of the same name, 0 for none.
  std::uint32_t condition = 0;  ///< Its number in the table's conditions.
  std::uint32_t begin = 0;      ///< The offset of its name in the file ...
  std::uint32_t end = kNoEnd;   ///< ... and that of the name in the `#undef` that ends it.
  std::uint32_t depth = 0;      ///< How many conditionals are open around it.
  bool isFunction = false;

  static constexpr std::uint32_t kNoEnd = UINT32_MAX;
};

/// Observes every lookup in a `MacroTable`.
class LookupObserver {
 public:
  virtual ~LookupObserver() = default;
  virtual void OnLookup(std::string_view name, bool isFound) = 0;
};

/// Learns macros from texts and finds them by name. Ignores bodies that can only be expressions,
/// and definitions of words of the vocabulary or of the lexer's lists, which nothing overrides.
class MacroTable {
 public:
  /// Starts with the keywords of compilers that the vocabulary does not have.
  MacroTable();
  MacroTable(const MacroTable&) = delete;
  MacroTable& operator=(const MacroTable&) = delete;

  /// Learns every `#define` of `text`, the content of file number `file`, and calls `include` with
  /// the path of each `#include "path"` and `#import "path"`, a view into `text`. Copies what it
  /// keeps.
  template <class Include>
  void Learn(std::string_view text, std::uint32_t file, Include include);

  /// Returns the part of `text` from which `Learn` learns: the directives and where they are.
  static std::string Facts(std::string_view text);
  /// Learns the same from `facts` as `Learn` from the text of which they are.
  template <class Include>
  void LearnFacts(std::string_view facts, std::uint32_t file, Include include);
  /// Returns whether both facts have the same directives, wherever these are. Other files than
  /// their own then see the same definitions.
  static bool HaveSameDirectives(std::string_view facts, std::string_view others);

  /// A cheap test that rules out most words, unless lookups are observed. `name` must not be empty.
  bool MayHave(std::string_view name) const {
    return observer != nullptr || filter[FilterPlace(name)];
  }

  /// Returns the first definition of `name`, which must not be empty; null when there is none. The
  /// pointer is valid until the next call of `Learn`.
  const MacroDefinition* Find(std::string_view name) const {
    const bool mayBeThere = filter[FilterPlace(name)];
    const MacroDefinition* const found = mayBeThere ? FindFirst(name) : nullptr;
    if (observer != nullptr) observer->OnLookup(name, found != nullptr);
    return found;
  }
  /// Returns the definition of the same name learned after `definition`; null after the last.
  const MacroDefinition* Next(const MacroDefinition& definition) const {
    return definition.next == 0 ? nullptr : &definitions[definition.next];
  }

  /// Takes note that the file that is being learned includes file number `file` here.
  void NoteInclude(std::uint32_t file);

  /// The truth of the conditions under which `definition` is one, for a file of `dialect`: of the
  /// one around it, and of the likeliest of those under which its file is included.
  Truth ConditionOf(const MacroDefinition& definition, Dialect dialect) const;

  /// The number of definitions that are kept.
  std::size_t Count() const { return definitions.size() - 1; }

  /// Calls `take` with each name and its first definition, in no particular order.
  template <class Take>
  void ForEach(Take take) const {
    for (const auto& [name, known] : names) take(name, definitions[known.first]);
  }

  /// Sets the observer of lookups, which must outlive the table; null, the default, for none.
  void SetLookupObserver(LookupObserver* newObserver) { observer = newObserver; }

 private:
  const MacroDefinition* FindFirst(std::string_view name) const {
    const auto found = names.find(name);
    return found == names.end() ? nullptr : &definitions[found->second.first];
  }
  /// A cheap hash of the first and the last characters of a name and of its length.
  static std::size_t FilterPlace(std::string_view name) {
    const std::size_t size = name.size();
    std::uint64_t first = 0;
    std::uint64_t last = 0;
    if (size >= sizeof first) {
      std::memcpy(&first, name.data(), sizeof first);
      std::memcpy(&last, name.data() + size - sizeof last, sizeof last);
    } else if (size >= sizeof(std::uint32_t)) {
      std::memcpy(&first, name.data(), sizeof(std::uint32_t));
      std::memcpy(&last, name.data() + size - sizeof(std::uint32_t), sizeof(std::uint32_t));
    } else {
      for (const char c : name) first = first << 8U | static_cast<unsigned char>(c);
    }
    constexpr std::uint64_t kFirstFactor = 0x9e3779b97f4a7c15U;
    constexpr std::uint64_t kLastFactor = 0xc2b2ae3d27d4eb4fU;
    const std::uint64_t hash = (first ^ name.size()) * kFirstFactor ^ last * kLastFactor;
    return static_cast<std::size_t>((hash ^ hash >> 32U) * kFirstFactor >> (64U - kFilterBits));
  }
  /// A piece of the text that is being learned. No directive reaches into the next one.
  struct Piece {
    std::size_t end;    ///< One past it.
    std::size_t moved;  ///< What is added to an offset in it for the one in the file.
  };
  /// Learns from `text`, which is all `pieces`.
  template <class Include>
  void LearnPieces(std::string_view text, std::uint32_t file, Include include);
  /// Joins the parts of a text that `facts` have, with a newline between them, in `joined`.
  void JoinFacts(std::string_view facts);
  /// The offset of the next line in `text` at or after `from` that begins with a directive, past
  /// its `#` and blanks; npos at the end.
  static std::size_t NextDirective(std::string_view text, std::size_t from);
  /// Learns the definition whose name is at `at` in `piece`; returns the offset of its end.
  std::size_t LearnDefine(std::string_view text, std::size_t at, std::uint32_t file,
                          const Piece& piece);
  /// Ends the definitions of the name at `at`, which an `#undef` names.
  void LearnUndef(std::string_view text, std::size_t at, std::uint32_t file, const Piece& piece);
  /// Takes note of a directive that is none of a definition; returns the end of its argument.
  std::size_t LearnCondition(std::string_view text, std::size_t at);
  /// True when a block comment of the text that is being learned contains offset `at`. The offsets
  /// of one text must not decrease.
  bool IsInComment(std::string_view text, std::size_t at);
  /// Where a block comment begins, and one past its end; npos for no comment and for no end.
  struct Comment {
    std::size_t open;
    std::size_t past;
  };
  /// The next comment of `text` that opens at or after `from` and before `limit`.
  static Comment NextComment(std::string_view text, std::size_t from, std::size_t limit);
  /// One past the definition whose name ends at `at`: its line, and those into which comments
  /// reach.
  static std::size_t EndOfDefinition(std::string_view text, std::size_t at);
  /// One past the directive whose word is at `at`.
  static std::size_t EndOfDirective(std::string_view text, std::size_t at);
  /// One past the logical line at `at`.
  static std::size_t EndOfLine(std::string_view text, std::size_t at);
  static std::string_view QuotedPath(std::string_view text, std::size_t at);
  std::string_view Store(std::string_view text);

  /// The definitions of one name.
  struct Definitions {
    std::uint32_t first, last;
    std::uint32_t ofFile;  ///< The first in the file of the last one.
    std::uint32_t count;
  };

  static constexpr unsigned kFilterBits = 20;  // Enough for the macros of the largest trees.

  std::vector<bool> filter = std::vector<bool>(std::size_t{1} << kFilterBits);
  std::pmr::monotonic_buffer_resource memory;  ///< Of the nodes of `names`.
  std::pmr::unordered_map<std::string_view, Definitions> names{&memory};
  MacroConditions conditions;
  std::unordered_map<std::uint32_t, std::vector<std::uint32_t>> includes;  ///< Conditions by file.
  std::vector<MacroDefinition> definitions = std::vector<MacroDefinition>(1);  ///< 0 is none.
  std::vector<std::unique_ptr<char[]>> blocks;
  char* next = nullptr;
  std::size_t room = 0;
  std::vector<Piece> pieces;    ///< Of the text that is being learned, at least one.
  std::string joined;           ///< That text, if it is learned from facts.
  std::size_t pastComment = 0;  ///< One past the last comment that `IsInComment` has met.
  LookupObserver* observer = nullptr;
};

template <class Include>
void MacroTable::Learn(std::string_view text, std::uint32_t file, Include include) {
  pieces.assign(1, {text.size(), 0});
  LearnPieces(text, file, include);
}

template <class Include>
void MacroTable::LearnFacts(std::string_view facts, std::uint32_t file, Include include) {
  JoinFacts(facts);
  LearnPieces(joined, file, include);
}

template <class Include>
void MacroTable::LearnPieces(std::string_view text, std::uint32_t file, Include include) {
  std::size_t at = 0;
  auto piece = pieces.begin();
  conditions.BeginFile();
  pastComment = 0;
  while ((at = NextDirective(text, at)) != std::string_view::npos) {
    while (piece->end < at) ++piece;
    const std::string_view ahead = text.substr(at);
    if (ahead.starts_with("define")) {
      at = LearnDefine(text, at + 6, file, *piece);
    } else if (ahead.starts_with("include") || ahead.starts_with("import")) {
      const std::string_view path = QuotedPath(text, at + (ahead[1] == 'n' ? 7 : 6));
      if (!path.empty()) include(path);
    } else if (ahead.starts_with("undef")) {
      LearnUndef(text, at + 5, file, *piece);
    } else {
      at = LearnCondition(text, at);
    }
  }
}

}  // namespace vexltags::thorough
