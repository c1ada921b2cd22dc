// SPDX-License-Identifier: MIT
// The tag builder of Swift.
#pragma once

#include <antlr3.h>

#include <string>

#include "parserstate/parser_state_base.h"
#include "swift/operators.h"

namespace vexltags {

/// Writes the tags of a Swift file. The scope field of a tag is the dotted names of the open types,
/// without a word for their kind; only enums, which the base class writes, have one. `--debugDump`
/// also affects enums only.
class SwiftTagsParser : public ParserStateBase {
 public:
  /// What the predicates for operators remember about this file.
  OperatorRuns operatorRuns;

  SwiftTagsParser(const Options& runOptions, Dumper& sink, std::string storedPath);
  ~SwiftTagsParser() override;

  /// The names of the open types, outermost first, joined by ".".
  const std::string& CurrentNamespaceName() const override;

  /// Writes a function: its name and, unless that is "deinit", its labels in parentheses.
  void DumpSwiftFunction(const std::string& name, const ParamList& params, int line);
  /// Writes the function that the keyword init, deinit or subscript declares, without labels.
  void DumpKeywordFunction(pANTLR3_COMMON_TOKEN keyword);
  /// Writes a type, constant or variable with the letter of its kind. Does not open a scope.
  void Dump(const TypeDescriptor& descriptor);
  /// Like `Dump`, but any kind other than class is written as a struct. Nothing calls it.
  void DumpClass(const TypeDescriptor& descriptor);

  /// Calls `Dump` for one name, or for each of several.
  void DumpNamed(long kind, const Name& name);
  void DumpEach(long kind, const VectorOfName& names);
  /// Calls `Dump`, then opens the type as a scope.
  void OpenType(long kind, const Name& name);
  /// Writes an enum, then opens it as a scope.
  void OpenEnum(const Name& name);

  /// Closes the innermost scope at a closing brace on 1-based `line`, and returns the type of the
  /// brace. If none is open, returns `Function` and reports that under `--dumpErrors`.
  CurlyType PopRCurly(int line);

 private:
  /// The dotted names of the open types as a field; an absent field outside any.
  TagField DottedScopeField() const;
};

}  // namespace vexltags
