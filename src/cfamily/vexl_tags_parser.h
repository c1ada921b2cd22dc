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

/// Keeps the scopes of one file and writes its tags. What a construct of the grammar asks of it in
/// several steps stands in declarations.h as one call.
///
/// Under `--debugDump` each `Dump…` prints a readable line to standard output and stores no tag.
class VexlTagsParser : public ParserStateBase {
 public:
  using FunctionPrototype = vexltags::FunctionPrototype;
  using ParserStateBase::ParserStateBase;

  /// A `typedef` was read as an item of its own; the declaration that comes is its rest.
  bool inTypedef = false;

  /// The names of the open scopes from the outermost, joined by "::".
  const std::string& CurrentNamespaceName() const override;
  /// A copy of it for use behind the scope's end, no longer than a tag line shows.
  std::string NamespaceNameToShow() const;
  /// Opens a scope and its brace; a namespace has a brace of its own kind.
  void PushClass(const TypeDescriptor& descriptor) override;
  /// Opens the brace of a function body. Bodies are skipped as balanced text, so nobody calls it
  /// yet.
  void PushFunctionLCurly();
  /// Opens a brace that is no scope, such as that of `extern "C"`.
  void PushOtherLCurly();

  /// True when the innermost open brace is a function's.
  bool InFunctionCurlies() const;
  /// True when any open brace is a function's. Declarations get no tag there.
  bool InFunctionCurliesDeep() const;
  /// True when the innermost open brace is that of a class, struct, union, enum or Objective-C
  /// scope.
  bool InClassCurlies() const;
  /// True when the innermost scope is an interface, protocol or implementation.
  bool InObjc() const;
  /// True when the innermost scope began with `typedef`.
  bool CurrentNamespaceIsTyperef() const;

  /// True under `--debugDump`, whose lines are all that shows the text of a whole type.
  bool ShowsTypeText() const { return options->debugDump; }

  /// Writes the tag of a class, namespace or Objective-C scope; the letter follows from its kind.
  /// To be called before the scope itself is opened.
  void DumpClass(const TypeDescriptor& descriptor, int line) const;
  /// Writes the tag of a macro, which never has a scope.
  void DumpMacro(const std::string& name, int line) const;
  /// Writes the tag of a typedef or alias. A type of a class-like kind is named in a typeref field.
  void DumpTypedef(const std::string& name, const TypeDescriptor& type, int line) const;
  /// Writes the tag of a concept. `type` holds the text of its template head.
  void DumpConstraint(const std::string& name, const TypeDescriptor& type, int line) const;
  /// Writes the tag of a variable or member. A qualifier in the name becomes its scope.
  void DumpDeclDef(bool isMember, const std::string& name, const TypeDescriptor& type, int line);
  /// Writes the tag of a name declared behind a closing brace or an enum. `typeKind` and `typeName`
  /// tell the type just closed, `scopeKind` and `scopeName` the scope that a member stands in.
  void DumpDeclaration(bool isMember, bool isTypedef, const std::string& name, long typeKind,
                       const std::string& typeName, long scopeKind, const std::string& scopeName,
                       int line);
  /// Writes the tag of an Objective-C method or accessor; to be called inside such a scope only.
  void DumpMethod(const MethodPrototype& method) const;

  /// Cuts the qualifier off `name`, angle brackets regarded, and puts it behind the open scopes:
  /// `A<B::C>::f` gives scope `A<B::C>` and name `f`. Returns scope text and plain name.
  std::pair<std::string, std::string> GetNamespaceAndName(const std::string& name) const;

  /// The parameters on one line for the readable form: the type, then ` @name@`, joined by ", ".
  static std::string FlattenParamList(const ParamList& list);
  /// A new name for something unnamed: `__anon1`, `__anon2` and so on, counted over the whole run.
  static std::string NextAnonName();
  /// See `vexltags::AppendWithSpace`.
  static const std::string& AppendWithSpace(std::string& text, std::string_view piece);

 private:
  friend struct vexltags::FunctionPrototype;

  /// True for a name that `GetNamespaceAndName` may cut.
  static bool HasQualifier(const std::string& name);
  /// True when `CurrentNamespaceName` is not empty.
  bool HasScope() const;
  /// The word of the innermost scope, "class" outside any: a qualifier is taken for a class.
  const char* ScopeWord() const;
};

}  // namespace vexltags
