// SPDX-License-Identifier: MIT
// Reads the declarations of a Swift file from its tokens, without a grammar.
#include "thorough/swift_declarations.h"

#include <algorithm>
#include <utility>

#include "base/character_class.h"
#include "output/kinds.h"
#include "swift/operators.h"
#include "swift/swift_names.h"

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

SwiftDeclarations::SwiftDeclarations(TokenTable& tokens, std::string_view text,
                                     SwiftTagsParser& tagBuilder)
    : table(tokens), source(text), builder(tagBuilder), count(tokens.Count()) {}

void SwiftDeclarations::ReadAll() {
  FindPartners();
  for (std::size_t at = 0; at < count;) {
    if (Type(at) == kSwiftRCurly) {
      builder.PopRCurly(static_cast<int>(table.LineAt(at)));
      if (!scopes.empty()) scopes.pop_back();
      ++at;
      continue;
    }
    const std::size_t keyword = FindKeyword(at);
    if (keyword != kNone) {
      at = ReadDeclaration(keyword);
    } else if (RoleAt(at) == Role::Control) {
      at = PastControl(at);
    } else {
      at = Type(at) == kSwiftSemi ? at + 1 : EndOfStatement(Past(at), false);
    }
  }
}

// Tokens ------------------------------------------------------------------------------------------

Name SwiftDeclarations::NameOf(std::size_t first, std::size_t last) const {
  const std::size_t begin = table.OffsetAt(first);
  const std::size_t end = table.OffsetAt(last - 1) + Text(last - 1).size();
  return {std::string(source.substr(begin, end - begin)),
          static_cast<std::int32_t>(table.LineAt(first))};
}

bool SwiftDeclarations::IsWord(std::size_t index) const {
  const std::string_view text = Text(index);
  if (text.empty()) return false;
  return kLetters[static_cast<unsigned char>(text[0])] || (text[0] == '`' && text.size() > 1);
}

bool SwiftDeclarations::IsGlued(std::size_t index) const {
  return index > 0 && index < count &&
         table.OffsetAt(index - 1) + Text(index - 1).size() == table.OffsetAt(index);
}

bool SwiftDeclarations::BeginsLine(std::size_t index) const {
  return index == 0 || table.LineAt(index) != table.LineAt(index - 1);
}

/// A closing curly also ends the other brackets that are open after its partner. Any other closing
/// bracket without a partner is ignored.
void SwiftDeclarations::FindPartners() {
  partners.assign(count, 0);
  std::vector<std::uint32_t> open;
  std::size_t openCurlies = 0;
  for (std::uint32_t i = 0; i < count; ++i) {
    unsigned opener = 0;
    switch (table.TypeAt(i)) {
      case kSwiftLCurly:
        ++openCurlies;
        [[fallthrough]];
      case kSwiftLParen:
      case kSwiftLSquare:
        open.push_back(i);
        continue;
      case kSwiftRCurly:
        if (openCurlies == 0) continue;
        --openCurlies;
        opener = kSwiftLCurly;
        while (table.TypeAt(open.back()) != opener) open.pop_back();
        break;
      case kSwiftRParen:
        opener = kSwiftLParen;
        break;
      case kSwiftRSquare:
        opener = kSwiftLSquare;
        break;
      default:
        continue;
    }
    if (open.empty() || table.TypeAt(open.back()) != opener) continue;
    partners[open.back()] = i;
    open.pop_back();
  }
}

// Statements --------------------------------------------------------------------------------------

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

bool SwiftDeclarations::BeginsStatement(std::size_t index) {
  return BeginsLine(index) && Type(index - 1) != kSwiftDot &&
         (RoleAt(index) == Role::Control || FindKeyword(index) != kNone);
}

