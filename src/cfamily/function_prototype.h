// SPDX-License-Identifier: MIT
// A function head of the C family while it is parsed, and the tag that comes of it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "parserstate/name.h"
#include "parserstate/param.h"

namespace vexltags {

class VexlTagsParser;

/// What is known of a function when its head has been read. Only name, qualifier, line,
/// `isOperator` and `isDefinition` show in a tag line; the rest is for `--debugDump`.
struct FunctionPrototype {
  std::string templateText;  ///< Text of its template heads.
  std::string linkage;       ///< Specifiers and linkage words, joined with blanks.
  std::string returnType;    ///< Empty for constructors and the like.
  std::string qualifier;     ///< `A::B` of `A::B::operator+`; other functions keep it in the name.
  Name name;                 ///< Qualified as written; an empty text means that there is no tag.
  ParamList params;          ///< In source order.
  std::string constQualifier;  ///< `const` and like words behind the parameters.
  std::int32_t line = -1;      ///< 1-based line of the tag, -1 while unknown.
  bool isPure = false;         ///< `= 0` was seen.
  bool isOperator = false;     ///< The name is an operator's symbol, without the word `operator`.
  bool isDefinition = false;   ///< A body follows.
  bool isFriend = false;       ///< `friend` was seen.

  FunctionPrototype() = default;
  FunctionPrototype(std::nullptr_t) {}  // NOLINT: generated rule code starts results from null
  /// Back to the empty record.
  FunctionPrototype& operator=(std::nullptr_t);

  /// Takes the name of a plain function, and its line as the line of the tag.
  void SetName(const Name& functionName);
  /// Takes an operator's symbol, such as "+" or " new", and the class qualifier in front of it.
  void SetOperator(const std::string& classQualifier, const Name& symbol);

  /// Writes the tag at 1-based `line`, or its readable form under `--debugDump`. Without a name it
  /// writes nothing. Does not ask whether a friend declaration deserves a tag; `EndFunction` does.
  void DumpDeclDef(const VexlTagsParser& parser, int line) const;

 private:
  void DebugDump(const VexlTagsParser& parser, int line) const;
};

}  // namespace vexltags
