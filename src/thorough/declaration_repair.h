// SPDX-License-Identifier: MIT
// Rewrites a declaration so that the grammar of the C family can read it.
#pragma once

#include <cstdint>
#include <string_view>

#include "thorough/condition.h"
#include "thorough/declaration_outline.h"

namespace vexltags::thorough {

/// Where a declaration is.
struct DeclarationPlace {
  bool inClass = false;
  bool inObjc = false;             ///< Between `@interface` and its like and `@end`.
  bool inNamespace = false;        ///< In a namespace with a name, however deep.
  bool followsNamedClass = false;  ///< After the `}` of a class that has a name and no typedef.
  std::string_view className;      ///< Of the innermost class; empty outside any.
  Dialect dialect = Dialect::Unknown;
  bool followsTemplate = false;  ///< After the `}` of a class template.
};

/// How a declaration ends.
enum class DeclarationEnd : std::uint8_t {
  Semicolon,
  Body,       ///< The last word is the block of a function.
  ClassBody,  ///< The last word opens a class, or the variables of an Objective-C interface.
  NamespaceBody,
  EnumBody,  ///< An enum with its enumerators, up to the `;`.
  Other,     ///< The words end without any of these.
};

/// Takes out of `words` what declares nothing and the grammar has no place for, and puts in what it
/// needs: texts that tags show stay as they are. The declaration may become empty. Returns true if
/// it has changed anything.
bool RepairDeclaration(Words& words, DeclarationEnd end, const DeclarationPlace& place);

}  // namespace vexltags::thorough
