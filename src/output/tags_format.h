// SPDX-License-Identifier: MIT
// The fixed texts of the tags file format: header lines, kind letters, names of scope kinds.
#pragma once

#include <cstdint>
#include <string>

namespace vexltags {

/// Kind letters that do not come from a scope-like kind number.
namespace kind_letter {
inline constexpr char kFunctionDefinition = 'f';   ///< Function or method with a body.
inline constexpr char kFunctionDeclaration = 'p';  ///< Function or method without one.
inline constexpr char kMember = 'm';               ///< Member variable; in Python, a method.
inline constexpr char kVariable = 'v';
inline constexpr char kTypedef = 't';
inline constexpr char kMacro = 'd';
inline constexpr char kConstraint = 'C';
inline constexpr char kEnum = 'g';
inline constexpr char kEnumerator = 'e';
inline constexpr char kClass = 'c';
inline constexpr char kStruct = 's';
}  // namespace kind_letter

/// The four header lines, each with its newline. `sort` is the sort option's number, 0 to 2.
std::string TagsHeader(std::int32_t sort);

/// The word for a scope-like kind number, which opens a scope field: "class" for 1, empty for 5 and
/// outside 1 to 13.
const char* ScopeKindName(long kind);

/// The letter for a scope-like kind number; a blank outside 1 to 13.
char ScopeKindLetter(long kind);

/// The letter for an Objective-C method. Accessors of a property are `r`, or `R` where they are
/// defined, whether of the class or not; other methods are `i`, or `o` with a body, and a capital
/// for class methods.
char MethodKindLetter(bool isProperty, bool isDefinition, bool isClassMethod);

}  // namespace vexltags