/// The place after a statement of which `index` is not the first token. Where it `hasBody`, it ends
/// with its first curlies at the latest.
std::size_t SwiftDeclarations::EndOfStatement(std::size_t index, bool hasBody) {
  while (index < count) {
    const unsigned type = Type(index);
    if (type == kSwiftRCurly || BeginsStatement(index)) return index;
    if (type == kSwiftSemi) return index + 1;
    if (hasBody && type == kSwiftLCurly) return Past(index);
    index = Past(index);
  }
  return count;
}

/// The place after the first block of a control statement. `let` in its conditions is skipped.
std::size_t SwiftDeclarations::PastControl(std::size_t index) {
  const bool isRepeat = Text(index) == "repeat";
  for (++index; index < count; index = Past(index)) {
    const unsigned type = Type(index);
    if (type == kSwiftRCurly || type == kSwiftSemi) return index;
    if (type == kSwiftLCurly) {
      index = Past(index);
      return isRepeat && Text(index) == "while" ? EndOfStatement(index + 1, false) : index;
    }
    if (!BeginsLine(index)) continue;
    const std::size_t keyword = FindKeyword(index);
    if (keyword == kNone) continue;
    const Role role = RoleAt(keyword);
    if (keyword != index || (role != Role::Constant && role != Role::Variable)) return index;
  }
  return count;
}

// Declarations ------------------------------------------------------------------------------------

std::size_t SwiftDeclarations::ReadDeclaration(std::size_t keyword) {
  switch (const Role role = RoleAt(keyword)) {
    case Role::Function:
    case Role::Macro:
      return ReadFunction(keyword);
    case Role::Initializer:
    case Role::Deinitializer:
    case Role::Subscript:
      return ReadKeywordFunction(keyword);
    case Role::Constant:
      return ReadBindings(kConstantKind, keyword);
    case Role::Variable:
      return ReadBindings(kVariableKind, keyword);
    case Role::TypeAlias:
    case Role::AssociatedType:
      builder.DumpNamed(kTypeAliasKind, NameAt(keyword + 1));
      return EndOfStatement(keyword + 2, false);
    case Role::Case:
      return ReadCases(keyword);
    default:
      return ReadType(role, keyword);
  }
}

std::size_t SwiftDeclarations::ReadType(Role role, std::size_t keyword) {
  std::size_t at = keyword + 2;
  Name name;
  if (role == Role::Extension) {
    at = ReadExtendedType(keyword + 1, name);
  } else {
    name = NameAt(keyword + 1);
  }
  while (at < count && Type(at) != kSwiftLCurly) {
    if (Type(at) == kSwiftRCurly || Type(at) == kSwiftSemi || BeginsStatement(at)) return at;
    at = Past(at);
  }
  if (at >= count) return count;
  if (role == Role::Enum) {
    builder.OpenEnum(name);
  } else {
    const long kind = role == Role::Struct      ? kStructKind
                      : role == Role::Protocol  ? kProtocolKind
                      : role == Role::Extension ? kExtensionKind
                                                : kClassKind;
    builder.OpenType(kind, name);
  }
  scopes.push_back(role == Role::Enum);
  return at + 1;
}

/// Reads the type that an extension names: dotted and without generic arguments. An array or a
/// tuple is named as it is written.
std::size_t SwiftDeclarations::ReadExtendedType(std::size_t index, Name& name) {
  if (!IsWord(index)) {
    const std::size_t end = Past(index);
    name = NameOf(index, end);
    return end;
  }
  name = NameAt(index++);
  while (index < count) {
    if (Type(index) == kSwiftDot && IsWord(index + 1)) {
      AppendMember(name, NameAt(index + 1));
      index += 2;
    } else if (Type(index) == kSwiftLess) {
      // The arguments may be of an outer type.
      const std::size_t past = PastAngles(index);
      if (past == kNone) return index;
      index = past;
    } else {
      break;
    }
  }
  return index;
}

