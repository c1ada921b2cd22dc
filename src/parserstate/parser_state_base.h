// SPDX-License-Identifier: MIT
// What every tag builder holds for one file: open scopes, open braces, and the enum tags.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "base/options.h"
#include "output/dumper.h"
#include "output/kinds.h"
#include "parserstate/name.h"
#include "parserstate/param.h"
#include "parserstate/scope_text.h"
#include "parserstate/tag.h"

namespace vexltags {

/// Base of the tag builders. Lives for one file; unbalanced scopes at its end are dropped silently.
class ParserStateBase {
 public:
  /// A class-like scope, and in the C family any type as text with a line.
  struct TypeDescriptor {
    std::string name;
    long kind = kNoKind;       ///< A `ScopeKind`; `kNoKind` where it is no scope.
    bool isAnonymous = false;  ///< The name was made up.
    bool isScoped = false;     ///< `enum class` or `enum struct`.
    bool isTypedef = false;    ///< The declaration began with `typedef`.
    std::int32_t line = -1;    ///< 1-based, -1 while unknown.

    TypeDescriptor() = default;
    TypeDescriptor(std::string newName, long newKind, std::int32_t newLine)
        : name(std::move(newName)), kind(newKind), line(newLine) {}
    TypeDescriptor(long newKind, const Name& other)
        : name(other.text), kind(newKind), line(other.line) {}

    /// Each takes text and line and leaves kind and flags alone.
    void ResetNameAndLine(const Name& other);
    void ResetNameAndLine(const Param& other);
    void ResetNameAndLine(pANTLR3_COMMON_TOKEN token);
    /// Appends the text; the line becomes that of `other`.
    TypeDescriptor& operator+=(const Name& other);
  };

  /// Which kind of brace stands open. The numbers are also what `PopRCurly` returns.
  enum class CurlyType : std::int32_t { Class = 1, Namespace = 2, Function = 3, Other = 4 };

  /// `scopeSeparator` stands between the names of scopes in each other.
  ParserStateBase(const Options& options, Dumper& dumper, std::string fileName,
                  std::string scopeSeparator = "::");
  virtual ~ParserStateBase();
  ParserStateBase(const ParserStateBase&) = delete;
  ParserStateBase& operator=(const ParserStateBase&) = delete;

  /// The open scopes as one text; empty outside any. Builders that have scopes override it.
  virtual const std::string& CurrentNamespaceName() const;
  /// Opens a scope and its brace.
  virtual void PushClass(const TypeDescriptor& descriptor);
  /// Closes the innermost scope; with none open only `--dumpErrors` says so.
  virtual void PopClass(int line);
  /// Writes the tag of an enum.
  virtual void DumpEnum(const Name& name);
  /// Writes the tag of an enumerator; outside any scope it writes nothing.
  virtual void DumpEnumerator(const Name& name);
  /// Writes the tag of an enum, unless its name is made up, and opens it as a scope.
  void OpenEnum(const TypeDescriptor& descriptor);

  /// The kind of the innermost scope, `kNoKind` when `CurrentNamespaceName` is empty.
  long CurrentNamespaceKind() const;
  /// Its word, such as "class"; empty for `kNoKind`.
  std::string CurrentNamespaceKindName() const;
  /// `ScopeKindName` as a string.
  static std::string NameSpaceKindName(long kind);
  /// `ScopeKindLetter` as a string of one character.
  static std::string NameSpaceSelector(long kind);

  /// Handles a closing brace at 1-based `line`; `semicolonFollows` tells whether `;` stands behind.
  CurlyType PopRCurly(bool semicolonFollows, int line);

  /// Counts a declaration and warns once, at the 10000th, when the option asks for it.
  void DumpTrackPerFileDeclVolume();

 protected:
  /// Pushes a brace, merging it with an equal one on top.
  void PushCurly(CurlyType type);
  /// Pops the innermost brace and returns its type; nothing when none is open.
  std::optional<CurlyType> PopCurly();
  /// Opens a scope without a brace.
  void OpenScope(const TypeDescriptor& descriptor);

  /// Writes `tag` with the file field of this file. Every tag line comes from here; see `Tag`.
  void Emit(Tag tag) const;
  /// The file field of this file's tags.
  const std::string& FileField() const;
  /// The field that names the innermost scope; an absent field outside any.
  TagField InnermostScopeField() const;
  /// The names of the open scopes, joined by the separator of the language.
  const std::string& JoinedScope() const { return scopeText.Joined(); }
  /// The same with white space collapsed.
  const std::string& CollapsedScope() const { return scopeText.Collapsed(); }
  /// `text` with white space collapsed, or as much of it as a formatted piece can hold.
  static std::string CollapsedForPiece(const std::string& text);

  /// Ends a line of `--debugDump` with the file and the 1-based line.
  void PrintReadablePosition(int line) const;
  /// Reports an error on standard error, under `--dumpErrors` only.
  void ReportError(const char* message, int line) const;

  const Options* options;
  Dumper* dumper;
  std::string fileName;
  std::int32_t declarationCount = 0;
  std::vector<TypeDescriptor> classStack;
  std::vector<std::pair<CurlyType, std::int32_t>> curlyStack;

 private:
  mutable std::string fileField;
  ScopeText scopeText;
};

/// The `name` of each record in order with `separator` between them; empty for an empty list.
template <class List>
std::string ConcatenateNamesUsingSeparator(const List& list, const std::string& separator) {
  std::string result;
  bool first = true;
  for (const auto& item : list) {
    if (!first) result += separator;
    result += item.name;
    first = false;
  }
  return result;
}

}  // namespace vexltags
