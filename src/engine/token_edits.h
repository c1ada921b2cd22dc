// SPDX-License-Identifier: MIT
// Changes to the tokens of a filled table: hidden, removed, retyped and inserted ones.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vexltags {

/// A list of changes for `TokenTable::Apply`. Indexes are those of the table before any change.
///
/// Changes are recorded in ascending order of index. At one index, insertions come first, in the
/// order in which the parser is to read them, followed by at most one change of the token itself.
class TokenEdits {
 public:
  enum class Kind : std::uint8_t { Hide, Remove, Retype, Insert };

  struct Edit {
    Kind kind;
    bool hasText;
    std::uint16_t type;
    std::uint32_t index;
    std::uint32_t count;   ///< Of tokens that are removed, else 1.
    std::uint32_t line;    ///< 1-based; of insertions only.
    std::uint32_t length;  ///< Of the text.
    std::size_t start;     ///< Of the text, in `Texts`.
  };

  /// Hides a token from the parser. The text of a range that spans it still has its characters.
  /// Where neighbours are kept, they see a hidden token of `type`.
  void Hide(std::size_t index, unsigned type) { Record(Kind::Hide, index, type, 0); }
  /// Hides the tokens from `first` to before `last`, at least one, and leaves their characters out
  /// of the text of every range. Neighbours see hidden tokens of `type`.
  void Remove(std::size_t first, std::size_t last, unsigned type) {
    Record(Kind::Remove, first, type, 0);
    edits.back().count = static_cast<std::uint32_t>(last - first);
  }
  /// Gives a token another type. Its text stays that of the source.
  void Retype(std::size_t index, unsigned type) { Record(Kind::Retype, index, type, 0); }
  /// Gives a token another type and another text.
  void Retype(std::size_t index, unsigned type, std::string_view text) {
    Record(Kind::Retype, index, type, 0);
    AddText(text);
  }
  /// Inserts a token directly before the one at `index`, or after the last token where `index` is
  /// their number. `line` is 1-based. The text is copied; ranges that span the token have it too.
  void Insert(std::size_t index, unsigned type, std::string_view text, unsigned line) {
    Record(Kind::Insert, index, type, line);
    AddText(text);
    ++insertions;
  }

  /// Forgets all changes and keeps the memory.
  void Clear();

  bool IsEmpty() const { return edits.empty(); }
  std::size_t Insertions() const { return insertions; }
  const std::vector<Edit>& All() const { return edits; }
  std::string_view Text(const Edit& edit) const {
    return std::string_view(texts).substr(edit.start, edit.length);
  }

 private:
  void Record(Kind kind, std::size_t index, unsigned type, unsigned line) {
    edits.push_back({kind, false, static_cast<std::uint16_t>(type),
                     static_cast<std::uint32_t>(index), 1, line, 0, 0});
  }
  void AddText(std::string_view text);

  std::vector<Edit> edits;
  std::string texts;
  std::size_t insertions = 0;
};

}  // namespace vexltags
