// SPDX-License-Identifier: MIT
// What all tag builders share: open scopes, open braces, and the tags of enums.
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

/// Base of the tag builders. Lives for one file; scopes still open at its end are dropped silently.
class ParserStateBase {
 public:
  /// A class-like scope; in the C family also the text and line of any other type.
  struct TypeDescriptor {
    std::string name;
    long kind = kNoKind;       ///< A `ScopeKind`; `kNoKind` if it is not a scope.
    bool isAnonymous = false;  ///< The name was made up.
    bool isScoped = false;     ///< `enum class` or `enum struct`. Nothing reads it.
    bool isTypedef = false;    ///< The declaration began with `typedef`.
    std::int32_t line = -1;    ///< 1-based, -1 while unknown.

    TypeDescriptor() = default;
    TypeDescriptor(std::string newName, long newKind, std::int32_t newLine)
        : name(std::move(newName)), kind(newKind), line(newLine) {}
    TypeDescriptor(long newKind, const Name& other)
        : name(other.text), kind(newKind), line(other.line) {}

    /// Copies text and line; kind and flags do not change.
    void ResetNameAndLine(const Name& other);
    /// The same. Nothing calls it.
    void ResetNameAndLine(const Param& other);
    void ResetNameAndLine(pANTLR3_COMMON_TOKEN token);
    /// Appends the text and copies the line.
    TypeDescriptor& operator+=(const Name& other);
  };

  /// The kind of an open brace.
  enum class CurlyType : std::int32_t { Class = 1, Namespace = 2, Function = 3, Other = 4 };

  /// `scopeSeparator` separates the names of nested scopes.
  ParserStateBase(const Options& options, Dumper& dumper, std::string fileName,
                  std::string scopeSeparator = "::");
  virtual ~ParserStateBase();
  ParserStateBase(const ParserStateBase&) = delete;
  ParserStateBase& operator=(const ParserStateBase&) = delete;

  /// The names of the open scopes as one text; empty outside any. Builders with scopes override it.
  virtual const std::string& CurrentNamespaceName() const;
  /// Opens a scope and its brace.
  virtual void PushClass(const TypeDescriptor& descriptor);
  /// Closes the innermost scope; if none is open, only reports that under `--dumpErrors`.
  virtual void PopClass(int line);
  /// Writes the tag of an enum.
  virtual void DumpEnum(const Name& name);
  /// Writes the tag of an enumerator; outside any scope it writes nothing.
  virtual void DumpEnumerator(const Name& name);
  /// Writes the tag of an enum, unless its name is made up, and opens it as a scope.
  void OpenEnum(const TypeDescriptor& descriptor);

  /// The kind of the innermost scope, `kNoKind` when `CurrentNamespaceName` is empty.
  long CurrentNamespaceKind() const;
  /// The word of that kind, such as "class"; empty for `kNoKind`. Nothing calls it.
  std::string CurrentNamespaceKindName() const;
  /// Same as `ScopeKindName`, as a string.
  static std::string NameSpaceKindName(long kind);
  /// Same as `ScopeKindLetter`, as a string of one character. Nothing calls it.
  static std::string NameSpaceSelector(long kind);

  /// Handles a closing brace at 1-based `line` and returns its type. The brace of a namespace
  /// closes its scope; that of a class does so only before a semicolon, and counts as `Function`
  /// otherwise, as does a brace that was never opened.
  CurlyType PopRCurly(bool semicolonFollows, int line);

  /// Counts a declaration; at the 10000th, warns if `debugDumpFilesWithHugeOutput` is set.
  void DumpTrackPerFileDeclVolume();

 protected:
  /// Pushes a brace. Equal neighbours on the stack share an entry.
  void PushCurly(CurlyType type);
  /// Pops the innermost brace and returns its type, or nothing if none is open.
  std::optional<CurlyType> PopCurly();
  /// Opens a scope without a brace.
  void OpenScope(const TypeDescriptor& descriptor);

  /// Writes `tag` with the file field of this file. Every tag passes here; see `Tag`.
  void Emit(Tag tag) const;
  /// The file field of the tags of this file.
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
  /// Reports an error at 1-based `line` on standard error, but only under `--dumpErrors`.
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

/// The `name` of each record, joined by `separator`; empty for an empty list.
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
