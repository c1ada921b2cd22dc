// SPDX-License-Identifier: MIT
// Repairs the heads of classes and namespaces.

#include <algorithm>

#include "thorough/declaration_repairer.h"
#include "vocabulary/main_tokens.h"

namespace vexltags::thorough {

void DeclarationRepairer::RepairClass() {
  RemoveMacrosBefore();
  RemoveTemplateDefaults();
  Outline outline(words);
  if (outline.classKey == kNoWord) return;
  // `static struct X {`, `const struct {`: the grammar opens a class by its key, after `typedef`.
  std::size_t from = outline.begin;
  while (from < outline.classKey) {
    if (TypeAt(from) == kMainKw_typedef || TypeAt(from) == kMainKw_const ||
        TypeAt(from) == kMainKw_friend || TypeAt(from) == kMainKw_volatile) {
      ++from;
    } else {
      Erase(from, from + 1);
      --outline.classKey;
    }
  }
  const std::size_t key = outline.classKey;
  std::size_t stop = key + 1;
  while (stop < words.size() && TypeAt(stop) != kMainColon && TypeAt(stop) != kMainLCurly) {
    const unsigned type = TypeAt(stop);
    if (type == kMainLParen) {
      stop = PastBracket(words, stop);
    } else if (type == kMainLess) {
      stop = std::max(PastAngles(stop), stop + 1);
    } else {
      ++stop;
    }
  }
  stop = std::min(stop, words.size());
  const std::size_t pastName = KeepOneName(key, stop);
  // The bases leave no trace in a tag.
  if (TypeAt(pastName) == kMainColon) Erase(pastName, words.size() - 1);
}

void DeclarationRepairer::RepairNamespace() {
  const auto key = std::find_if(words.begin(), words.end(),
                                [](const Word& word) { return word.type == kMainKw_namespace; });
  if (key == words.end()) return;  // A linkage block.
  auto at = static_cast<std::size_t>(key - words.begin());
  // What is before it, but for `inline`.
  std::size_t i = 0;
  while (i < at) {
    if (TypeAt(i) == kMainKw_inline) {
      ++i;
    } else {
      Erase(i, i + 1);
      --at;
    }
  }
  // `a::inline b`, then one name and nothing else.
  std::size_t stop = at + 1;
  while (TypeAt(stop) == kMainId || TypeAt(stop) == kMainScope || TypeAt(stop) == kMainKw_inline) {
    if (stop > at + 1 && TypeAt(stop) == kMainId && TypeAt(stop - 1) == kMainId) break;
    ++stop;
  }
  if (TypeAt(stop) == kMainLParen && stop > at + 1 && LooksLikeMacro(words[stop - 1])) --stop;
  std::size_t last = words.size() - 1;
  // `namespace MACRO name {`
  if (stop == at + 2 && TypeAt(stop) == kMainId && LooksLikeMacro(words[at + 1]) &&
      !LooksLikeMacro(words[stop])) {
    Erase(at + 1, at + 2);
    --last;
  }
  Erase(stop, last);
}

std::size_t DeclarationRepairer::KeepOneName(std::size_t key, std::size_t stop) {
  struct Name {
    std::size_t begin, end;
    bool isMacro;
  };
  Name best{key + 1, key + 1, true};
  std::size_t i = key + 1;
  bool hasFinal = false;
  while (i < stop) {
    if (TypeAt(i) == kMainKw_final) hasFinal = true;
    const bool begins =
        TypeAt(i) == kMainId || (TypeAt(i) == kMainScope && TypeAt(i + 1) == kMainId);
    if (!begins) {
      i = TypeAt(i) == kMainLParen ? std::min(PastBracket(words, i), stop) : i + 1;
      continue;
    }
    Name name{i, i, LooksLikeMacro(words[i])};
    if (TypeAt(i) == kMainScope) ++i;
    for (;;) {
      ++i;
      if (i < stop && TypeAt(i) == kMainLess) {
        const std::size_t past = PastAngles(i);
        if (past != i && past <= stop) {
          i = past;
          name.isMacro = false;
        }
      }
      if (i + 1 < stop && TypeAt(i) == kMainScope && TypeAt(i + 1) == kMainId) {
        ++i;
        name.isMacro = false;
        continue;
      }
      break;
    }
    name.end = i;
    // The name of a macro with arguments.
    if (i < stop && TypeAt(i) == kMainLParen) {
      i = std::min(PastBracket(words, i), stop);
      continue;
    }
    if (best.begin == best.end || !name.isMacro || best.isMacro) best = name;
  }
  if (best.begin == best.end) {
    Erase(key + 1, stop);
    return key + 1;
  }
  Erase(best.end, stop);
  if (hasFinal) Insert(best.end, kMainKw_final, "final");
  const std::size_t length = best.end - best.begin + (hasFinal ? 1 : 0);
  Erase(key + 1, best.begin);
  if (TypeAt(key + 1) == kMainScope) {
    Erase(key + 1, key + 2);
    return key + length;
  }
  return key + 1 + length;
}

}  // namespace vexltags::thorough
