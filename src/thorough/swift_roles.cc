// SPDX-License-Identifier: MIT
// Finds the keyword of the Swift declaration that begins at a token.
#include "thorough/swift_declarations.h"

#include "swift/operators.h"

namespace vexltags::thorough {

/// In alphabetical order.
constexpr std::array<SwiftDeclarations::WordRole, 58> SwiftDeclarations::kRoles = {{
    {"__consuming", Role::Modifier},
    {"__owned", Role::Modifier},
    {"__shared", Role::Modifier},
    {"_const", Role::Modifier},
    {"actor", Role::Actor},
    {"associatedtype", Role::AssociatedType},
    {"async", Role::Modifier},
    {"borrowing", Role::Modifier},
    {"case", Role::Case},
    {"class", Role::Class},
    {"consuming", Role::Modifier},
    {"convenience", Role::Modifier},
    {"deinit", Role::Deinitializer},
    {"distributed", Role::Modifier},
    {"do", Role::Control},
    {"dynamic", Role::Modifier},
    {"else", Role::Control},
    {"enum", Role::Enum},
    {"extension", Role::Extension},
    {"fileprivate", Role::Modifier},
    {"final", Role::Modifier},
    {"for", Role::Control},
    {"func", Role::Function},
    {"guard", Role::Control},
    {"if", Role::Control},
    {"indirect", Role::Modifier},
    {"infix", Role::Modifier},
    {"init", Role::Initializer},
    {"internal", Role::Modifier},
    {"isolated", Role::Modifier},
    {"lazy", Role::Modifier},
    {"let", Role::Constant},
    {"macro", Role::Macro},
    {"mutating", Role::Modifier},
    {"nonisolated", Role::Modifier},
    {"nonmutating", Role::Modifier},
    {"open", Role::Modifier},
    {"optional", Role::Modifier},
    {"override", Role::Modifier},
    {"package", Role::Modifier},
    {"postfix", Role::Modifier},
    {"prefix", Role::Modifier},
    {"private", Role::Modifier},
    {"protocol", Role::Protocol},
    {"public", Role::Modifier},
    {"repeat", Role::Control},
    {"required", Role::Modifier},
    {"sending", Role::Modifier},
    {"static", Role::Modifier},
    {"struct", Role::Struct},
    {"subscript", Role::Subscript},
    {"switch", Role::Control},
    {"typealias", Role::TypeAlias},
    {"unowned", Role::Modifier},
    {"unsafe", Role::Modifier},
    {"var", Role::Variable},
    {"weak", Role::Modifier},
    {"while", Role::Control},
}};

/// The index of the first word in `kRoles` that begins with a letter; their number for no such
/// word.
constexpr ByteTable<std::uint8_t> SwiftDeclarations::kFirstRoles = [] {
  ByteTable<std::uint8_t> firsts{};
  firsts.fill(static_cast<std::uint8_t>(kRoles.size()));
  for (std::size_t i = kRoles.size(); i-- > 0;) {
    firsts[static_cast<unsigned char>(kRoles[i].word[0])] = static_cast<std::uint8_t>(i);
  }
  return firsts;
}();

SwiftDeclarations::Role SwiftDeclarations::RoleAt(std::size_t index) const {
  const std::string_view word = Text(index);
  if (word.empty()) return Role::None;
  for (std::size_t i = kFirstRoles[static_cast<unsigned char>(word[0])];
       i < kRoles.size() && kRoles[i].word[0] == word[0]; ++i) {
    if (kRoles[i].word == word) return kRoles[i].role;
  }
  return Role::None;
}

/// Whether the `class` at `index` is the modifier of a member, not the keyword of a class.
bool SwiftDeclarations::IsClassModifier(std::size_t index) const {
  switch (RoleAt(index + 1)) {
    case Role::Function:
    case Role::Variable:
    case Role::Constant:
    case Role::Subscript:
    case Role::Initializer:
    case Role::TypeAlias:
      return true;
    case Role::Modifier: {
      const unsigned next = Type(index + 2);
      return next != kSwiftLCurly && next != kSwiftColon && next != kSwiftLess;
    }
    default:
      return false;
  }
}

std::size_t SwiftDeclarations::PastModifier(std::size_t index) const {
  ++index;
  if (Type(index) != kSwiftLParen || Type(index + 2) != kSwiftRParen) return index;
  const std::string_view word = Text(index + 1);
  return word == "set" || word == "safe" || word == "unsafe" || word == "nonsending" ? index + 3
                                                                                     : index;
}

bool SwiftDeclarations::CanDeclare(Role role, std::size_t keyword) const {
  const std::size_t next = keyword + 1;
  switch (role) {
    case Role::Class:
    case Role::Struct:
    case Role::Protocol:
    case Role::Enum:
    case Role::TypeAlias:
    case Role::AssociatedType:
      return IsWord(next);
    case Role::Actor:
      return IsWord(next) && (Type(next + 1) == kSwiftLCurly || Type(next + 1) == kSwiftColon ||
                              Type(next + 1) == kSwiftLess || Text(next + 1) == "where");
    case Role::Macro:
      return IsWord(next) && (Type(next + 1) == kSwiftLParen || Type(next + 1) == kSwiftLess);
    case Role::Extension:
      return IsWord(next) || Type(next) == kSwiftLSquare || Type(next) == kSwiftLParen;
    case Role::Case:
      return !scopes.empty() && scopes.back() && IsWord(next);
    case Role::Function:
      return IsWord(next) || isOperatorHead(Type(next)) || Type(next) == kSwiftDot ||
             Type(next) == kSwiftEllipsis || Type(next) == kSwiftRegexHead;
    case Role::Initializer:
      return Type(next) == kSwiftLParen || Type(next) == kSwiftLess ||
             Type(next) == kSwiftQuestionMark || Type(next) == kSwiftNot;
    case Role::Subscript:
      return Type(next) == kSwiftLParen || Type(next) == kSwiftLess;
    case Role::Deinitializer:
      return true;
    case Role::Constant:
    case Role::Variable:
      return IsWord(next) || Type(next) == kSwiftLParen;
    default:
      return false;
  }
}

// A run of modifiers without a keyword is remembered, so that its later tokens cost nothing.
std::size_t SwiftDeclarations::FindKeyword(std::size_t index) {
  if (index >= noKeywordFrom && index < noKeywordTo) return kNone;
  std::size_t at = index;
  Role role = RoleAt(at);
  while (role == Role::Modifier || (role == Role::Class && IsClassModifier(at))) {
    at = PastModifier(at);
    role = RoleAt(at);
  }
  if (CanDeclare(role, at)) return at;
  if (at > index) {
    noKeywordFrom = index;
    noKeywordTo = at;
  }
  return kNone;
}

}  // namespace vexltags::thorough
