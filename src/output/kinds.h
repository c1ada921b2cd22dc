// SPDX-License-Identifier: MIT
// Every kind of a tag: its letter, and the number and word of the kinds that scopes have.
#pragma once

namespace vexltags {

/// The kind letters of tag lines. A letter can have a second meaning in another language.
namespace kind_letter {
inline constexpr char kClass = 'c';
inline constexpr char kStruct = 's';
inline constexpr char kUnion = 'u';
inline constexpr char kEnum = 'g';
inline constexpr char kEnumerator = 'e';
inline constexpr char kTypedef = 't';  ///< In Swift, a typealias.
inline constexpr char kNamespace = 'n';
inline constexpr char kInterface = 'X';
inline constexpr char kProtocol = 'Y';
inline constexpr char kImplementation = 'w';
inline constexpr char kConstant = 'b';       ///< From Swift's `let`.
inline constexpr char kSwiftVariable = 'V';  ///< From Swift's `var`.
inline constexpr char kExtension = 'Z';
inline constexpr char kConstraint = 'C';
inline constexpr char kFunctionDefinition = 'f';   ///< Function or method with a body.
inline constexpr char kFunctionDeclaration = 'p';  ///< Function or method without one.
inline constexpr char kMember = 'm';               ///< Member variable; in Python, a method.
inline constexpr char kVariable = 'v';
inline constexpr char kMacro = 'd';
inline constexpr char kInstanceMethodDeclaration = 'i';
inline constexpr char kClassMethodDeclaration = 'I';
inline constexpr char kInstanceMethodDefinition = 'o';
inline constexpr char kClassMethodDefinition = 'O';
inline constexpr char kDeclaredAccessor = 'r';     ///< From `@property`.
inline constexpr char kSynthesizedAccessor = 'R';  ///< From `@synthesize`.
}  // namespace kind_letter

/// The scope-like kinds by number. Grammar rules and `TypeDescriptor` store the number as a `long`.
/// Not every kind has scopes: 5, 10 and 11 are Swift declarations without a body; nothing uses 13.
enum ScopeKind : long {
  kNoKind = 0,  ///< Not scope-like.
  kClassKind = 1,
  kStructKind = 2,
  kUnionKind = 3,
  kEnumKind = 4,  ///< The tag of an enum has the letter `kEnum`, not that of this kind.
  kTypeAliasKind = 5,
  kNamespaceKind = 6,
  kInterfaceKind = 7,
  kProtocolKind = 8,
  kImplementationKind = 9,
  kConstantKind = 10,
  kVariableKind = 11,
  kExtensionKind = 12,
  kConceptKind = 13,
};

/// The word of a scope-like kind, which opens a scope field: "class" for 1; empty for 5 and
/// outside 1 to 13.
const char* ScopeKindName(long kind);

/// The letter of a scope-like kind; a blank outside 1 to 13.
char ScopeKindLetter(long kind);

/// The letter of an Objective-C method. An accessor of a property is `r`, or `R` where it is
/// defined, for class properties too. Another method is `i`, or `o` with a body, in upper case for
/// a class method.
char MethodKindLetter(bool isProperty, bool isDefinition, bool isClassMethod);

}  // namespace vexltags
