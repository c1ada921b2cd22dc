// SPDX-License-Identifier: MIT
// Rewrites the words of one declaration.
#include "thorough/declaration_repairer.h"

#include <algorithm>
#include <cstdint>

#include "base/character_class.h"
#include "thorough/main_literals.h"
#include "vocabulary/main_tokens.h"

namespace vexltags::thorough {

bool IsSpecifier(unsigned type) {
  switch (type) {
    case kMainKw_static:
    case kMainKw_inline:
    case kMainKw_virtual:
    case kMainKw_explicit:
    case kMainKw_extern:
    case kMainKw_mutable:
    case kMainKw_constexpr:
    case kMainKw_consteval:
    case kMainKw_constinit:
    case kMainKw_thread_local:
    case kMainKw_friend:
    case kMainKw_typedef:
    case kMainKw_register:
      return true;
    default:
      return false;
  }
}

namespace {

/// True for words of C++ that are names in C, and for those that are names in some libraries.
constexpr bool IsCxxWord(unsigned type) {
  return type == kMainKw_class || type == kMainKw_new || type == kMainKw_delete ||
         type == kMainKw_template || type == kMainKw_namespace || type == kMainKw_operator ||
         type == kMainKw_private || type == kMainKw_public || type == kMainKw_protected ||
         type == kMainKw_virtual || type == kMainKw_typename || type == kMainKw_using ||
         type == kMainKw_friend || type == kMainKw_explicit || type == kMainKw_mutable ||
         type == kMainKw_final || type == kMainKw_override || type == kMainKw_concept ||
         type == kMainKw_requires || type == kMainKw_throw || type == kMainKw_default ||
         type == kMainKw_readonly || type == kMainKw_true || type == kMainKw_false;
}

/// Kinds of words that only some declarations have, so that steps can be left out.
enum WordKind : std::uint8_t {
  kCxxWords = 1,
  kScopes = 2,
  kEnumWords = 4,
  kAutoWords = 8,
  kOwnership = 16,
};

constexpr ByteTable<std::uint8_t> MakeWordKinds() {
  ByteTable<std::uint8_t> kinds{};
  for (unsigned type = 0; type < kinds.size(); ++type) {
    if (IsCxxWord(type)) kinds[type] = kCxxWords;
  }
  kinds[kMainScope] = kScopes;
  kinds[kMainKw_enum] = kEnumWords;
  kinds[kMainKw_auto] = kAutoWords;
  kinds[kMainWeak] = kOwnership;
  kinds[kMainStrong] = kOwnership;
  return kinds;
}
constexpr ByteTable<std::uint8_t> kWordKinds = MakeWordKinds();

}  // namespace

bool DeclarationRepairer::Run() {
  if (words.empty()) return false;
  if (place.dialect == Dialect::C) RetypeNames();
  const unsigned first = words[0].type;
  if (first == kMainRCurly) {
    RepairTail();
  } else if (first == kMainPlus || first == kMainMinus) {
    RepairMethod();
  } else if (first == kMainProperty) {
    RepairProperty();
  } else if (first == kMainInterface || first == kMainImplementation || first == kMainProtocol) {
    RepairObjcHead();
  } else if (first == kMainKw_static_assert || first == kMainSynthesize) {
    return false;
  } else if (first == kMainKw_using) {
    RepairUsing();
  } else if (end == DeclarationEnd::EnumBody) {
    RepairEnum();
  } else if (end == DeclarationEnd::NamespaceBody) {
    RepairNamespace();
  } else if (end == DeclarationEnd::ClassBody) {
    RepairClass();
  } else {
    RepairPlain();
  }
  return changed;
}

void DeclarationRepairer::RepairPlain() {
  // An explicit instantiation declares nothing new.
  const bool isExtern = TypeAt(0) == kMainKw_extern && TypeAt(1) == kMainKw_template;
  const bool isInstantiation =
      TypeAt(0) == kMainKw_template && TypeAt(1) != kMainLess && TypeAt(1) != kMainLParen;
  if (isExtern || isInstantiation) {
    return Erase(0, words.size());
  }
  unsigned kinds = 0;
  for (const Word& word : words) kinds |= kWordKinds[word.type % kWordKinds.size()];
  if ((kinds & kOwnership) != 0) RemoveOwnership();
  if (place.dialect != Dialect::C && (kinds & kCxxWords) != 0) RetypeNames();
  RemoveMacrosBefore();
  if ((kinds & kScopes) != 0) RemoveLeadingScopes();
  if (words.empty()) return;
  Outline outline(words);
  // A class template that is not defined here.
  if (outline.begin > 0 && outline.classKey == outline.begin && outline.params == kNoWord &&
      outline.assign == kNoWord && end == DeclarationEnd::Semicolon) {
    return Erase(0, words.size());
  }
  // `friend class API A;`
  if (TypeAt(0) == kMainKw_friend && outline.classKey == 1 && outline.params == kNoWord &&
      end == DeclarationEnd::Semicolon && words.size() > 4) {
    return Erase(0, words.size());
  }
  if (IsMacroCall(outline)) {
    if (!RepairMemberCall()) Erase(0, words.size());
    return;
  }
  if (TypeAt(outline.begin) == kMainKw_using) return RepairUsing();
  if (SplitDeclarators(outline)) return;
  if (IsFunction(outline)) {
    RepairFunction(outline);
    EmptyTemplateHeads();
  } else {
    RepairVariable(outline);
  }
  if ((kinds & kEnumWords) != 0) RemoveEnumWords();
  if ((kinds & kAutoWords) != 0) RetypeAuto();
}

void DeclarationRepairer::RetypeNames() {
  for (std::size_t i = 0; i < words.size(); ++i) {
    const unsigned type = words[i].type;
    if ((kWordKinds[type % kWordKinds.size()] & kCxxWords) == 0) continue;
    if (place.dialect == Dialect::C && !place.inObjc) {
      if (i > 0) Retype(i, kMainId);
      continue;
    }
    if (type != kMainKw_class && type != kMainKw_new && type != kMainKw_delete &&
        type != kMainKw_template && type != kMainKw_namespace && type != kMainKw_private &&
        type != kMainKw_public && type != kMainKw_virtual && type != kMainKw_typename &&
        type != kMainKw_readonly && type != kMainKw_final && type != kMainKw_override) {
      continue;
    }
    const unsigned before = i > 0 ? TypeAt(i - 1) : 0;
    const unsigned after = TypeAt(i + 1);
    const bool endsName =
        after == kMainSemicolon || after == kMainComma || after == kMainRParen ||
        after == kMainLSquare ||
        (after == kMainColon && type != kMainKw_public && type != kMainKw_private);
    const bool followsType = before == kMainId || before == kMainStar || IsBuiltInType(before) ||
                             (before == kMainComma && after == kMainColon);
    if (endsName && followsType) Retype(i, kMainId);
  }
}

void DeclarationRepairer::RemoveLeadingScopes() {
  for (std::size_t i = 0; i < words.size(); ++i) {
    if (TypeAt(i) != kMainScope || TypeAt(i + 1) != kMainId) continue;
    const unsigned before = i > 0 ? TypeAt(i - 1) : 0;
    if (before == kMainId || before == kMainGreater || before == kMainRParen) continue;
    Erase(i, i + 1);
  }
}

void DeclarationRepairer::RemoveEnumWords() {
  for (std::size_t i = 0; i < words.size();) {
    const bool isForward = TypeAt(i) == kMainKw_enum && i == 0 &&
                           (TypeAt(2) == kMainSemicolon || TypeAt(3) == kMainSemicolon) &&
                           TypeAt(1) != kMainId;
    if (TypeAt(i) == kMainKw_enum && !isForward) {
      if (i == 0 && (TypeAt(2) == kMainSemicolon || TypeAt(2) == kMainColon)) {
        ++i;
        continue;
      }
      Erase(i, i + 1);
    } else {
      ++i;
    }
  }
}

void DeclarationRepairer::RemoveOwnership() {
  for (std::size_t i = words.size(); i-- > 0;) {
    if (TypeAt(i) == kMainWeak || TypeAt(i) == kMainStrong) Erase(i, i + 1);
  }
}

void DeclarationRepairer::RetypeAuto() {
  for (std::size_t i = 0; i < words.size(); ++i) {
    if (TypeAt(i) != kMainKw_auto || words[i].index < 0) continue;
    words[i].type = kMainId;
    changed = true;
  }
}

void DeclarationRepairer::Insert(std::size_t at, unsigned type, std::string_view text) {
  Word word;
  word.type = type;
  word.text = text;
  word.line = words[std::min(at, words.size() - 1)].line;
  words.insert(words.begin() + static_cast<std::ptrdiff_t>(at), word);
  changed = true;
}

}  // namespace vexltags::thorough
