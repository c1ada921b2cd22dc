// SPDX-License-Identifier: MIT
// Reads the declarations of a Swift file from its tokens, without a grammar.
#include "thorough/swift_declarations.h"

#include <algorithm>

#include "output/kinds.h"
#include "swift/swift_names.h"

namespace vexltags::thorough {

SwiftDeclarations::SwiftDeclarations(TokenTable& tokens, std::string_view text,
                                     SwiftTagsParser& tagBuilder)
    : table(tokens), source(text), builder(tagBuilder), count(tokens.Count()) {}

void SwiftDeclarations::ReadAll() {
  FindPartners();
  for (std::size_t at = 0; at < count;) {
    EndUnclosedTypes(at);
    if (Type(at) == kSwiftRCurly) {
      builder.PopRCurly(static_cast<int>(table.LineAt(at)));
      if (!scopes.empty()) {
        scopes.pop_back();
        scopeEnds.pop_back();
      }
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

void SwiftDeclarations::EndUnclosedTypes(std::size_t index) {
  while (!scopeEnds.empty() && index >= scopeEnds.back()) {
    builder.PopRCurly(static_cast<int>(table.LineAt(index)));
    scopes.pop_back();
    scopeEnds.pop_back();
  }
}

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
  const bool staysOpen = std::binary_search(unclosedAt.begin(), unclosedAt.end(), at);
  scopeEnds.push_back(staysOpen ? Past(at) : kNone);
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

}  // namespace vexltags::thorough
