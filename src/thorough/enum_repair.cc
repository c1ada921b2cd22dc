// SPDX-License-Identifier: MIT
// Repairs enums.

#include <algorithm>
#include <utility>

#include "thorough/declaration_repairer.h"
#include "vocabulary/main_tokens.h"

namespace vexltags::thorough {

void DeclarationRepairer::RepairEnum() {
  std::size_t key = 0;
  while (key < words.size() && TypeAt(key) != kMainKw_enum && TypeAt(key) != kMainNsOptionsMacro) {
    ++key;
  }
  if (key == words.size()) return;
  // The grammar has `typedef` before an enum, and nothing else.
  std::size_t i = 0;
  while (i < key) {
    if (TypeAt(i) == kMainKw_typedef) {
      ++i;
    } else {
      Erase(i, i + 1);
      --key;
    }
  }
  std::size_t open = key;
  while (open < words.size() && TypeAt(open) != kMainLCurly) ++open;
  if (open == words.size()) return;
  if (TypeAt(key) == kMainKw_enum) {
    std::size_t name = key;
    if (TypeAt(key + 1) == kMainKw_class || TypeAt(key + 1) == kMainKw_struct) ++name;
    std::size_t colon = name + 1;
    while (colon < open && TypeAt(colon) != kMainColon) {
      colon = TypeAt(colon) == kMainLParen ? std::min(PastBracket(words, colon), open) : colon + 1;
    }
    Erase(colon, open);  // The type below has no place in a tag.
    KeepOneName(name, colon);
    // Of a qualified name, the grammar reads the last word.
    while (TypeAt(name + 1) == kMainId && TypeAt(name + 2) == kMainScope) Erase(name + 1, name + 3);
    open = name;
    while (open < words.size() && TypeAt(open) != kMainLCurly) ++open;
  } else {
    Erase(key + 1, open);
    open = key + 1;
  }
  RepairEnumerators(open);
}

void DeclarationRepairer::RepairEnumerators(std::size_t open) {
  Words kept(words.begin(), words.begin() + static_cast<std::ptrdiff_t>(open) + 1);
  std::size_t i = open + 1;
  while (i < words.size() && TypeAt(i) != kMainRCurly) {
    // One enumerator: its first name that is not a macro with others after it.
    std::size_t name = kNoWord;
    bool hasValue = false;
    bool isCall = false;
    while (i < words.size() && TypeAt(i) != kMainComma && TypeAt(i) != kMainRCurly) {
      const unsigned type = TypeAt(i);
      if (type == kMainAssign) hasValue = true;
      if (type == kMainId && !hasValue && (name == kNoWord || isCall)) {
        name = i;
        isCall = TypeAt(i + 1) == kMainLParen;
      }
      if (type == kMainLParen || type == kMainLSquare) {
        i = PastBracket(words, i);
      } else if (type == kMainLess && hasValue && TypeAt(i - 1) == kMainId) {
        i = std::max(PastAngles(i), i + 1);
      } else {
        ++i;
      }
    }
    if (name != kNoWord && !isCall) {
      kept.push_back(words[name]);
      if (TypeAt(i) == kMainComma) kept.push_back(words[i]);
    }
    if (TypeAt(i) == kMainComma) ++i;
  }
  const std::size_t close = i;
  if (close < words.size()) kept.push_back(words[close]);
  RepairEnumTail(close + 1, kept);
  // A declaration added after the enum can make up for words removed from it.
  changed |= kept.size() != words.size();
  words = std::move(kept);
}

void DeclarationRepairer::RepairEnumTail(std::size_t from, Words& kept) {
  bool isFirst = true;
  const bool isTypedef = words[0].type == kMainKw_typedef;
  // The first name shows the enum, but then no scope: a declaration of its own does.
  const bool isScoped = place.inClass || place.inNamespace;
  for (std::size_t i = from; i < words.size();) {
    std::size_t name = kNoWord;
    bool hasValue = false;
    while (i < words.size() && TypeAt(i) != kMainComma && TypeAt(i) != kMainSemicolon) {
      const unsigned type = TypeAt(i);
      if (type == kMainAssign) hasValue = true;
      if (type == kMainId && !hasValue && (name == kNoWord || LooksLikeMacro(words[name]))) {
        if (TypeAt(i + 1) != kMainLParen) name = i;
      }
      i = type == kMainLParen || type == kMainLSquare ? PastBracket(words, i) : i + 1;
    }
    if (name != kNoWord) {
      if (!isFirst || isScoped) {
        Word semicolon = words[name];
        semicolon.type = kMainSemicolon;
        semicolon.text = ";";
        semicolon.index = -1;
        kept.push_back(semicolon);
        Word type = semicolon;
        if (isTypedef) {
          type.type = kMainKw_typedef;
          type.text = "typedef";
          kept.push_back(type);
        }
        type.type = kMainKw_int;
        type.text = "int";
        kept.push_back(type);
        changed = true;
      }
      kept.push_back(words[name]);
      isFirst = false;
    }
    if (TypeAt(i) == kMainSemicolon) kept.push_back(words[i]);
    ++i;
  }
  if (isTypedef && isScoped && !isFirst) kept.erase(kept.begin());
}

}  // namespace vexltags::thorough
