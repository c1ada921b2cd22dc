// SPDX-License-Identifier: MIT
// The tag builder of C, C++ and Objective-C.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "cfamily/function_prototype.h"
#include "parserstate/method_prototype.h"
#include "parserstate/parser_state_base.h"

namespace vexltags {

/// Tracks the scopes of a file and writes its tags. declarations.h combines these steps into one
/// call for each construct of the grammar.
///
/// Under `--debugDump` each `Dump…` prints a readable line to standard output instead of a tag.
class VexlTagsParser : public ParserStateBase {
 public:
  using FunctionPrototype = vexltags::FunctionPrototype;
  using ParserStateBase::ParserStateBase;

  /// A `typedef` was read as an item of its own; the next declaration belongs to it.
  bool inTypedef = false;

  /// The names of the open scopes from the outermost, joined by "::".
  const std::string& CurrentNamespaceName() const override;
  /// A copy of it for use after the scope is closed, no longer than a tag line can show.
  std::string NamespaceNameToShow() const;
  /// Opens the brace of a function body. Nothing calls it: bodies are skipped as balanced text.
  void PushFunctionLCurly();
  /// Opens a brace without a scope, such as that of `extern "C"`.
  void PushOtherLCurly();

  /// True if the innermost open brace is that of a function. Nothing calls it.
  bool InFunctionCurlies() const;
  /// True if any open brace is that of a function. Declarations have no tags there.
  bool InFunctionCurliesDeep() const;
  /// True if the innermost open brace is that of a scope other than a namespace.
  bool InClassCurlies() const;
  /// True if the innermost scope is an interface, protocol or implementation.
  bool InObjc() const;
  /// True if the innermost scope began with `typedef`.
  bool CurrentNamespaceIsTyperef() const;

  /// True under `--debugDump`: nothing else shows the text of a whole type.
  bool ShowsTypeText() const { return options->debugDump; }

  /// Writes the tag of a class, namespace or Objective-C scope with the letter of its kind. Call it
  /// before the scope is opened.
  void DumpClass(const TypeDescriptor& descriptor, int line) const;
  /// Writes the tag of a macro, which never has a scope.
  void DumpMacro(std::string_view name, int line) const;
  /// Writes the tag of a typedef or alias, with a typeref field for a class, struct, union or enum.
  void DumpTypedef(const std::string& name, const TypeDescriptor& type, int line) const;
  /// Writes the tag of a concept. `type` holds the text of its template head, which no tag shows.
  void DumpConstraint(const std::string& name, const TypeDescriptor& type, int line) const;
  /// Writes the tag of a variable or member. A qualifier in the name becomes part of the scope.
  void DumpDeclDef(bool isMember, const std::string& name, const TypeDescriptor& type, int line);
  /// Writes the tag of a name declared after a closing brace or an enum. `typeKind` and `typeName`
  /// describe the type just closed, `scopeKind` and `scopeName` the scope of a member.
  void DumpDeclaration(bool isMember, bool isTypedef, const std::string& name, long typeKind,
                       const std::string& typeName, long scopeKind, const std::string& scopeName,
                       int line);
  /// Writes the tag of an Objective-C method or accessor. An Objective-C scope must be open.
  void DumpMethod(const MethodPrototype& method) const;

  /// Splits `name` into scope and plain name, and adds the scope to the open ones: `A<B::C>::f` has
  /// the scope `A<B::C>` and the plain name `f`. Ignores "::" inside angle brackets.
  std::pair<std::string, std::string> GetNamespaceAndName(const std::string& name) const;

  /// The parameters for the readable form: type and ` @name@` of each, joined by ", ".
  static std::string FlattenParamList(const ParamList& list);
  /// A made-up name: `__anon1`, `__anon2` and so on, numbered across the files of a run.
  static std::string NextAnonName();
  /// The number of the last made-up name, 0 before the first. Setting it makes the next file
  /// continue from there.
  static std::int32_t AnonCount();
  static void SetAnonCount(std::int32_t count);
  /// Same as `vexltags::AppendWithSpace`. Nothing calls it.
  static const std::string& AppendWithSpace(std::string& text, std::string_view piece);

 private:
  friend struct vexltags::FunctionPrototype;

  /// True for a name that `GetNamespaceAndName` may split.
  static bool HasQualifier(const std::string& name);
  /// True if `CurrentNamespaceName` is not empty.
  bool HasScope() const;
  /// The word of the innermost scope; "class" outside any, where a qualifier counts as a class.
  const char* ScopeWord() const;

  static inline std::int32_t anonCount = 0;
};

}  // namespace vexltags
