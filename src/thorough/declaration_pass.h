// SPDX-License-Identifier: MIT
// Prepares the tokens of a C-family file for the parser, declaration by declaration.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "engine/token_edits.h"
#include "engine/token_table.h"
#include "thorough/condition.h"
#include "thorough/declaration_outline.h"
#include "thorough/declaration_repair.h"
#include "thorough/expander.h"
#include "thorough/skipped_block.h"
#include "vocabulary/main_tokens.h"

namespace vexltags::thorough {

/// Walks through the tokens of one file at declaration level: expands macros, repairs each
/// declaration, and passes over bodies and initialisers untouched. Braces alone tell the levels
/// apart.
class DeclarationPass {
 public:
  /// All must outlive the pass. What it finds to change goes to `edits`, in order.
  DeclarationPass(TokenTable& tokens, TokenEdits& edits, Expander& expander, Dialect dialect);

  /// Returns false at once where it would have to look into a block that was skipped.
  bool Run();

 private:
  enum class Level : std::uint8_t { Namespace, Class, Objc, Variables };
  struct Scope {
    Level level;
    std::string_view name;
    int closes = 1;            ///< How many scopes its brace closes: two for `namespace a::b`.
    bool isTypedef = false;    ///< Whether a typedef declares the class.
    bool inNamespace = false;  ///< Whether it or a scope around it is a namespace with a name.
    bool isTemplate = false;   ///< Whether it is a class template.
  };
  enum class Curly : std::uint8_t { Namespace, Class, Enum, Variables, Body, Initializer };

  Word SourceWord(std::size_t index) const;
  /// Skips the lines that continue `#define NAME\`, which the lexer ends with its line.
  void SkipDefinition();
  bool TryMacro();
  /// Reads the call whose `(` is at `past`, which moves past it, into `call`, of which `arguments`
  /// are parts. Returns false if it has no end.
  bool ReadCall(std::size_t& past, std::vector<Word>& call, Arguments& arguments);
  /// Expands the macro that ends `expansion` if its call is at `past`.
  void ExpandLast(std::size_t& past);
  /// True if `expansion`, that of the macro `name`, is the name of a function or leaves the place
  /// to one. `past` is the index after the use.
  bool TakesPlaceOfName(const MacroDefinition& definition, std::string_view name,
                        const Arguments& arguments, std::size_t past) const;
  /// True for a macro that makes the name of a function before its parameters, or both of them:
  /// `int NAME(int);`, `int MACRO(name(int));`, `MACRO(Name())` in the class Name. `after` is the
  /// type of the token that follows.
  bool NamesFunction(const MacroDefinition& definition, const Words& result, unsigned after) const;
  /// True for a token that can be nothing but the name of a function.
  bool IsNameAt(std::size_t index) const;
  /// True where a declaration has its type, but no name yet.
  bool NeedsName() const;
  /// True if the call of a macro with arguments can be a function instead, whose name another file
  /// uses for a macro: `int name(int);`. `past` is the index after the call.
  bool MayBeFunction(const MacroDefinition& definition, std::string_view name,
                     const Arguments& arguments, std::size_t past) const;
  bool IsWorthExpanding(bool isCallOfMacro, const std::vector<Word>& result, bool hasBodyAfter,
                        bool& declaresNothing) const;
  void Take(const Word& word);
  void TakeCurly(const Word& word);
  void TakeClose(const Word& word);
  void TakeColon(const Word& word);
  /// Leaves out calls of unknown macros, which need no semicolon, if they are all that is on the
  /// lines before `word`, with which a declaration surely begins.
  void DropCallsBefore(const Word& word);
  void TakeStdNamespace(const Word& word);
  /// True for the beginning of a call whose argument is a declaration: `DEBUG_CODE(int a`.
  bool IsInCall() const;
  /// Skips the arguments in `int f(int) __nonnull((1));`, whose parenthesis is `open`: the lexer
  /// hides the word before them only. Returns true if it has.
  bool SkipHiddenCall(const Word& open);
  void TakeObjcWord(const Word& word);
  Curly ClassifyCurly() const;
  /// True while the declaration is the head of an interface, protocol or implementation.
  bool IsObjcHead() const;
  /// True where a word in `line` cannot belong to the head: the head ends with its line, but for
  /// what continues it.
  bool EndsObjcHead(unsigned line) const;
  /// Ends the declaration before `word`, which belongs to the next one.
  void EndBefore(const Word& word);
  bool IsOldStyleHead() const;
  /// One past the `}` of the `{` at `open`; the number of tokens if there is none.
  std::size_t PastBlock(std::size_t open);
  void TakeBlock(const Word& word);
  void EndDeclaration(DeclarationEnd end);
  /// Turns `namespace a::b {` into two heads, one a name. Returns their number.
  int SplitNamespace();
  void Flush();
  void Insert(std::size_t index, const Word& word);
  std::string_view ClassName() const;
  /// A declaration of more words than this is passed on as it is.
  static constexpr std::size_t kLongestDeclaration = 4096;

  /// To be called for tokens that matter with all that is in them.
  void NeedToken(std::size_t index) {
    if (tokens.TypeAt(index) == kMainLCurly && IsSkippedBlock(tokens.SourceAt(index))) {
      missesBlock = true;
    }
  }

  bool InNamespace() const { return !scopes.empty() && scopes.back().inNamespace; }
  Level CurrentLevel() const { return scopes.empty() ? Level::Namespace : scopes.back().level; }

  TokenTable& tokens;
  TokenEdits& edits;
  Expander& expander;
  Dialect dialect;
  std::size_t at = 0;           ///< The next token of the table.
  std::size_t flushed = 0;      ///< The first one whose changes are not recorded yet.
  Words words;                  ///< The declaration so far.
  Words defines;                ///< The macros defined inside it, which go first.
  std::size_t longCallEnd = 0;  ///< Before this token no call of a macro ends.
  std::size_t vainWords = 0;    ///< The words of long calls that were not expanded.
  Words call;                   ///< Of the macro that is tried ...
  Words expansion;              ///< ... and what it expands to.
  bool hasChanged = false;      ///< Whether a macro was expanded in it.
  int brackets = 0;             ///< Open parentheses and square brackets in it.
  int enumDepth = 0;            ///< Open braces of an enum.
  bool inEnum = false;
  bool followsNamedClass = false;  ///< The last `}` closed a class with a name ...
  bool followsTemplate = false;    ///< ... and this class is a template.
  int madeCurlies = 0;             ///< Open braces of a block that a macro opened ...
  bool madeBody = false;           ///< ... and whether it is the body of a function.
  int openCalls = 0;               ///< Calls that declarations have been found in.
  bool missesBlock = false;        ///< A block that was skipped has been needed.
  bool unclosed = false;           ///< A block that stays open has been met: there is no other end.
  std::vector<Scope> scopes;
  std::string spaced;
};

}  // namespace vexltags::thorough
