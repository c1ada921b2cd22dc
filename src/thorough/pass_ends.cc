// SPDX-License-Identifier: MIT
// The part of the declaration pass that ends a declaration and records its changes.
#include "thorough/declaration_pass.h"

#include <algorithm>
#include <utility>

#include "vocabulary/main_tokens.h"

namespace vexltags::thorough {
namespace {

/// True for a name that a macro makes of `__COUNTER__`: only a compiler knows it.
bool HasCounter(const Words& words) {
  return std::any_of(words.begin(), words.end(), [](const Word& word) {
    return word.index < 0 && word.text.ends_with("__COUNTER__");
  });
}

/// The name that a class head declares, without its template arguments; empty for none.
std::string_view NameOfClass(const Words& words) {
  const Outline outline(words);
  if (outline.classKey == kNoWord) return {};
  std::string_view name;
  for (std::size_t i = outline.classKey + 1; i < words.size(); ++i) {
    if (words[i].type == kMainColon) break;
    if (words[i].type == kMainLess) {
      // `A<T>::B` names B.
      const std::size_t past = PastAngle(words, i);
      if (past >= words.size() || past == i || words[past].type != kMainScope) break;
      i = past;
      continue;
    }
    if (words[i].type == kMainId) name = words[i].text;
  }
  return name;
}

/// True for the head of a namespace with a name.
bool IsNamedNamespace(const Words& words) {
  for (std::size_t i = 0; i + 1 < words.size(); ++i) {
    if (words[i].type == kMainKw_namespace) return words[i + 1].type == kMainId;
  }
  return false;
}

}  // namespace

std::string_view DeclarationPass::ClassName() const {
  return scopes.empty() ? std::string_view() : scopes.back().name;
}

void DeclarationPass::EndDeclaration(DeclarationEnd end) {
  brackets = 0;
  enumDepth = 0;
  inEnum = false;
  const bool isWhole = end == DeclarationEnd::Semicolon || end == DeclarationEnd::Body;
  if (hasChanged && isWhole && HasCounter(words)) words.clear();
  if (!words.empty() && (words.size() <= kLongestDeclaration || end == DeclarationEnd::EnumBody)) {
    DeclarationPlace place;
    place.inClass = CurrentLevel() == Level::Class || CurrentLevel() == Level::Variables;
    place.inObjc = CurrentLevel() == Level::Objc;
    place.inNamespace = InNamespace();
    place.followsNamedClass = followsNamedClass;
    place.className = ClassName();
    place.dialect = dialect;
    place.followsTemplate = followsTemplate;
    const unsigned first = words[0].type;
    const bool opensObjc =
        (first == kMainInterface || first == kMainProtocol || first == kMainImplementation) &&
        end != DeclarationEnd::Semicolon;
    if (RepairDeclaration(words, end, place)) hasChanged = true;
    if (end == DeclarationEnd::NamespaceBody) {
      const bool isNamed = IsNamedNamespace(words);
      scopes.push_back(
          {Level::Namespace, {}, SplitNamespace(), false, place.inNamespace || isNamed});
    } else if (opensObjc) {
      scopes.push_back({Level::Objc, {}, 1, false, place.inNamespace});
    } else if (end == DeclarationEnd::ClassBody) {
      const bool isTypedef = words[0].type == kMainKw_typedef;
      const bool isTemplate = words[0].type == kMainKw_template;
      scopes.push_back(
          {Level::Class, NameOfClass(words), 1, isTypedef, place.inNamespace, isTemplate});
    }
  } else if (end == DeclarationEnd::ClassBody) {
    scopes.push_back({Level::Class, {}, 1, false, InNamespace()});
  } else if (end == DeclarationEnd::NamespaceBody) {
    scopes.push_back({Level::Namespace, {}, 1, false, InNamespace()});
  }
  Flush();
}

int DeclarationPass::SplitNamespace() {
  std::size_t at = 0;
  while (at < words.size() && words[at].type != kMainKw_namespace) ++at;
  if (at + 2 >= words.size() || words[at + 2].type != kMainScope) return 1;
  Words split(words.begin(), words.begin() + static_cast<std::ptrdiff_t>(at));
  int count = 0;
  Word keyword = words[at];
  Word brace = words.back();
  for (std::size_t i = at + 1; i + 1 < words.size(); ++i) {
    const Word& word = words[i];
    if (word.type == kMainScope) continue;
    if (word.type == kMainKw_inline) {
      split.push_back(word);
      continue;
    }
    const bool isLast = i + 2 >= words.size();
    split.push_back(keyword);
    split.push_back(word);
    split.push_back(brace);
    if (!isLast) split.back().index = -1;
    keyword.index = -1;
    ++count;
  }
  words = std::move(split);
  hasChanged = true;
  return count;
}

void DeclarationPass::Insert(std::size_t index, const Word& word) {
  if (word.type < kMainKw_typedef) {
    edits.Insert(index, word.type, word.text, word.line);
    if (word.span == 0) edits.Insert(index, kMainRCurly, "}", word.line);
    return;
  }
  // No blank is between made words; keywords never are names, and bring theirs along.
  spaced.assign(word.text);
  spaced += ' ';
  edits.Insert(index, word.type, spaced, word.line);
}

void DeclarationPass::Flush() {
  if (!hasChanged && defines.empty()) {
    flushed = at;
    words.clear();
    return;
  }
  std::size_t next = flushed;
  for (const Word& define : defines) {
    edits.Insert(next, kMainDefine, define.text, define.line);
  }
  for (const Word& word : words) {
    if (word.index < 0) {
      Insert(next, word);
      continue;
    }
    const auto index = static_cast<std::size_t>(word.index);
    if (next < index) edits.Remove(next, index, tokens.TypeAt(next));
    next = index;
    if (word.span == 1 && word.type != tokens.TypeAt(next)) edits.Retype(next, word.type);
    next += word.span;
  }
  if (next < at) edits.Remove(next, at, tokens.TypeAt(next));
  flushed = at;
  words.clear();
  defines.clear();
  hasChanged = false;
}

}  // namespace vexltags::thorough