std::size_t SwiftDeclarations::ReadFunction(std::size_t keyword) {
  Name name;
  std::size_t at = ReadFunctionName(keyword + 1, name);
  if (Type(at) == kSwiftLess) {
    const std::size_t past = PastAngles(at);
    if (past != kNone) at = past;
  }
  if (Type(at) != kSwiftLParen || partners[at] == 0) return EndOfStatement(at, true);
  const std::size_t close = partners[at];
  builder.DumpSwiftFunction(name.text, ReadLabels(at + 1, close), name.line);
  return EndOfStatement(close + 1, RoleAt(keyword) == Role::Function);
}

/// A name that begins beyond ASCII may be an operator, and an operator may be several tokens. Where
/// a name is glued to a `<` after an operator, the `<` opens a generic clause.
std::size_t SwiftDeclarations::ReadFunctionName(std::size_t index, Name& name) const {
  const auto first = static_cast<unsigned char>(source[table.OffsetAt(index)]);
  std::size_t end = index + 1;
  if (!kLetters[first] && first != '`') {
    while (end < count && IsGlued(end) && Type(end) != kSwiftLParen &&
           !(Type(end) == kSwiftLess && IsGlued(end + 1) && IsWord(end + 1))) {
      ++end;
    }
  }
  name = NameOf(index, end);
  return end;
}

std::size_t SwiftDeclarations::ReadKeywordFunction(std::size_t keyword) {
  const Name name = NameAt(keyword);
  builder.DumpSwiftFunction(name.text, ParamList(), name.line);
  return EndOfStatement(keyword + 1, true);
}

std::size_t SwiftDeclarations::ReadBindings(long kind, std::size_t keyword) {
  std::size_t at = keyword + 1;
  for (;;) {
    if (Type(at) == kSwiftLParen) {
      const std::size_t end = Past(at);
      ReadTuplePattern(kind, at + 1, end);
      at = end;
    } else {
      ReadBinding(kind, at++);
    }
    if (Type(at) == kSwiftColon) at = PastType(at + 1, count);
    if (Type(at) == kSwiftAssign) at = PastExpression(at + 1, count, Comma::Binding);
    // The accessors.
    if (Type(at) == kSwiftLCurly) return Past(at);
    if (Type(at) != kSwiftComma || !EndsAtComma(at, Comma::Binding)) break;
    ++at;
  }
  return EndOfStatement(at, false);
}

void SwiftDeclarations::ReadBinding(long kind, std::size_t index) {
  if (IsWord(index) && Text(index) != "_") builder.DumpNamed(kind, NameAt(index));
}

/// Reports the names of a tuple pattern whose tokens are those from `index` to before `end`,
/// without labels, types and what closes it.
void SwiftDeclarations::ReadTuplePattern(long kind, std::size_t index, std::size_t end) {
  while (index < end) {
    const unsigned next = Type(index + 1);
    const bool isLabel = next == kSwiftColon;
    if (IsWord(index) && !isLabel) {
      ReadBinding(kind, index);
      ++index;
    } else if (isLabel) {
      index += 2;
    } else {
      ++index;
    }
  }
}

std::size_t SwiftDeclarations::ReadCases(std::size_t keyword) {
  std::size_t at = keyword + 1;
  while (IsWord(at)) {
    builder.DumpEnumerator(NameAt(at));
    ++at;
    if (Type(at) == kSwiftLParen) at = Past(at);
    if (Type(at) == kSwiftAssign) at = PastExpression(at + 1, count, Comma::Case);
    if (Type(at) != kSwiftComma) break;
    ++at;
  }
  return EndOfStatement(at, false);
}

ParamList SwiftDeclarations::ReadLabels(std::size_t index, std::size_t end) {
  ParamList labels;
  while (index < end) {
    if (IsWord(index)) labels.Add(ParameterLabel(Name(), NameAt(index)));
    while (index < end && Type(index) != kSwiftColon && Type(index) != kSwiftComma) {
      index = Past(index);
    }
    if (Type(index) == kSwiftColon && index < end) index = PastType(index + 1, end);
    if (Type(index) == kSwiftAssign && index < end) {
      index = PastExpression(index + 1, end, Comma::Parameter);
    }
    while (index < end && Type(index) != kSwiftComma) index = Past(index);
    ++index;
  }
  return labels;
}

