// SPDX-License-Identifier: MIT
// Reads the declarations of a Swift file from its tokens, without a grammar.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/character_class.h"
#include "engine/token_table.h"
#include "swift/swift_tags_parser.h"
#include "vocabulary/swift_tokens.h"

namespace vexltags::thorough {

/// Reads a file statement by statement. The keyword after the modifiers decides what a statement
/// declares. The tag has its name, its labels and the open types as its scope. The bodies of types
/// are read; all other balanced text is skipped. A statement ends at a `;`, at the curly that
/// closes the type, or before a line that begins with a declaration or a control statement.
///
/// Where a file has curlies that stay open, indentation shows which: a declaration at the beginning
/// of a line that is no farther to the right than the line of the curly ends it. This takes a file
/// that indents nearly all of its blocks.
///
/// The kinds are those of the grammar. An associated type counts as a type alias, a macro as a
/// function, and the wildcard `_` as nothing.
class SwiftDeclarations {
 public:
  /// `tokens` are those of the copy that `SwiftText` makes of `source`. All of them must outlive
  /// the object.
  SwiftDeclarations(TokenTable& tokens, std::string_view source, SwiftTagsParser& builder);

  /// Reports all declarations to the tag builder. Takes time linear in the number of tokens.
  void ReadAll();

 private:
  /// What a word means at the beginning of a statement.
  enum class Role : std::uint8_t {
    None,
    Modifier,
    Class,
    Actor,
    Struct,
    Protocol,
    Extension,
    Enum,
    Case,
    Function,
    Macro,
    Initializer,
    Deinitializer,
    Subscript,
    Constant,
    Variable,
    TypeAlias,
    AssociatedType,
    Control,
  };
  struct WordRole {
    std::string_view word;
    Role role;
  };
  static const std::array<WordRole, 58> kRoles;
  static const ByteTable<std::uint8_t> kFirstRoles;

  /// What has to follow a comma for it to end an expression.
  enum class Comma : std::uint8_t { Binding, Case, Parameter };

  static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

  // Tokens ----------------------------------------------------------------------------------------

  /// The type of a token; that of the end of the file after the last.
  unsigned Type(std::size_t index) const {
    return index < count ? table.TypeAt(index) : static_cast<unsigned>(kSwiftEndOfFile);
  }
  /// The text of a token in the copy.
  std::string_view Text(std::size_t index) const {
    return index < count ? table.TextAt(index) : std::string_view();
  }
  /// The text of the tokens from `first` to before `last` in the source, with the line of the
  /// first.
  Name NameOf(std::size_t first, std::size_t last) const;
  Name NameAt(std::size_t index) const { return NameOf(index, index + 1); }
  bool IsWord(std::size_t index) const;
  /// Whether nothing, not even a blank, is between a token and the one before it.
  bool IsGlued(std::size_t index) const;
  bool BeginsLine(std::size_t index) const;
  /// The number of characters before a token on its line.
  std::size_t Column(std::size_t index) const;
  /// For each token, and for the end of the file, how many of the curlies that are open there can
  /// be closed from there on.
  std::vector<std::uint32_t> CountClosings() const;
  /// Whether nearly all blocks are farther to the right than the lines that open them, in a file
  /// with `unclosed` curlies that stay open.
  bool IsIndented(std::size_t unclosed) const;
  /// A closing curly also ends the other brackets that are open after its partner. Any other
  /// closing bracket without a partner is ignored.
  void FindPartners();
  /// Ends the types that are open at `index` because of a curly that stays open.
  void EndUnclosedTypes(std::size_t index);
  /// The place after a token, or after its closing bracket where it opens a bracket that is closed.
  std::size_t Past(std::size_t index) const {
    return partners[index] != 0 ? partners[index] + std::size_t{1} : index + 1;
  }

  // Statements ------------------------------------------------------------------------------------

  Role RoleAt(std::size_t index) const;
  bool IsClassModifier(std::size_t index) const;
  std::size_t PastModifier(std::size_t index) const;
  bool CanDeclare(Role role, std::size_t keyword) const;
  /// The keyword of the declaration that begins at `index`; `kNone` where none does.
  std::size_t FindKeyword(std::size_t index);
  /// Whether the token is the first on its line and begins a declaration or a control statement.
  bool BeginsStatement(std::size_t index);
  std::size_t EndOfStatement(std::size_t index, bool hasBody);
  std::size_t PastControl(std::size_t index);

  // Declarations. Each takes the index of the keyword and returns where to read on ----------------

  std::size_t ReadDeclaration(std::size_t keyword);
  std::size_t ReadType(Role role, std::size_t keyword);
  std::size_t ReadExtendedType(std::size_t index, Name& name);
  std::size_t ReadFunction(std::size_t keyword);
  std::size_t ReadFunctionName(std::size_t index, Name& name) const;
  std::size_t ReadKeywordFunction(std::size_t keyword);
  std::size_t ReadBindings(long kind, std::size_t keyword);
  std::size_t ReadCases(std::size_t keyword);
  ParamList ReadLabels(std::size_t index, std::size_t end);
  void ReadTuplePattern(long kind, std::size_t index, std::size_t end);
  void ReadBinding(long kind, std::size_t index);

  // Pieces of declarations; each ends at `end` at the latest --------------------------------------

  std::size_t PastType(std::size_t index, std::size_t end);
  std::size_t PastExpression(std::size_t index, std::size_t end, Comma comma);
  bool EndsAtComma(std::size_t index, Comma comma) const;
  /// The place after the generic clause that begins at `index`; `kNone` where none does.
  std::size_t PastAngles(std::size_t index);

  TokenTable& table;
  const std::string_view source;
  SwiftTagsParser& builder;
  const std::size_t count;
  /// Of a closed opening bracket the closing one, else 0. Of a curly that indentation ends, the
  /// last token within it.
  std::vector<std::uint32_t> partners;
  std::vector<std::uint32_t> unclosedAt;  ///< The curlies that indentation ends, in order.
  std::vector<bool> scopes;               ///< The open types; true for an enum.
  /// The token before which indentation ends each of the open types; `kNone` for most.
  std::vector<std::size_t> scopeEnds;
  // The tokens of the last search that failed. A search from within them fails too.
  std::size_t noKeywordFrom = 0, noKeywordTo = 0;
  std::size_t noAnglesFrom = 0, noAnglesTo = 0;
};

}  // namespace vexltags::thorough
