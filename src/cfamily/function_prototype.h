// SPDX-License-Identifier: MIT
// A function head of the C family during parsing, and its tag.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "parserstate/name.h"
#include "parserstate/param.h"

namespace vexltags {

class VexlTagsParser;

/// What the head of a function says. A tag line shows only name, qualifier, line, `isOperator` and
/// `isDefinition`; the rest is for `--debugDump`.
struct FunctionPrototype {
  std::string templateText;    ///< Text of the template heads.
  std::string linkage;         ///< Specifiers and linkage words, joined with blanks.
  std::string returnType;      ///< Empty for constructors and the like.
  std::string qualifier;       ///< `A::B` of `A::B::operator+`; otherwise part of the name.
  Name name;                   ///< Qualified as in the source. Without a text there is no tag.
  ParamList params;            ///< In source order.
  std::string constQualifier;  ///< `const` and similar words after the parameters.
  std::int32_t line = -1;      ///< 1-based line of the tag, -1 while unknown.
  bool isPure = false;         ///< Declared `= 0`.
  bool isOperator = false;  ///< The name is the symbol of an operator, without the word `operator`.
  bool isDefinition = false;  ///< A body follows.
  bool isFriend = false;      ///< Declared `friend`.

  FunctionPrototype() = default;
  FunctionPrototype(std::nullptr_t) {}  // NOLINT: generated rule code starts results from null
  /// Resets to the empty record.
  FunctionPrototype& operator=(std::nullptr_t);

  /// Sets the name of a plain function; the tag gets its line.
  void SetName(const Name& functionName);
  /// Sets the symbol of an operator, such as "+" or " new", and the class qualifier before it.
  void SetOperator(const std::string& classQualifier, const Name& symbol);

  /// Writes the tag with 1-based `line`, or its readable form under `--debugDump`. Writes nothing
  /// without a name. Leaves friends to `EndFunction`.
  void DumpDeclDef(const VexlTagsParser& parser, int line) const;

 private:
  void DebugDump(const VexlTagsParser& parser, int line) const;
};

}  // namespace vexltags
