// SPDX-License-Identifier: MIT
// Repairs what only Objective-C declares.

#include <algorithm>
#include <utility>
#include <vector>

#include "thorough/declaration_repairer.h"
#include "thorough/main_literals.h"
#include "vocabulary/main_tokens.h"

namespace vexltags::thorough {

void DeclarationRepairer::RepairMethod() {
  for (std::size_t i = 1; i < words.size();) {
    if (TypeAt(i) == kMainLParen) {
      Erase(i, PastBracket(words, i));
    } else {
      ++i;
    }
  }
  // The words of the selector; keywords as names, and macros after the last one.
  if (TypeAt(1) >= kMainKw_typedef) Retype(1, kMainId);
  std::size_t last = words.size() - 1;
  bool hasColon = false;
  for (std::size_t i = 1; i < last;) {
    if (TypeAt(i) >= kMainKw_typedef && TypeAt(i + 1) == kMainColon) Retype(i, kMainId);
    const unsigned type = TypeAt(i);
    if (type == kMainColon) {
      hasColon = true;
      if (TypeAt(i + 1) != kMainId && TypeAt(i + 1) >= kMainKw_typedef) Retype(i + 1, kMainId);
      // `:name` has one word; a second one without a colon is a macro.
      i += 2;
      continue;
    }
    if (hasColon && TypeAt(i) == kMainId && TypeAt(i + 1) != kMainColon) {
      Erase(i, i + 1);
      --last;
      continue;
    }
    if (!hasColon && i > 1 && type == kMainId && TypeAt(i + 1) != kMainColon) {
      Erase(i, i + 1);
      --last;
      continue;
    }
    ++i;
  }
  // `- (void)foo; {` and the like stay as they are.
}

void DeclarationRepairer::RepairProperty() {
  std::size_t i = 1;
  Words kept;
  kept.push_back(words[0]);
  if (TypeAt(i) == kMainLParen) {
    const std::size_t past = PastBracket(words, i);
    KeepAttributes(i + 1, past - 1, kept);
    i = past;
  }
  // The name: in the parentheses of a function pointer or block, else the last word.
  std::size_t name = kNoWord;
  std::vector<std::size_t> names;  // Those before a comma.
  for (std::size_t at = i; at < words.size(); ++at) {
    if (TypeAt(at) == kMainComma && name != kNoWord) {
      names.push_back(name);
      name = kNoWord;
      continue;
    }
    if (TypeAt(at) == kMainLParen &&
        (TypeAt(at + 1) == kMainBitwiseXor || TypeAt(at + 1) == kMainStar)) {
      const std::size_t past = PastBracket(words, at);
      for (std::size_t in = at + 1; in < past; ++in) {
        if (TypeAt(in) == kMainId) name = in;
      }
      break;
    }
    if (TypeAt(at) == kMainLParen) {
      at = PastBracket(words, at) - 1;
      continue;
    }
    if (TypeAt(at) == kMainLess) {
      const std::size_t past = PastAngles(at);
      if (past != at) {
        at = past - 1;
        continue;
      }
    }
    const bool isWord = TypeAt(at) == kMainId || TypeAt(at) >= kMainKw_typedef;
    if (!isWord || IsBuiltInType(TypeAt(at)) || IsQualifier(TypeAt(at))) continue;
    // Macros follow the name.
    if (name != kNoWord && LooksLikeMacro(words[at]) && !LooksLikeMacro(words[name])) continue;
    name = at;
  }
  if (name == kNoWord || TypeAt(words.size() - 1) != kMainSemicolon) return;
  names.push_back(name);
  const Words head = kept;
  kept.clear();
  for (const std::size_t one : names) {
    for (Word word : head) {
      // Only the first property can have the words of the source.
      if (one != names.front()) word.index = -1;
      kept.push_back(word);
    }
    Word type = words[one];
    type.type = kMainKw_int;
    type.text = "int";
    type.index = -1;
    kept.push_back(type);
    kept.push_back(words[one]);
    kept.back().type = kMainId;
    kept.push_back(words.back());
    if (one != names.back()) kept.back().index = -1;
  }
  words = std::move(kept);
  changed = true;
}

void DeclarationRepairer::KeepAttributes(std::size_t from, std::size_t to, Words& kept) {
  Words attributes;
  for (std::size_t i = from; i < to; ++i) {
    const bool isAccessor = TypeAt(i) == kMainId &&
                            (words[i].text == "getter" || words[i].text == "setter") &&
                            TypeAt(i + 1) == kMainAssign;
    if (TypeAt(i) == kMainKw_readonly) {
      Append(attributes, {words[i]});
    } else if ((TypeAt(i) == kMainGetter || TypeAt(i) == kMainSetter) && i + 1 < to) {
      Word name = words[i + 1];
      name.type = kMainId;
      Append(attributes, {words[i], name});
      ++i;
    } else if (isAccessor && i + 2 < to) {
      Word accessor = words[i];
      accessor.type = words[i].text == "getter" ? kMainGetter : kMainSetter;
      Word name = words[i + 2];
      name.type = kMainId;
      Append(attributes, {accessor, name});
      i += 2;
    }
  }
  if (attributes.empty()) return;
  kept.push_back(words[from - 1]);
  kept.insert(kept.end(), attributes.begin(), attributes.end());
  kept.push_back(words[to]);
}

void DeclarationRepairer::Append(Words& attributes, std::initializer_list<Word> added) {
  if (!attributes.empty()) {
    Word comma = attributes.back();
    comma.type = kMainComma;
    comma.text = ",";
    comma.index = -1;
    attributes.push_back(comma);
  }
  attributes.insert(attributes.end(), added);
}

void DeclarationRepairer::RepairObjcHead() {
  if (TypeAt(words.size() - 1) == kMainSemicolon) return;
  std::size_t i = 1;
  if (TypeAt(i) != kMainId) {
    if (TypeAt(i) < kMainKw_typedef) return;
    Retype(i, kMainId);
  }
  // Macros before the name.
  while (TypeAt(i + 1) == kMainId && LooksLikeMacro(words[i])) Erase(i, i + 1);
  ++i;
  if (TypeAt(i) == kMainLess) Erase(i, std::max(PastAngles(i), i + 1));
  if (TypeAt(i) == kMainLParen) {
    const std::size_t past = PastBracket(words, i);
    if (TypeAt(i + 1) == kMainId && past - i > 3) {
      Erase(i + 2, past - 1);
      i += 3;
    } else {
      i = past;
    }
  }
  Erase(i, words.size());
}

}  // namespace vexltags::thorough