// Pieces of declarations --------------------------------------------------------------------------

/// The place of the comma, `=` or curly after a type, or of the end of the statement.
std::size_t SwiftDeclarations::PastType(std::size_t index, std::size_t end) {
  int angles = 0;
  for (; index < end; index = Past(index)) {
    switch (Type(index)) {
      case kSwiftLess:
        ++angles;
        break;
      case kSwiftGreater:
        --angles;
        break;
      case kSwiftComma:
      case kSwiftAssign:
        if (angles <= 0) return index;
        break;
      case kSwiftLCurly:
      case kSwiftRCurly:
      case kSwiftSemi:
        return index;
      default:
        if (BeginsStatement(index)) return index;
    }
  }
  return end;
}

/// The place of the comma after an expression, or of the end of the statement.
std::size_t SwiftDeclarations::PastExpression(std::size_t index, std::size_t end, Comma comma) {
  while (index < end) {
    switch (Type(index)) {
      case kSwiftLess:
        // Glued to a name it may open generic arguments, whose commas end nothing.
        if (IsGlued(index) && IsWord(index - 1)) {
          const std::size_t past = PastAngles(index);
          if (past != kNone && past <= end) {
            index = past;
            continue;
          }
        }
        break;
      case kSwiftComma:
        if (EndsAtComma(index, comma)) return index;
        break;
      case kSwiftRCurly:
      case kSwiftSemi:
        return index;
      default:
        if (BeginsStatement(index)) return index;
    }
    index = Past(index);
  }
  return end;
}

bool SwiftDeclarations::EndsAtComma(std::size_t index, Comma comma) const {
  const std::size_t next = index + 1;
  switch (comma) {
    case Comma::Case:
      return IsWord(next);
    case Comma::Parameter:
      return IsWord(next) &&
             (Type(next + 1) == kSwiftColon || (IsWord(next + 1) && Type(next + 2) == kSwiftColon));
    case Comma::Binding:
      break;
  }
  if (Type(next) == kSwiftLParen) return true;
  if (!IsWord(next)) return false;
  switch (Type(next + 1)) {
    case kSwiftColon:
    case kSwiftAssign:
    case kSwiftComma:
    case kSwiftSemi:
    case kSwiftRCurly:
    case kSwiftEndOfFile:
      return true;
    default:
      return BeginsLine(next + 1);
  }
}

// A search that failed is remembered, which keeps `a<a<a<` linear. It stops at the first token that
// no clause can hold.
std::size_t SwiftDeclarations::PastAngles(std::size_t index) {
  if (index >= noAnglesFrom && index < noAnglesTo) return kNone;
  int depth = 0;
  std::size_t at = index;
  for (; at < count; at = Past(at)) {
    switch (Type(at)) {
      case kSwiftLess:
        ++depth;
        continue;
      case kSwiftGreater:
        if (--depth == 0) return at + 1;
        continue;
      case kSwiftLParen:
      case kSwiftLSquare:
        if (partners[at] != 0) continue;
        break;
      case kSwiftDot:
      case kSwiftComma:
      case kSwiftQuestionMark:
      case kSwiftNot:
      case kSwiftColon:
      case kSwiftAmpersand:
      case kSwiftArrow:
      case kSwiftEllipsis:
      case kSwiftTilde:
      case kSwiftAssign:
      case kSwiftMinus:
      case kSwiftDecimal:
        continue;
      default:
        if (IsWord(at) && !BeginsStatement(at)) continue;
    }
    break;
  }
  noAnglesFrom = index;
  noAnglesTo = at;
  return kNone;
}

}  // namespace vexltags::thorough
