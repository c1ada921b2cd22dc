// SPDX-License-Identifier: MIT
// Walks through Swift tokens: statements, types and expressions.
#include "thorough/swift_declarations.h"

#include <string>

#include "base/character_class.h"

namespace vexltags::thorough {

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
