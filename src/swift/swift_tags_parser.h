// SPDX-License-Identifier: MIT
// The tag builder of Swift: one tag for each declaration that the grammar reports, and its scopes.
#pragma once

#include <antlr3.h>

#include <string>

#include "parserstate/parser_state_base.h"
#include "swift/operators.h"

namespace vexltags {

/// Writes the tags of one Swift file. The scope of a tag is the dotted names of the open types,
/// without a word for their kind. `--debugDump` changes nothing but the enums, which the base class
/// writes.
class SwiftTagsParser : public ParserStateBase {
 public:
  /// What the parser's questions about operators remember of this file.
  OperatorRuns operatorRuns;

  SwiftTagsParser(const Options& runOptions, Dumper& sink, std::string storedPath);
  ~SwiftTagsParser() override;

  /// The names of the open types from the outermost on, joined by ".".
  const std::string& CurrentNamespaceName() const override;

  /// Writes a function: its name, and its labels in parentheses unless it is "deinit".
  void DumpSwiftFunction(const std::string& name, const ParamList& params, int line);
  /// Writes the function that `keyword` declares, without labels: init, deinit or subscript.
  void DumpKeywordFunction(pANTLR3_COMMON_TOKEN keyword);
  /// Writes a type, constant or variable with the letter of its kind. Opens no scope.
  void Dump(const TypeDescriptor& descriptor);
  /// Writes a class, or a struct for any other kind. The grammar has no use for it.
  void DumpClass(const TypeDescriptor& descriptor);

  /// `Dump` for one name, and for each of several in their order.
  void DumpNamed(long kind, const Name& name);
  void DumpEach(long kind, const VectorOfName& names);
  /// `Dump`, then opens the type as a scope.
  void OpenType(long kind, const Name& name);
  /// Writes an enum, then opens it as a scope.
  void OpenEnum(const Name& name);

  /// Closes the innermost scope at a closing curly at 1-based `line`. With no curly open it only
  /// says so under `--dumpErrors`. The result is the kind of the curly, `Function` for none.
  CurlyType PopRCurly(int line);

 private:
  /// The dotted names of the open types as a field; an absent field outside any.
  TagField DottedScopeField() const;
};

}  // namespace vexltags
